#include "tools/drum_machine/pattern_strip.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace tabrova {

namespace {

constexpr QRgb SoundingColor = 0xFFF08C00;
constexpr int FullBar = 32;      // steps set, for the highest bar
constexpr int LeastBar = 5;      // pixels, for a single step
constexpr int MarkRoom = 7;      // below the bars, for the mark of the pattern that sounds
constexpr int EmptyOpacity = 70; // of 255

} // namespace

PatternStrip::PatternStrip(const QSlider& slider, QWidget* parent) : QWidget(parent), slider_(slider) {
    setObjectName("picPatterns");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PatternStrip::showSteps(int pattern, int set) {
    int& shown = steps_[static_cast<std::size_t>(pattern)];
    if (shown == set) return;
    shown = set;
    update();
}

void PatternStrip::showChosen(int pattern) {
    chosen_ = pattern;
    update();
}

void PatternStrip::showSounding(int pattern) {
    if (pattern == sounding_) return;
    sounding_ = pattern;
    update();
}

// The slider's handle goes from one edge to the other with its middle half its length inside.
QRectF PatternStrip::barPlace(int pattern) const {
    QStyleOptionSlider option;
    option.initFrom(&slider_);
    const int handle = slider_.style()->pixelMetric(QStyle::PM_SliderLength, &option, &slider_);
    const qreal step = (width() - handle) / static_cast<qreal>(SongPatterns - 1);
    return {handle / 2.0 + step * (pattern - 0.5), 0, step, static_cast<qreal>(height())};
}

int PatternStrip::patternAt(qreal x) const {
    const QRectF first = barPlace(0);
    const auto pattern = static_cast<int>(std::floor((x - first.left()) / first.width()));
    return std::clamp(pattern, 0, SongPatterns - 1);
}

bool PatternStrip::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const int pattern = patternAt(help->pos().x());
    const int set = steps_[static_cast<std::size_t>(pattern)];
    QToolTip::showText(help->globalPos(), QString("%1 – %2 %3").arg(pattern).arg(word_).arg(set), this);
    return true;
}

void PatternStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && chosen) chosen(patternAt(event->position().x()));
}

void PatternStrip::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) && chosen) chosen(patternAt(event->position().x()));
}

void PatternStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QColor ink = palette().color(isEnabled() ? QPalette::WindowText : QPalette::Mid);
    QColor faint = ink;
    faint.setAlpha(EmptyOpacity);
    const qreal bottom = height() - MarkRoom;
    for (int pattern = 0; pattern < SongPatterns; ++pattern) {
        const QRectF place = barPlace(pattern).adjusted(0.5, 0, -0.5, 0);
        const int set = steps_[static_cast<std::size_t>(pattern)];
        const qreal high = set == 0 ? 2 : LeastBar + (bottom - LeastBar) * std::min(set, FullBar) / FullBar;
        const QColor color = pattern == chosen_ ? palette().color(QPalette::Highlight)
                             : set == 0         ? faint
                                                : ink;
        const qreal shownHigh = pattern == chosen_ ? std::max<qreal>(high, LeastBar) : high;
        painter.fillRect(QRectF(place.left(), bottom - shownHigh, place.width(), shownHigh), color);
        if (pattern != sounding_) continue;
        painter.setBrush(QColor(SoundingColor));
        const qreal x = place.center().x();
        painter.drawPolygon(QPolygonF({{x, bottom + 1}, {x - 4, height() - 0.5}, {x + 4, height() - 0.5}}));
    }
}

} // namespace tabrova
