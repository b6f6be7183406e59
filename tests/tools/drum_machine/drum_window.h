// The drum machine's window on a workbench, and its controls by their names.
#pragma once

#include "tests/tools/sent_bytes.h"
#include "tests/workbench/tool_bench.h"
#include "tools/drum_machine/drum_rows.h"
#include "tools/drum_machine/frmDrumMachine.h"
#include "tools/drum_machine/pattern_strip.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

namespace tabrova::testing {

class DrumWindow : public ToolBench {
  protected:
    void open() {
        form = std::make_unique<frmDrumMachine>(context, nullptr);
        form->Form_Load();
        form->show();
        QApplication::processEvents();
    }
    template <class Control = QWidget>
    Control& control(const QString& name) {
        auto* found = form->findChild<Control*>(name);
        if (!found) throw std::runtime_error("no control " + name.toStdString());
        return *found;
    }
    template <class Control = QWidget>
    Control& control(const char* array, int index) {
        return control<Control>(QString("%1(%2)").arg(array).arg(index));
    }
    QAbstractButton& step(int row, int step) {
        static const char* const arrays[] = {"cmdTrack0",  "cmdTrack1",  "cmdTrack2",  "cmdTrack3",
                                             "cmdTrack4",  "cmdTrack5",  "cmdTrack6",  "cmdTrack7",
                                             "cmdTrack8",  "cmdtrack9",  "cmdTrack10", "cmdtrack11",
                                             "cmdtrack12", "cmdtrack13", "cmdtrack14", "cmdtrack15"};
        return control<QAbstractButton>(arrays[row], step);
    }
    void press(const char* button) { QTest::mouseClick(&control(button), Qt::LeftButton); }
    void pressStep(int row, int at) { QTest::mouseClick(&step(row, at), Qt::LeftButton); }
    std::string color(int row, int at) {
        QWidget& button = step(row, at);
        return button.palette().color(button.backgroundRole()).name().toStdString();
    }
    // The steps that are blue, by their places.
    std::vector<std::pair<int, int>> blue() {
        std::vector<std::pair<int, int>> places;
        for (int row = 0; row < DrumRows; ++row)
            for (int at = 0; at < PatternSteps; ++at) {
                const std::string shown = color(row, at);
                if (shown == "#12378f") places.emplace_back(row, at);
                if (shown != "#12378f" && shown != "#ffffff") places.emplace_back(-1, -1);
            }
        return places;
    }
    using Places = std::vector<std::pair<int, int>>;
    void setPattern(int pattern) { control<QSlider>("sldPattern").setValue(pattern); }
    bool tick() { return timers.timers()["tmrplayback"]->fire(); }
    Sent played() {
        tick();
        return sentBytes(midi);
    }
    std::string file(const char* name) const { return (folder() / name).string(); }

    std::unique_ptr<frmDrumMachine> form;
};

} // namespace tabrova::testing
