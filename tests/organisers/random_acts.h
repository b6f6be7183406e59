// What random acts on an organiser's window and on its plain model have in common: chance from a seed, the
// window's controls by their names, files from outside, and what is on both sides as text.
#pragma once

#include "platform/paths.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/organisers/plain_room.h"
#include "tests/workbench/tool_bench.h"

#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include <random>

#include <sys/stat.h>

namespace tabrova::testing {

template <class Window>
class RandomOrganiserActs : public ToolBench, public ::testing::WithParamInterface<unsigned> {
  protected:
    explicit RandomOrganiserActs(const char* roomName) : roomName_(roomName) {
        chance.seed(GetParam());
        std::filesystem::create_directory(folder() / "elsewhere");
    }

    // The toolkit does not remove names that are no text.
    ~RandomOrganiserActs() override {
        std::filesystem::remove_all(place());
        std::filesystem::remove_all(folder() / "elsewhere");
    }

    std::size_t below(std::size_t end) { return chance() % end; }
    template <class Value>
    const Value& oneOf(const std::vector<Value>& values) {
        return values[below(values.size())];
    }
    template <class Acts>
    void doOne(Acts& acts, const std::vector<void (Acts::*)()>& table) {
        (acts.*oneOf(table))();
    }

    // The window.
    void load() {
        window = std::make_unique<Window>(context, nullptr);
        window->Form_Load();
        window->show();
        window->activateWindow();
        QApplication::processEvents();
    }
    void unload() {
        window->close();
        window->Form_Unload();
        window.reset();
    }
    template <class Control = QWidget>
    Control& at(const QString& name) const {
        auto* control = window->template findChild<Control*>(name);
        if (!control) throw std::runtime_error("no control " + name.toStdString());
        return *control;
    }
    // By the mouse or by a key, as far as it can be seen.
    void press(const QString& name) {
        auto& button = at<QAbstractButton>(name);
        const std::size_t way = below(4);
        if (button.visibleRegion().isEmpty()) return button.click();
        button.setFocus();
        if (way > 1 || !button.hasFocus()) return QTest::mouseClick(&button, Qt::LeftButton);
        QTest::keyClick(&button, way == 0 ? Qt::Key_Space : Qt::Key_Return);
    }
    void clickRow(const char* name, std::size_t row, bool twice = false) {
        auto& list = at<QListWidget>(name);
        QListWidgetItem* item = list.item(static_cast<int>(row));
        list.scrollToItem(item);
        const QPoint place = list.visualItemRect(item).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    }
    // A row by a click, or the next one by an arrow key if one is chosen. Nothing if the key does not move.
    std::optional<std::size_t> chooseRow(const char* name, PlainRoomList& plain) {
        const std::size_t count = plain.rows.size();
        if (count == 0) return std::nullopt;
        const std::size_t row = below(count);
        const int chosen = plain.row();
        if (chosen < 0 || below(3) != 0) {
            clickRow(name, row);
            plain.chosen = plain.rows[row];
            return row;
        }
        const bool down = below(2) == 0;
        QTest::keyClick(&at(name), down ? Qt::Key_Down : Qt::Key_Up);
        const int after = std::clamp(chosen + (down ? 1 : -1), 0, static_cast<int>(count) - 1);
        if (after == chosen) return std::nullopt;
        plain.chosen = plain.rows[static_cast<std::size_t>(after)];
        return static_cast<std::size_t>(after);
    }
    // Typed key by key, pasted, or put in at once: the text takes the place of what stands there.
    QString enter(QLineEdit& box, const QString& text) {
        box.selectAll();
        const std::size_t way = below(3);
        const bool keys = std::ranges::all_of(
            text, [](QChar each) { return each.unicode() >= ' ' && each.unicode() < 0x7F; });
        if (way == 0 && keys && !text.isEmpty() && text.size() < 40) {
            QTest::keyClicks(&box, text);
        } else if (way == 1 && !text.isEmpty()) {
            QApplication::clipboard()->setText(text);
            QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        } else {
            box.insert(text);
        }
        box.setFocus();
        if (below(4) == 0 && box.hasFocus()) QTest::keyClick(&box, Qt::Key_Return);
        return text.left(box.maxLength());
    }

