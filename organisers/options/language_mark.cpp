#include "organisers/options/language_mark.h"

#include <QPainter>

namespace tabrova {

namespace {

constexpr int TickSize = 12; // pixels
constexpr int FinestScale = 3;

QPixmap tick(const QColor& color) {
    QPixmap picture(TickSize * FinestScale, TickSize * FinestScale);
    picture.setDevicePixelRatio(FinestScale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF corners[] = {{2, 6.5}, {5, 9.5}, {10, 3}};
    painter.drawPolyline(corners, 3);
    return picture;
}

} // namespace

void LanguageMark::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = {TickSize, TickSize};
    if (language_.isEmpty() || index.data().toString() != language_) return;
    const bool chosen = option->state & QStyle::State_Selected;
    const QPalette::ColorRole role = chosen ? QPalette::HighlightedText : QPalette::Text;
    option->icon = QIcon(tick(option->palette.color(role)));
    option->font.setBold(true);
    option->fontMetrics = QFontMetrics(option->font);
}

} // namespace tabrova
