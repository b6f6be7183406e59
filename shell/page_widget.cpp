#include "shell/page_widget.h"

#include "shell/key_mapping.h"

#include <QKeyEvent>
#include <QPainter>

#include <utility>

namespace tabrova {

PageWidget::PageWidget(const Surface& surface, const PageObjects& objects, QWidget* parent)
    : SurfaceWidget("picDocument", surface, parent), objects_(objects) {
    setFocusPolicy(Qt::StrongFocus);
    paintObjects = [this](QPainter& painter) { paintCursor(painter); };
}

void PageWidget::paintCursor(QPainter& painter) const {
    const QColor color(objects_.color);
    const int width = objects_.borderWidth;
    if (objects_.vLine1Visible)
        painter.fillRect(objects_.vLine1.x1, objects_.vLine1.y1, width,
                         objects_.vLine1.y2 - objects_.vLine1.y1, color);
    // A wider border grows outwards, so that the glyph in the cell stays whole.
    const Rect& cell = objects_.nCursor;
    const int grown = width - 1;
    const Rect border = {cell.left - grown, cell.top - grown, cell.width + 2 * grown,
                         cell.height + 2 * grown};
    painter.fillRect(border.left, border.top, border.width, width, color);
    painter.fillRect(border.left, border.bottom() - width, border.width, width, color);
    painter.fillRect(border.left, border.top, width, border.height, color);
    painter.fillRect(border.right() - width, border.top, width, border.height, color);
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
