#include "tools/drum_machine/step_button.h"

#include <QMouseEvent>
#include <QPainter>

namespace tabrova {

namespace {

constexpr QRgb EdgeColor = 0xFF8A8A8A;
constexpr QRgb SoundingColor = 0xFFF08C00;
constexpr qreal SoundingWidth = 3;
constexpr qreal Rounding = 3;

// Of the sixteen arrays of buttons these have their names in small letters.
bool isSmall(int row) { return row == 9 || row >= 11; }

} // namespace

StepButton::StepButton(int row, int step, QWidget* parent) : QAbstractButton(parent), row_(row), step_(step) {
    setObjectName(QString(isSmall(row) ? "cmdtrack%1(%2)" : "cmdTrack%1(%2)").arg(row).arg(step));
    setCheckable(true);
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSet(false);
}

void StepButton::setSet(bool set) {
    setChecked(set);
    const QColor ground(set ? SetStepColor : ClearStepColor);
    if (palette().color(backgroundRole()) == ground) return;
    QPalette colors;
    colors.setColor(backgroundRole(), ground);
    setPalette(colors);
}

void StepButton::setSounding(bool sounding) {
    if (sounding == sounding_) return;
    sounding_ = sounding;
    update();
}

void StepButton::mousePressEvent(QMouseEvent* event) { event->ignore(); }
void StepButton::mouseMoveEvent(QMouseEvent* event) { event->ignore(); }
void StepButton::mouseReleaseEvent(QMouseEvent* event) { event->ignore(); }
void StepButton::keyPressEvent(QKeyEvent* event) { event->ignore(); }
void StepButton::keyReleaseEvent(QKeyEvent* event) { event->ignore(); }

void StepButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF place = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.setPen(QPen(QColor(EdgeColor), 1));
    painter.setBrush(palette().color(backgroundRole()));
    painter.drawRoundedRect(place, Rounding, Rounding);
    painter.setBrush(Qt::NoBrush);
    if (sounding_) {
        painter.setPen(QPen(QColor(SoundingColor), SoundingWidth));
        painter.drawRoundedRect(place, Rounding, Rounding);
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(QColor(isChecked() ? ClearStepColor : SetStepColor), 1.5));
    painter.drawRoundedRect(place.adjusted(4, 4, -4, -4), 1, 1);
}

} // namespace tabrova
