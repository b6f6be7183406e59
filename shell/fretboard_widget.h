// `picFretboard`, the virtual fretboard: shows its surface and passes the mouse on.
#pragma once

#include "shell/surface_widget.h"

namespace tabrova {

class FretboardWidget : public SurfaceWidget {
  public:
    struct Handlers {
        std::function<void(int qtButton, int x, int y)> mouseDown;
        std::function<void()> doubleClick;
    };

    FretboardWidget(const Surface& surface, QWidget* parent);
    void setHandlers(Handlers handlers) { handlers_ = std::move(handlers); }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    Handlers handlers_;
};

} // namespace tabrova
