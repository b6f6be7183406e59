// The chord manager's window on a workbench without a main window, and its controls by their names.
#pragma once

#include "tests/workbench/tool_bench.h"
#include "tools/chord_manager/frmChordWizard.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <fstream>

namespace tabrova::testing {

class ChordWindow : public ToolBench {
  protected:
    frmChordWizard& open() {
        form = std::make_unique<frmChordWizard>(context, nullptr);
        form->Form_Load();
        form->show();
        QApplication::processEvents();
        return *form;
    }
    // As the table of windows does it.
    void close() {
        form->Form_Unload();
        form.reset();
    }

    template <class Control = QWidget>
    Control& control(const QString& name) {
        auto* found = form->findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }
    QString text(const char* label) { return control<QLabel>(label).text(); }
    QString title() { return text("lblTitle"); }
    bool shown(const QString& name) { return !control(name).isHidden(); }

    // A click with the mouse on the row with this text.
    void click(const char* list, const QString& row) {
        auto& rows = control<QListWidget>(list);
        const auto found = rows.findItems(row, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << row.toStdString();
        rows.scrollToItem(found.first());
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(found.first()).center());
    }
    void click(const char* button) { QTest::mouseClick(&control(button), Qt::LeftButton); }
    void choose(const char* box, int row) {
        auto& combo = control<QComboBox>(box);
        combo.setCurrentIndex(row);
        emit combo.activated(row);
    }
    void check(const char* box) { control<QCheckBox>(box).click(); }
    QStringList rows(const char* list) {
        QStringList texts;
        auto& found = control<QListWidget>(list);
        for (int row = 0; row < found.count(); ++row)
            texts.append(found.item(row)->text());
        return texts;
    }

    // The frets from the lowest string, "-" for an empty text.
    QString frets() {
        QString all;
        for (const ChordStringRow& row : ChordStringTable)
            all += text(row.fretText).isEmpty() ? "-" : text(row.fretText);
        return all;
    }
    void enter(const QString& frets) {
        for (std::size_t string = 0; string < ChordStrings; ++string)
            control<QLineEdit>(ChordStringTable[string].entry)
                .setText(frets.mid(static_cast<qsizetype>(string), 1).trimmed());
    }

    // What was sent, in words: "AllOff", "Off14", "On 40" of the tools' channel, else the bytes.
    Log sent() {
        Log words;
        int quiet = 0;
        for (const ShortMessage& message : midi.take()) {
            const bool guitar = message[0] >= 0xB0 && message[0] <= 0xB8;
            if (guitar && message[1] == 0x7B) ++quiet;
            if (guitar && (message[1] == 0x78 || message[1] == 0x7B)) {
                if (quiet == 9) words.emplace_back("AllOff");
                if (quiet == 9) quiet = 0;
            } else if (message[0] == 0xBE && message[1] == 0x7B) {
                words.emplace_back("Off14");
            } else if (message[0] == 0x9E && message[2] == 127) {
                words.push_back("On " + std::to_string(message[1]));
            } else if (!(message[0] == 0xBE && message[1] == 0x78)) {
                words.push_back(std::to_string(message[0]) + " " + std::to_string(message[1]) + " " +
                                std::to_string(message[2]));
            }
        }
        return words;
    }
    bool fire(const char* timer) { return timers.timers()[timer]->fire(); }
    bool enabled(const char* timer) { return timers.timers()[timer]->timerEnabled(); }

    void file(const std::filesystem::path& place, const std::string& bytes) {
        std::filesystem::create_directories((folder() / place).parent_path());
        std::ofstream(folder() / place, std::ios::binary) << bytes;
    }
    std::string bytesOf(const std::filesystem::path& place) {
        std::ifstream input(folder() / place, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }

    std::unique_ptr<frmChordWizard> form;
};

} // namespace tabrova::testing
