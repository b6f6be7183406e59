#include "forms/picture_button.h"

#include <QKeyEvent>
#include <QPainter>

#include <utility>

namespace tabrova {

namespace {

constexpr int Margin = 4; // around the picture, for the focus mark
constexpr qreal Rounding = 3;
constexpr int HoverOpacity = 28; // of 255
constexpr int DownOpacity = 72;
constexpr qreal DisabledOpacity = 0.35;

qreal scaleOf(const QPainter& painter) { return painter.deviceTransform().m11(); }

// Moves the picture to a whole pixel of the screen, where it may stand between two at a scale of one and a
// half.
void moveToWholePixel(QPainter& painter, QPoint place) {
    const QPointF exact = painter.deviceTransform().map(QPointF(place));
    painter.translate((exact.toPoint() - exact) / scaleOf(painter));
}

} // namespace

PictureButton::PictureButton(const QString& name, QSize size, QWidget* parent) : QAbstractButton(parent) {
    setObjectName(name);
    setIconSize(size);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (Click) Click();
        if (MouseDown && !mouseIsDown_) MouseDown();
    });
}

PictureButton::PictureButton(const QString& name, const QIcon& picture, QSize size, QWidget* parent)
    : PictureButton(name, size, parent) {
    setPicture(picture);
}

PictureButton::PictureButton(const QString& name, PaintPicture picture, QSize size, QWidget* parent)
    : PictureButton(name, size, parent) {
    setPicture(std::move(picture));
}

void PictureButton::setPicture(const QIcon& picture) {
    picture_ = nullptr;
    setIcon(picture);
}

void PictureButton::setPicture(PaintPicture picture) {
    picture_ = std::move(picture);
    update();
}

QSize PictureButton::sizeHint() const { return iconSize() + QSize(2 * Margin, 2 * Margin); }

// Space is the toolkit's.
void PictureButton::keyPressEvent(QKeyEvent* event) {
    const bool entered = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!entered) return QAbstractButton::keyPressEvent(event);
    if (!event->isAutoRepeat()) click();
}

void PictureButton::mousePressEvent(QMouseEvent* event) {
    QAbstractButton::mousePressEvent(event);
    mouseIsDown_ = true;
    if (MouseDown) MouseDown();
}

void PictureButton::mouseReleaseEvent(QMouseEvent* event) {
    QAbstractButton::mouseReleaseEvent(event);
    mouseIsDown_ = false;
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter);
    paintPicture(painter);
    if (hasFocus()) paintFocusMark(painter);
}

void PictureButton::paintGround(QPainter& painter) const {
    if (!isEnabled() || !(isOn() || underMouse())) return;
    QColor ground = palette().color(foregroundRole());
    ground.setAlpha(isOn() ? DownOpacity : HoverOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(rect(), Rounding, Rounding);
}

void PictureButton::paintPicture(QPainter& painter) const {
    const QSize margins = size() - iconSize();
    const QRect place(QPoint(margins.width() / 2, margins.height() / 2), iconSize());
    painter.save();
    moveToWholePixel(painter, place.topLeft());
    if (picture_) {
        if (!isEnabled()) painter.setOpacity(DisabledOpacity);
        picture_(painter, place, isOn());
    } else {
        painter.drawPixmap(place.topLeft(), icon().pixmap(iconSize(), scaleOf(painter),
                                                          isEnabled() ? QIcon::Normal : QIcon::Disabled,
                                                          isOn() ? QIcon::On : QIcon::Off));
    }
    painter.restore();
}

// A line of the text's colour between two of the ground's: whatever is below, one of them is seen.
void PictureButton::paintFocusMark(QPainter& painter) const {
    const QRectF mark = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(backgroundRole()), 3));
    painter.drawRoundedRect(mark, Rounding, Rounding);
    painter.setPen(QPen(palette().color(foregroundRole()), 1));
    painter.drawRoundedRect(mark, Rounding, Rounding);
}

} // namespace tabrova