    QString anyText() {
        return oneOf<QString>({"Ann",
                               "a, b and \"c, d\" e",
                               "\"quoted, all\" of it",
                               "a/b",
                               "a\\b",
                               "..",
                               ".",
                               "",
                               " ",
                               "  in  between  ",
                               "Rock & Roll &&",
                               "[*]",
                               "x[*]y[*][*]",
                               "<b>bold</b><img src=/etc/passwd>",
                               "%1 %n \\n",
                               "it's 100% \"good\"",
                               QString::fromUtf8("caf\xC3\xA9 \xE2\x82\xAC"),
                               QString::fromUtf8("\xC3\x83\xC2\xA9"),
                               QString::fromUtf8("\xD0\xA3\xD1\x80\xD0\xBE\xD0\xBA, \xD0\xB4\xD0\xB0"),
                               QString::fromUtf8("\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8E\xB8"),
                               QString::fromUtf8("hard\xC2\xA0"
                                                 "blank"),
                               "two\nlines",
                               "two\r\nlines\r\n",
                               "a\tb",
                               QString(300, 'n'),
                               QString(5000, 'w') + ", end",
                               QString(40'000, 'h')});
    }
    std::string anyBytes() {
        return oneOf<std::string>({"",
                                   "\r\n",
                                   "one",
                                   "one\r\n",
                                   "one\n",
                                   "one\rtwo\rthree",
                                   "http://a.example/1,2\r\nfree, \"good\"\r\nthird\r\n",
                                   "\"a, b\" c\r\n",
                                   "\"open\r\nend",
                                   "  lead, cut",
                                   ",",
                                   "\r\n\r\nthree",
                                   "caf\xE9\r\ncaf\xE9",
                                   "caf\xC3\xA9\r\n\xE9",
                                   "\xD0\xA3\xD1\x80\r\n\xD0\xA3",
                                   "\x80\x9F\xFF\r\n",
                                   "<i>x</i>\r\n<br>",
                                   std::string("n\0l\r\nb", 6),
                                   "say \"x, y\" z, w\r\n",
                                   std::string(200'000, 'a') + "\r\n" + std::string(200'000, 'b'),
                                   "a\n\nb"});
    }

    // Files from outside.
    std::filesystem::path place() const { return folder() / roomName_; }
    void make(const std::string& name, const std::string& bytes) {
        clear(name);
        std::ofstream(place() / name, std::ios::binary | std::ios::trunc) << bytes;
        room.entries[name] = {PlainRoom::Kind::File, bytes};
    }
    void makeOther(const std::string& name) {
        clear(name);
        const bool pipe = below(2) == 0;
        if (pipe)
            mkfifo((place() / name).c_str(), 0600);
        else
            std::filesystem::create_directory(place() / name);
        room.entries[name] = {pipe ? PlainRoom::Kind::Pipe : PlainRoom::Kind::Folder, ""};
    }
    void clear(const std::string& name) {
        std::filesystem::remove_all(place() / name);
        room.entries.erase(name);
    }
    void changeFiles(const std::vector<std::string>& names) {
        const std::string name =
            below(3) == 0 || room.entries.empty()
                ? oneOf(names)
                : std::next(room.entries.begin(), static_cast<std::ptrdiff_t>(below(room.entries.size())))
                      ->first;
        told = "outside " + name;
        if (!room.there) return;
        const std::size_t way = below(8);
        if (way == 0) return makeOther(name);
        if (way < 3) return clear(name);
        make(name, anyBytes());
    }
    // The folder is gone, or a file stands in its place.
    void loseFolder() {
        std::filesystem::remove_all(place());
        room = {};
        blocked = below(2) == 0;
        if (blocked) std::ofstream(place()) << "x";
        told = blocked ? "a file in the folder's place" : "no folder";
    }
    void giveFolderBack() {
        if (room.there) return;
        std::filesystem::remove_all(place());
        std::filesystem::create_directory(place());
        room.there = true;
        blocked = false;
    }
    // Now and then no byte can be written meanwhile.
    template <class Act>
    void onDisk(Act act) {
        room.full = below(6) == 0;
        if (!room.full) return act();
        told += " on a full disk";
        const FileSizeLimit limit(0);
        act();
    }

    // What is on both sides, as text.
    static QString rowsText(const PlainRoomList& list) {
        QString text;
        for (const std::string& row : list.rows)
            text += textOf(row) + "|";
        return text + " chosen " + QString::number(list.row());
    }
    QString rowsText(const char* name) const {
        const auto& list = at<QListWidget>(name);
        QString text;
        for (int row = 0; row < list.count(); ++row)
            text += list.item(row)->text() + "|";
        const bool none = list.selectedItems().isEmpty();
        return text + " chosen " + QString::number(none ? -1 : list.row(list.selectedItems().first()));
    }
    // Of all labels, buttons and frames but these.
    QString captions(const QStringList& without) const {
        QStringList all;
        for (const QLabel* label : window->template findChildren<QLabel*>())
            if (!without.contains(label->objectName())) all.append(label->text());
        for (const QAbstractButton* button : window->template findChildren<QAbstractButton*>())
            all.append(button->text());
        for (const QGroupBox* box : window->template findChildren<QGroupBox*>())
            all.append(box->title());
        return captionText(all);
    }
    static QString captionText(QStringList all) {
        all.removeAll("");
        all.sort();
        return all.join("|");
    }
    QString titleShown() const { return window->windowHandle()->title(); }
    QString askedText(const std::vector<PlainAsked>& plain) {
        static const char* const icons[] = {"none", "information", "question", "exclamation", "critical"};
        QString text;
        std::size_t index = 0;
        for (const auto& [box, answer] : boxes.take()) {
            const bool any = index < plain.size() && plain[index].icon == "any";
            ++index;
            const bool question = box.buttons == QList<BoxAnswer>{BoxAnswer::Yes, BoxAnswer::No};
            const bool ok = box.buttons == QList<BoxAnswer>{BoxAnswer::Ok};
            text += plainText({box.title, box.text, any ? "any" : icons[static_cast<std::size_t>(box.icon)],
                               question ? "yes no"
                               : ok     ? "ok"
                                        : "others"});
        }
        return text;
    }
    static QString plainText(const PlainAsked& asked) {
        return "[" + asked.title + "][" + asked.text + "][" + asked.icon + "][" + asked.buttons + "]\n";
    }
    static QString plainText(const std::vector<PlainAsked>& plain) {
        QString text;
        for (const PlainAsked& asked : plain)
            text += plainText(asked);
        return text;
    }
    static ::testing::AssertionResult same(const char* what, const QString& real, const QString& plain) {
        if (real == plain) return ::testing::AssertionSuccess();
        qsizetype from = 0;
        while (from < real.size() && from < plain.size() && real[from] == plain[from])
            ++from;
        from = std::max<qsizetype>(0, from - 30);
        return ::testing::AssertionFailure()
               << what << " differs at " << from << "\nthe window: " << real.mid(from, 300).toStdString()
               << "\nthe model:  " << plain.mid(from, 300).toStdString();
    }
    ::testing::AssertionResult sameRoom() {
        return same("the folder", QString::fromLatin1(PlainRoom::of(place()).described()),
                    QString::fromLatin1(room.described()));
    }

    std::mt19937 chance;
    std::string told; // what the act under way is
    PlainRoom room;
    bool blocked = false; // a file stands in the folder's place
    std::unique_ptr<Window> window;

  private:
    std::string roomName_;
};

} // namespace tabrova::testing
