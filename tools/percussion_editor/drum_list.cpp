#include "tools/percussion_editor/drum_list.h"

#include "sound/drum_names.h"

#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace tabrova {

namespace {

constexpr int TextMargin = 5;
constexpr int LineRoom = 4;
constexpr int LeastStretch = 80; // percent

// The letters of a name that is too wide are pressed together a little before its end is cut.
QFont narrowed(QFont font, const QString& text, int width) {
    const int needed = QFontMetrics(font).horizontalAdvance(text);
    if (needed > width) font.setStretch(std::max(LeastStretch, width * 100 / needed));
    return font;
}

class DrumDelegate : public QStyledItemDelegate {
  public:
    explicit DrumDelegate(DrumList& list) : QStyledItemDelegate(&list), list_(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool marked = list_.markedDrum() == index.row();
        const QPalette& colors = option.palette;
        const auto group = (option.state & QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
        painter->save();
        if (marked) painter->fillRect(option.rect, colors.color(group, QPalette::Highlight));
        // Where the keyboard is, the row may not be chosen yet.
        const bool chosen = option.state & QStyle::State_Selected;
        if (chosen || (option.state & QStyle::State_HasFocus)) {
            const QColor frame =
                colors.color(group, marked ? QPalette::HighlightedText : QPalette::Highlight);
            painter->setPen(QPen(frame, 1, chosen ? Qt::SolidLine : Qt::DotLine));
            painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
        }
        painter->setPen(colors.color(group, marked ? QPalette::HighlightedText : QPalette::Text));
        const QRect place = option.rect.adjusted(TextMargin, 0, -2, 0);
        const QString text = index.data().toString();
        const QFont font = narrowed(option.font, text, place.width());
        painter->setFont(font);
        painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
                          QFontMetrics(font).elidedText(text, Qt::ElideRight, place.width()));
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return list_.gridSize() - QSize(1, 1);
    }

  private:
    const DrumList& list_;
};

} // namespace

DrumList::DrumList(QWidget* parent) : ListBox("List1", parent) {
    for (int drum = 0; drum < DrumCount; ++drum)
        addItem(QString("%1. %2").arg(drum + 1).arg(DrumNames[static_cast<std::size_t>(drum)]));
    for (int drum = 0; drum < DrumCount; ++drum)
        item(drum)->setToolTip(item(drum)->text());
    setFlow(QListView::TopToBottom);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setItemDelegate(new DrumDelegate(*this));
    placeRows();
}

void DrumList::setColumns(int columns) {
    columns_ = columns;
    placeRows();
}

void DrumList::resizeEvent(QResizeEvent* event) {
    placeRows();
    ListBox::resizeEvent(event);
}

void DrumList::placeRows() {
    setGridSize({viewport()->width() / columns_, fontMetrics().height() + LineRoom});
}

void DrumList::markDrum(std::optional<int> drum) {
    if (drum == marked_) return;
    marked_ = drum;
    viewport()->update();
}

} // namespace tabrova
