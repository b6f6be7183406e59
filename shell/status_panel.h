// One panel of a status bar: a line of text that is pressed like a button, by mouse or by keyboard.
#pragma once

#include "forms/elided_label.h"

#include <functional>

namespace tabrova {

class StatusPanel : public ElidedLabel {
  public:
    StatusPanel(const QString& name, QWidget* parent);

    std::function<void()> pressed;
    // The keyboard goes back to where it belongs.
    std::function<void()> left;

    // As wide as its text, or less.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tabrova
