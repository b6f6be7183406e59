// The chord as it is written: whole notes on a small staff, and its frets as tablature beside it. The heads
// and the signs are those of the notation above the page.
#pragma once

#include "tools/chord_manager/chord_calculator.h"

#include <QImage>
#include <QWidget>

class QLabel;

namespace tabrova {

class ChordStaff : public QWidget {
  public:
    explicit ChordStaff(QWidget* parent);

    void showChord(const ChordDisplay& display);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void makeStaffMarks();
    void makeFrets();
    void paintStaff(QPainter& painter) const;
    void paintTablature(QPainter& painter) const;

    QImage clef_;
    std::array<QWidget*, ChordNotes> staffMarks_; // by note index
    std::array<QLabel*, ChordStrings> frets_;
};

} // namespace tabrova
