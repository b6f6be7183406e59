#include "app/drive/driver.h"

#include "app/drive/control_finder.h"
#include "app/drive/control_values.h"
#include "app/drive/document_json.h"
#include "app/drive/word_splitter.h"
#include "shell/frmMain.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QJsonArray>
#include <QTimer>

namespace tabrova {

namespace {

const QJsonObject Ok = {{"ok", true}};

QJsonObject error(const QString& why) { return {{"error", why}}; }

// The widget of a name, or the answer that says why there is none.
struct FoundWidget {
    QWidget* widget = nullptr;
    QJsonObject failure;
};

FoundWidget findWidget(frmMain& main, const QString& name) {
    const FoundControl found = findControl(main, name);
    if (!found.object) return {nullptr, error(found.error)};
    auto* widget = qobject_cast<QWidget*>(found.object);
    return {widget, widget ? QJsonObject() : error("not a window or control with a place")};
}

std::optional<int> wholeNumber(const QStringList& words, qsizetype index) {
    bool number = false;
    const int value = words.value(index).toInt(&number);
    return number ? std::optional<int>(value) : std::nullopt;
}

} // namespace

Driver::Driver(frmMain& window, RecordingServices& recording) : window_(window), recording_(recording) {
    handlers_ = {{"key", &Driver::key},       {"press", &Driver::press}, {"type", &Driver::type},
                 {"do", &Driver::doItem},     {"click", &Driver::mouse}, {"down", &Driver::mouse},
                 {"move", &Driver::mouse},    {"up", &Driver::mouse},    {"dblclick", &Driver::mouse},
                 {"set", &Driver::set},       {"get", &Driver::get},     {"resize", &Driver::resize},
                 {"answer", &Driver::answer}, {"boxes", &Driver::boxes}, {"choosers", &Driver::choosers},
                 {"opened", &Driver::opened}, {"midi", &Driver::midi},   {"device", &Driver::device},
                 {"timers", &Driver::timers}, {"fire", &Driver::fire},   {"freeze", &Driver::freeze},
                 {"thaw", &Driver::freeze},   {"wait", &Driver::wait},   {"doc", &Driver::doc},
                 {"page", &Driver::page},     {"shot", &Driver::shot},   {"forms", &Driver::forms},
                 {"quit", &Driver::quit}};
}

QJsonObject Driver::run(const QString& line) {
    const QStringList words = splitWords(line);
    if (words.isEmpty()) return error("no command");
    const Handler handler = handlers_.value(words.first());
    if (!handler) return error("no such command");
    const QJsonObject result = (this->*handler)(words);
    QApplication::processEvents();
    // A closed window goes at once, as it would in the program's own loop.
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return result;
}

QJsonObject Driver::key(const QStringList& words) {
    const auto code = wholeNumber(words, 1);
    const auto shift = words.size() > 2 ? wholeNumber(words, 2) : std::optional<int>(0);
    if (!code || !shift) return error("key CODE [SHIFT]");
    if (!window_.findChild<QWidget*>("picDocument")->isEnabled()) return error("disabled");
    window_.editor().picDocument_KeyDown(*code, *shift);
    return Ok;
}

QJsonObject Driver::press(const QStringList& words) {
    if (words.size() != 3) return error("press CONTROL KEY");
    const FoundWidget found = findWidget(window_, words[1]);
    if (!found.widget) return found.failure;
    return pressKey(found.widget, words[2]) ? Ok : error("no such key");
}

QJsonObject Driver::type(const QStringList& words) {
    if (words.size() < 3) return error("type CONTROL TEXT");
    const FoundWidget found = findWidget(window_, words[1]);
    if (!found.widget) return found.failure;
    typeText(found.widget, words.mid(2).join(' '));
    return Ok;
}

QJsonObject Driver::doItem(const QStringList& words) {
    const FoundControl found = findControl(window_, words.value(1));
    if (!found.object) return error(found.error);
    // An item may stand on its window as a button.
    auto* button = qobject_cast<QAbstractButton*>(found.object);
    if (button && button->objectName().startsWith("mnu")) {
        if (!button->isEnabled()) return error("disabled");
        button->click();
        return Ok;
    }
    auto* action = qobject_cast<QAction*>(found.object);
    if (!action) return error("not a menu item");
    if (!isActionReachable(action)) return error("disabled");
    action->trigger();
    return Ok;
}

QJsonObject Driver::mouse(const QStringList& words) {
    static const QHash<QString, MouseAct> acts = {{"click", MouseAct::Click},
                                                  {"down", MouseAct::Down},
                                                  {"move", MouseAct::Move},
                                                  {"up", MouseAct::Up},
                                                  {"dblclick", MouseAct::DoubleClick}};
    const FoundControl control = findControl(window_, words.value(1));
    if (qobject_cast<QAction*>(control.object)) return doItem(words);
    const FoundWidget found = findWidget(window_, words.value(1));
    if (!found.widget) return found.failure;
    const auto command = mouseCommand(words.mid(2));
    if (!command) return error("CONTROL [X Y] [left|right|middle]");
    mouse_.act(found.widget, acts.value(words[0]), *command);
    return Ok;
}

QJsonObject Driver::set(const QStringList& words) {
    if (words.size() < 3) return error("set CONTROL VALUE");
    const FoundControl found = findControl(window_, words[1]);
    if (!found.object) return error(found.error);
    const QString failure = setControl(found.object, words.mid(2).join(' '));
    return failure.isEmpty() ? Ok : error(failure);
}

QJsonObject Driver::get(const QStringList& words) {
    if (words.size() < 2) return error("get CONTROL [PROPERTY]");
    const FoundControl found = findControl(window_, words[1]);
    if (!found.object) return error(found.error);
    if (words.size() == 2) return {{"value", controlValue(found.object)}};
    const auto value = controlProperty(found.object, words[2].toLower());
    return value ? QJsonObject{{"value", *value}} : error("no such property");
}

QJsonObject Driver::resize(const QStringList& words) {
    const auto width = wholeNumber(words, 2);
    const auto height = wholeNumber(words, 3);
    if (!width || !height) return error("resize FORM W H");
    QWidget* form = findForm(window_, words[1]);
    if (!form) return error("not loaded");
    if (form == &window_) {
        window_.resizeClient(*width, *height);
    } else {
        form->resize(*width, *height);
    }
    return Ok;
}

QJsonObject Driver::answer(const QStringList& words) {
    static const QHash<QString, BoxAnswer> answers = {
        {"yes", BoxAnswer::Yes}, {"no", BoxAnswer::No}, {"cancel", BoxAnswer::Cancel}, {"ok", BoxAnswer::Ok}};
    const QString word = words.value(1);
    if (word == "file") {
        recording_.files.queueAnswer(words.size() > 2 ? std::optional<QString>(words.mid(2).join(' '))
                                                      : std::nullopt);
        return Ok;
    }
    if (!answers.contains(word)) return error("answer yes|no|cancel|ok|file [PATH]");
    recording_.boxes.queueAnswer(answers.value(word));
    return Ok;
}

QJsonObject Driver::timers(const QStringList&) {
    QJsonObject list;
    for (const ListedTimer* timer : recording_.timers.timers())
        list[timer->timerName()] =
            QJsonObject{{"enabled", timer->timerEnabled()}, {"interval", timer->timerInterval()}};
    return {{"timers", list}};
}

QJsonObject Driver::fire(const QStringList& words) {
    for (ListedTimer* timer : recording_.timers.timers())
        if (timer->timerName().compare(words.value(1), Qt::CaseInsensitive) == 0)
            return {{"fired", timer->fire()}};
    return error("no such timer");
}

QJsonObject Driver::freeze(const QStringList& words) {
    recording_.timers.setFrozen(words[0] == "freeze");
    return Ok;
}

QJsonObject Driver::wait(const QStringList& words) {
    const auto milliseconds = wholeNumber(words, 1);
    if (!milliseconds || *milliseconds < 0) return error("wait MS");
    QEventLoop loop;
    QTimer::singleShot(*milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    return Ok;
}

QJsonObject Driver::doc(const QStringList&) { return documentJson(window_.document()); }

QJsonObject Driver::page(const QStringList&) { return pageJson(window_); }

QJsonObject Driver::shot(const QStringList& words) {
    if (words.size() != 3) return error("shot NAME FILE.png");
    if (words[1].compare("picSource", Qt::CaseInsensitive) == 0)
        return window_.view().picSource().image().save(words[2]) ? Ok : error("cannot write the file");
    const FoundWidget found = findWidget(window_, words[1]);
    if (!found.widget) return found.failure;
    const auto* surface = dynamic_cast<SurfaceWidget*>(found.widget);
    const QImage image = surface ? surface->surface().image() : found.widget->grab().toImage();
    return image.save(words[2]) ? Ok : error("cannot write the file");
}

QJsonObject Driver::forms(const QStringList&) {
    QJsonArray loaded, visible;
    for (const QWidget* form : loadedForms(window_)) {
        loaded.append(form->objectName());
        if (form->isVisible()) visible.append(form->objectName());
    }
    return {{"forms", loaded}, {"visible", visible}};
}

QJsonObject Driver::quit(const QStringList&) {
    ended_ = window_.close();
    return ended_ ? Ok : error("cancelled");
}

} // namespace tabrova
