// `picBend`: a grid of six by two bends. The arrow keys choose, Enter stores and closes; there is no other
// way out.
#pragma once

#include "shell/highlight_shape.h"

#include <QFrame>

#include <functional>

namespace tabrova {

class BendPanel : public QFrame {
  public:
    explicit BendPanel(QWidget* parent);

    // Enter: the technique code at the highlight.
    std::function<void(int code)> chosen;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintCells(QPainter& painter) const;

    int column_ = 0;
    int row_ = 0;
    HighlightShape* BendCursor_;
};

} // namespace tabrova
