// `picFretboard`, the virtual fretboard: shows its surface and passes the mouse on.
#pragma once

#include "editing/editor.h"
#include "shell/surface_widget.h"

namespace tabrova {

class FretboardWidget : public SurfaceWidget {
  public:
    FretboardWidget(Surface& surface, QWidget* parent);

    std::function<void(MouseButton button, int x, int y)> mouseDown;
    std::function<void()> doubleClick;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace tabrova
