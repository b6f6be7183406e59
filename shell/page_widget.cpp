#include "shell/page_widget.h"

#include "shell/key_mapping.h"

#include <QKeyEvent>

#include <utility>

namespace tabrova {

PageWidget::PageWidget(Surface& surface, const PageObjects& ofPage, QWidget* parent)
    : SurfaceWidget("picDocument", surface, parent), cursor_(ofPage) {
    setFocusPolicy(Qt::StrongFocus);
    objects = [this] { return cursorRects(); };
}

std::vector<FloatingRect> PageWidget::cursorRects() const {
    const QRgb color = cursor_.color;
    const int width = cursor_.borderWidth;
    std::vector<FloatingRect> rects;
    if (cursor_.vLine1Visible)
        rects.push_back(
            {{cursor_.vLine1.x1, cursor_.vLine1.y1, width, cursor_.vLine1.y2 - cursor_.vLine1.y1}, color});
    // A wider border grows outwards, so that the glyph in the cell stays whole.
    const Rect& cell = cursor_.nCursor;
    const int grown = width - 1;
    const Rect border = {cell.left - grown, cell.top - grown, cell.width + 2 * grown,
                         cell.height + 2 * grown};
    rects.push_back({{border.left, border.top, border.width, width}, color});
    rects.push_back({{border.left, border.bottom() - width, border.width, width}, color});
    rects.push_back({{border.left, border.top, width, border.height}, color});
    rects.push_back({{border.right() - width, border.top, width, border.height}, color});
    return rects;
}

void PageWidget::keyPressEvent(QKeyEvent* event) {
    if (isModifierAlone(*event)) return event->ignore();
    const QString item = placeItemOf(*event);
    if (item.isEmpty() && isCombination(*event)) return event->ignore();
    // A key that is held down from before the page had the keyboard belongs to what had it then.
    if (event->isAutoRepeat() && event->key() != heldKey_) return;
    heldKey_ = event->key();
    if (!item.isEmpty()) return wentTo(item);
    if (event->key() == Qt::Key_Escape) return escaped();
    const KeyPress press = keyPressOf(*event);
    keyDown(press.keyCode, press.shift);
}

void PageWidget::focusOutEvent(QFocusEvent* event) {
    heldKey_ = 0;
    SurfaceWidget::focusOutEvent(event);
}

void PageWidget::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    const QPoint place = pixelAt(*event);
    mouseDown(mouseButtonOf(event->button()), place.x(), place.y());
}

// The second press of a double click is a press like the first.
void PageWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    doubleClick();
}

// One notch of the wheel is one staff, with Control one step of the zoom; fine wheels add up.
void PageWidget::wheelEvent(QWheelEvent* event) {
    constexpr int Notch = 120;
    const bool zooms = event->modifiers() & Qt::ControlModifier;
    if (std::exchange(wheelZooms_, zooms) != zooms) wheelRest_ = 0;
    wheelRest_ += event->angleDelta().y();
    const int notches = wheelRest_ / Notch;
    wheelRest_ -= notches * Notch;
    if (notches != 0) zooms ? zoomed(notches) : scrolled(-notches);
    event->accept();
}

} // namespace tabrova
