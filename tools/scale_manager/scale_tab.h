// `Picture2`: the notes of the scale as tablature that can be heard, each string's notes behind those of the
// lower one. A click on a note asks for its sound; so do Space and Return on the note that the arrow keys are
// at. The note under the pointer is red.
#pragma once

#include "tools/scale_manager/scale_calculator.h"

#include <QWidget>

#include <functional>

class QLabel;

namespace tabrova {

class ScaleTab : public QWidget {
  public:
    explicit ScaleTab(QWidget* parent);

    void showLabels(const ScaleDisplay& display);
    void blackenLabels();

    // A note was clicked, be its label empty.
    std::function<void(std::size_t string, const QString& fret)> noteClicked;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    static constexpr std::size_t Labels = ScaleStrings * ScaleSlots;

    void click(std::size_t label);
    // To the next label with a note, in the direction of `step`; stays if there is none.
    void moveKeyboard(int step);
    void paintFocusMark(QPainter& painter) const;

    std::array<QLabel*, Labels> labels_; // from the lowest string's first slot
    std::size_t keyboardAt_ = 0;
};

} // namespace tabrova
