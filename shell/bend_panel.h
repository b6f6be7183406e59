// `picBend`: a grid of six by two bends. The arrow keys choose, Enter stores and closes; there is no other
// way out.
#pragma once

#include "shell/highlight_shape.h"
#include "shell/panel_zoom.h"

#include <QFrame>

#include <functional>
#include <optional>

namespace tabrova {

class BendPanel : public QFrame {
  public:
    explicit BendPanel(QWidget* parent);

    void setZoom(int percent);
    QSize unzoomedSize() const { return zoom_->unzoomedSize(); }

    // Enter: the technique code at the highlight.
    std::function<void(int code)> chosen;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void showHighlight();
    void paintCells(QPainter& painter) const;

    int column_ = 0;
    int row_ = 0;
    HighlightShape* BendCursor_;
    std::optional<PanelZoom> zoom_; // as soon as the panel has its parts
};

} // namespace tabrova
