// `picDocument`, the tab page: shows its surface with the cursor objects above it, and passes keys and mouse
// on.
#pragma once

#include "editing/editor.h"
#include "shell/surface_widget.h"
#include "tabview/page_geometry.h"

namespace tabrova {

class PageWidget : public SurfaceWidget {
  public:
    PageWidget(Surface& surface, const PageObjects& ofPage, QWidget* parent);

    std::function<void(int keyCode, int shift)> keyDown;
    std::function<void(MouseButton button, int x, int y)> mouseDown;
    std::function<void()> doubleClick;
    std::function<void(int staves)> scrolled;
    std::function<void(int steps)> zoomed;
    std::function<void()> escaped;
    // A key that goes to a place: the menu item that it stands for.
    std::function<void(const QString& item)> wentTo;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    std::vector<FloatingRect> cursorRects() const;

    const PageObjects& cursor_;
    int wheelRest_ = 0;
    bool wheelZooms_ = false;
    int heldKey_ = 0; // the toolkit's number of the key that was pressed last
};

} // namespace tabrova
