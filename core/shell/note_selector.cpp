#include "core/shell/note_selector.h"

#include <QFontMetrics>
#include <QPainter>
#include <QToolButton>

namespace tabrova {

namespace {

constexpr int PaletteWidth = 228;
constexpr int PaletteHeight = 82;
constexpr int ParkedLeft = 300;
constexpr int FretsInRow = 10;
constexpr int FretCount = 30;

// Prints at a position: its left and the top of the text.
void PrintAt(QPainter& surface, int x, int y, const QString& text) {
    surface.drawText(x, y + surface.fontMetrics().ascent(), text);
}

} // namespace

NoteSelector::NoteSelector(QWidget* parent) : QFrame(parent), shpNoteSelector_{ParkedLeft, 18, 20, 18} {
    setObjectName("picNoteSelector");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setFixedSize(PaletteWidth, PaletteHeight);
    auto* close = new QToolButton(this);
    close->setObjectName("Image1");
    close->setText(QStringLiteral("\u00D7"));
    close->setToolTip(tr("Close"));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    close->setGeometry(PaletteWidth - 20, 2, 18, 16);
    connect(close, &QToolButton::clicked, this, [this] { closed(); });
    hide();
}

void NoteSelector::openAt(const Rect& place) {
    shpNoteSelector_.left = ParkedLeft;
    move(place.left, place.top);
    show();
    raise();
    update();
}

void NoteSelector::DrawNoteSelector(QPainter& surface) const {
    for (int fret = 0; fret < FretCount; ++fret) {
        const int row = fret / FretsInRow;
        const int indent = row == 0 ? 7 : 4;
        PrintAt(surface, indent + 20 * (fret % FretsInRow), 20 + 20 * row, QString::number(fret));
    }
    PrintAt(surface, 207, 60, "X");
}

void NoteSelector::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    QFont small = font();
    small.setPixelSize(12);
    painter.setFont(small);
    painter.setPen(palette().color(QPalette::WindowText));
    DrawNoteSelector(painter);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(shpNoteSelector_.left, shpNoteSelector_.top, shpNoteSelector_.width,
                     shpNoteSelector_.height);
}

} // namespace tabrova
