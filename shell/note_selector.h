// `picNoteSelector`, the fret palette: three rows of ten cells that a right click on the page opens.
#pragma once

#include "shell/highlight_shape.h"
#include "shell/panel_zoom.h"
#include "tabview/surface.h"

#include <QFrame>

#include <functional>
#include <optional>

class QLabel;
class QPainter;

namespace tabrova {

class NoteSelector : public QFrame {
  public:
    explicit NoteSelector(QWidget* parent);

    // A click: the place of the highlight.
    std::function<void(const Rect& highlight)> chosen;
    // The palette closes by its button.
    std::function<void()> closed;

    // Shows the palette there on the page, its highlight parked outside the cells.
    void openAt(const Rect& place);
    void setZoom(int percent);
    QSize unzoomedSize() const { return zoom_->unzoomedSize(); }

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void DrawNoteSelector(QPainter& surface) const;
    void moveHighlight(const Rect& place);
    void moveToPlace();

    Rect highlight_;
    Rect place_; // on the page
    HighlightShape* shpNoteSelector_;
    std::optional<PanelZoom> zoom_; // as soon as the palette has its parts
};

} // namespace tabrova
