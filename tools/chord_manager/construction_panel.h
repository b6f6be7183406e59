// The intervals of the chord's type, one box each. The panel with the boxes is longer than its frame and
// slides under it. The boxes only show.
#pragma once

#include "tools/chord_manager/chord_calculator.h"

#include <QFrame>

class QCheckBox;
class QLabel;
class QScrollBar;

namespace tabrova {

class ConstructionPanel : public QFrame {
  public:
    explicit ConstructionPanel(QWidget* parent);

    // 1 checks a box, 0 clears it, 2 greys it; a box takes no other value and stays as it was.
    void showValues(const ChordValues& values);
    // The captions are there, or have changed.
    void arrange();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void layOut();
    void VScroll1_Change(int value);

    QWidget* Picture2_; // what lies in the frame
    QLabel* Label11_;
    QWidget* Picture3_;
    QScrollBar* VScroll1_;
    std::array<QCheckBox*, ChordIntervals> cCheck_;
};

} // namespace tabrova
