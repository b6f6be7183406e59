#include "shell/note_selector.h"

#include "editing/fret_palette.h"

#include <QFontMetrics>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

namespace tabrova {

namespace {

constexpr int PaletteWidth = 228;
constexpr int PaletteHeight = 82;
constexpr int FretsInRow = 10;
constexpr int FretCount = 30;

// Prints at a position: its left and the top of the text.
void PrintAt(QPainter& surface, int x, int y, const QString& text) {
    surface.drawText(x, y + surface.fontMetrics().ascent(), text);
}

// The toolkit has no room for a widget whose right edge is past the numbers' range.
int placeForWidget(int place) { return std::clamp(place, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX); }

} // namespace

NoteSelector::NoteSelector(QWidget* parent) : QFrame(parent), highlight_(ParkedPaletteHighlight) {
    setObjectName("picNoteSelector");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setMouseTracking(true);
    setFixedSize(PaletteWidth, PaletteHeight);
    shpNoteSelector_ = new HighlightShape("shpNoteSelector", this);
    moveHighlight(ParkedPaletteHighlight);
    auto* title = new QLabel(this);
    title->setObjectName("lblToolTip2(3)");
    title->setAttribute(Qt::WA_TransparentForMouseEvents);
    QFont small = title->font();
    small.setPixelSize(11);
    title->setFont(small);
    title->setGeometry(1, 2, PaletteWidth - 24, 15);
    auto* close = new QToolButton(this);
    close->setObjectName("Image1");
    close->setText(QStringLiteral("\u00D7"));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    close->setGeometry(PaletteWidth - 20, 2, 18, 16);
    connect(close, &QToolButton::clicked, this, [this] { closed(); });
    hide();
}

void NoteSelector::openAt(const Rect& place) {
    moveHighlight(ParkedPaletteHighlight);
    move(placeForWidget(place.left), placeForWidget(place.top));
    show();
    raise();
    update();
}

void NoteSelector::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    moveHighlight(paletteHighlight(highlight_, at.x(), at.y()));
}

void NoteSelector::moveHighlight(const Rect& place) {
    highlight_ = place;
    shpNoteSelector_->setGeometry(placeForWidget(place.left), placeForWidget(place.top), place.width,
                                  place.height);
}

// The palette keeps its mouse events: the page below it must not see them.
void NoteSelector::mousePressEvent(QMouseEvent* event) { event->accept(); }

// A press that is drawn out of the palette is no click.
void NoteSelector::mouseReleaseEvent(QMouseEvent* event) {
    if (!rect().contains(event->position().toPoint())) return;
    hide();
    chosen(highlight_);
}

void NoteSelector::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

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
}

} // namespace tabrova
