// The sixteen rows of the drum machine: a drum, its volume and sixteen steps each, in groups of four. Steps
// are pressed by a click, and all that the mouse is then drawn over become like the first; or the arrow keys
// go from step to step, and Space presses one.
#pragma once

#include "tools/drum_machine/drum_song.h"
#include "tools/drum_machine/step_button.h"

#include <QWidget>

#include <functional>
#include <optional>

class QComboBox;
class QSlider;

namespace tabrova {

// May be outside the grid.
struct StepPlace {
    int row;
    int step;
};

class DrumRowsView : public QWidget {
  public:
    explicit DrumRowsView(QWidget* parent);

    std::function<void(int row, int step)> Click;
    std::function<void(int row, int drum)> lstInstrument_Click;
    std::function<void(int row, int volume)> sldVolume_Change;

    void showStep(int row, int step, bool set);
    // The step that sounds; -1 for none.
    void showSounding(int step);
    // Raises no change. `drum` -1: none.
    void showRow(int row, int drum, int volume);
    void setRowsEnabled(bool enabled);
    // What the drums, the volumes and the steps are, to a screen reader.
    void setWords(const QString& instrument, const QString& volume);

    StepButton* stepWithTabKey() const { return current_; }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    StepButton& button(int row, int step) const;
    StepButton* buttonAt(QPoint place) const;
    // The step nearest to the place; outside the grid, the one that would stand there if it went on.
    StepPlace stepAt(QPoint place) const;
    void drawTo(StepPlace to);
    void writeStep(StepButton& step, bool set);
    void takeTabKey(StepButton& step);

    std::array<QComboBox*, DrumRows> lstInstrument_;
    std::array<QSlider*, DrumRows> sldVolume_;
    std::array<std::array<StepButton*, PatternSteps>, DrumRows> steps_;
    StepButton* current_ = nullptr;    // the Tab key comes to this one
    std::optional<StepPlace> drawnTo_; // while the mouse is held down
    bool draws_ = false;               // what the mouse writes
    int sounding_ = -1;
};

} // namespace tabrova
