// What random acts on a tool's window and on its plain model have in common: chance from a seed, the window's
// controls by their names, and what is on both sides as text.
#pragma once

#include "tests/tools/chord_manager/checked_chord_window.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <fstream>
#include <random>
#include <sstream>

namespace tabrova::testing {

template <class Window>
class RandomWindowActs : public ToolBench, public ::testing::WithParamInterface<unsigned> {
  protected:
    template <class Control = QWidget>
    Control& at(const QString& name) const {
        auto* control = window->template findChild<Control*>(name);
        if (!control) throw std::runtime_error("no control " + name.toStdString());
        return *control;
    }
    template <class Control = QWidget>
    Control& at(const char* array, std::size_t index) const {
        return at<Control>(QString("%1(%2)").arg(array).arg(index));
    }
    void press(const QString& name) { QTest::mouseClick(&at(name), Qt::LeftButton); }
    void clickRow(const char* name, std::size_t row) {
        auto& list = at<QListWidget>(name);
        QListWidgetItem* item = list.item(static_cast<int>(row));
        list.scrollToItem(item);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
    }
    // A row by a click, or the next one by an arrow key if one is chosen. Nothing if the key does not move.
    std::optional<std::size_t> chooseRow(const char* name, std::size_t count, int chosen) {
        if (count == 0) return std::nullopt;
        const std::size_t row = below(count);
        if (chosen < 0 || below(3) != 0) return clickRow(name, row), row;
        const bool down = below(2) == 0;
        QTest::keyClick(&at(name), down ? Qt::Key_Down : Qt::Key_Up);
        const int after = std::clamp(chosen + (down ? 1 : -1), 0, static_cast<int>(count) - 1);
        return after == chosen ? std::nullopt : std::optional(static_cast<std::size_t>(after));
    }
    void comeIntoView(const QString& name) {
        at(name).hide();
        at(name).show();
    }
    void enter(QLineEdit& box, const std::string& text) {
        box.selectAll();
        box.insert(QString::fromStdString(text));
    }

    int chosenRow(const char* name) const {
        const auto& list = at<QListWidget>(name);
        return list.selectedItems().isEmpty() ? -1 : list.row(list.selectedItems().first());
    }
    std::string rowsText(const char* name) const {
        const auto& list = at<QListWidget>(name);
        std::string text;
        for (int row = 0; row < list.count(); ++row)
            text += list.item(row)->text().toStdString() + "|";
        return text + " chosen " + std::to_string(chosenRow(name));
    }
    static std::string rowsText(const PlainList& list) {
        std::string text;
        for (const std::string& row : list.rows)
            text += row + "|";
        return text + " chosen " + std::to_string(list.row());
    }
    std::string timerText(const QString& name) const {
        const ListedTimer& timer = *timers.timers()[name];
        return (timer.timerEnabled() ? "on " : "off ") + std::to_string(timer.timerInterval());
    }
    std::string sentText() {
        std::vector<std::array<int, 3>> bytes;
        for (const ShortMessage& message : midi.take())
            bytes.push_back({message[0], message[1], message[2]});
        return midiText(bytes);
    }
    // A box of the model with the icon "any" may have any.
    std::string askedText() {
        static const char* const icons[] = {"none", "information", "question", "exclamation", "critical"};
        std::vector<PlainBox> asked;
        for (const auto& [box, answer] : boxes.take()) {
            std::string icon = icons[static_cast<std::size_t>(box.icon)];
            if (asked.size() < desk.boxes.size() && desk.boxes[asked.size()].icon == "any") icon = "any";
            const bool question = box.buttons == QList<BoxAnswer>{BoxAnswer::Yes, BoxAnswer::No};
            const bool plain = box.buttons == QList<BoxAnswer>{BoxAnswer::Ok};
            asked.push_back({box.title.toStdString(), box.text.toStdString(), icon,
                             question ? "yes no"
                             : plain  ? "ok"
                                      : "others"});
        }
        return boxText(asked);
    }
    void write(const std::filesystem::path& room, const std::string& name, const std::string& bytes) {
        std::ofstream(folder() / room / name, std::ios::binary | std::ios::trunc) << bytes;
        files[name] = bytes;
    }
    void removeSomeFile(const std::filesystem::path& room) {
        if (files.empty()) return;
        const auto file = std::next(files.begin(), static_cast<std::ptrdiff_t>(below(files.size())));
        std::filesystem::remove(folder() / room / file->first);
        files.erase(file);
    }
    std::string binary(std::size_t bytes) {
        std::string text;
        while (text.size() < bytes)
            if (const auto byte = below(256); byte != '"' && byte > ' ') text += static_cast<char>(byte);
        return text;
    }

    std::size_t below(std::size_t end) { return chance() % end; }
    template <class Value>
    Value oneOf(const std::vector<Value>& values) {
        return values[below(values.size())];
    }
    // One of the acts, each as often as it stands there.
    template <class Acts>
    void doOne(Acts& acts, const std::vector<void (Acts::*)()>& table) {
        (acts.*table[below(table.size())])();
    }

    std::mt19937 chance;
    std::string told; // what the act under way is
    PlainDesk desk;
    PlainFolder files;
    std::unique_ptr<Window> window;
};

} // namespace tabrova::testing
