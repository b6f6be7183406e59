// The real window's controls, worked as a user does it.
#include "tests/tools/chord_manager/checked_chord_window.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTabWidget>

#include <fstream>

namespace tabrova::testing {

PlainFolder filesIn(const std::filesystem::path& folder) {
    PlainFolder files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        std::ifstream file(entry.path(), std::ios::binary);
        files[entry.path().filename().string()] = std::string(std::istreambuf_iterator<char>(file), {});
    }
    return files;
}

CheckedChordWindow::CheckedChordWindow(const ToolContext& context, const TimerList& timers)
    : form(context, nullptr), timers_(timers) {
    for (QWidget* control : form.findChildren<QWidget*>())
        if (!control->objectName().isEmpty()) controls_[control->objectName()] = control;
    form.Form_Load();
    form.show();
    auto& tabs = at<QTabWidget>("SSTab1");
    for (int tab = tabs.count() - 1; tab >= 0; --tab) {
        tabs.setCurrentIndex(tab);
        QApplication::processEvents();
    }
}

void CheckedChordWindow::showTabOf(const QString& control) {
    auto& tabs = at<QTabWidget>("SSTab1");
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (tab == tabs.currentIndex() || !tabs.widget(tab)->isAncestorOf(&at(control))) continue;
        tabs.setCurrentIndex(tab);
        if (tabShown) tabShown(tab);
    }
}

void CheckedChordWindow::press(const QString& button) {
    showTabOf(button);
    QTest::mouseClick(&at(button), Qt::LeftButton);
}

void CheckedChordWindow::key(const QString& control, Qt::Key key) {
    showTabOf(control);
    QTest::keyClick(&at(control), key);
}

void CheckedChordWindow::clickRow(const QString& list, int row) {
    showTabOf(list);
    auto& box = at<QListWidget>(list);
    box.scrollToItem(box.item(row));
    const QRect place = box.visualItemRect(box.item(row));
    QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
}

void CheckedChordWindow::type(const QString& box, const std::string& text) {
    showTabOf(box);
    at<QLineEdit>(box).selectAll();
    if (text.empty()) return QTest::keyClick(&at(box), Qt::Key_Delete);
    QTest::keyClicks(&at(box), QString::fromStdString(text));
}

void CheckedChordWindow::paste(const QString& box, const std::string& text) {
    showTabOf(box);
    at<QLineEdit>(box).selectAll();
    at<QLineEdit>(box).insert(QString::fromStdString(text));
}

void CheckedChordWindow::strum(QEvent::Type act, int y, Qt::MouseButton button, Qt::MouseButtons held) {
    QWidget& strip = at("Image3");
    const QPointF place(strip.width() / 2, y);
    QMouseEvent event(act, place, strip.mapToGlobal(place), button, held, Qt::NoModifier);
    QApplication::sendEvent(&strip, &event);
}

} // namespace tabrova::testing
