#include "shell/note_selector.h"

#include "editing/fret_palette.h"
#include "forms/captions.h"

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
    zoom_.emplace(*this);
    shpNoteSelector_ = new HighlightShape("shpNoteSelector", this);
    shpNoteSelector_->lower();
    moveHighlight(ParkedPaletteHighlight);
    nameAfter(this, "lblToolTip2(3)");
    hide();
}

void NoteSelector::openAt(const Rect& place) {
    moveHighlight(ParkedPaletteHighlight);
    place_ = place;
    moveToPlace();
    show();
    raise();
    update();
}

void NoteSelector::setZoom(int percent) {
    zoom_->set(percent);
    moveHighlight(highlight_);
    moveToPlace();
}

void NoteSelector::moveToPlace() {
    const QRect at = zoom_->zoomed({placeForWidget(place_.left), placeForWidget(place_.top), 1, 1});
    move(placeForWidget(at.left()), placeForWidget(at.top()));
}

void NoteSelector::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = zoom_->unzoomed(event->position());
    moveHighlight(paletteHighlight(highlight_, at.x(), at.y()));
}

void NoteSelector::moveHighlight(const Rect& place) {
    highlight_ = place;
    shpNoteSelector_->setGeometry(
        zoom_->zoomed({placeForWidget(place.left), placeForWidget(place.top), place.width, place.height}));
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
    // The places of the numbers are fixed; the letters follow.
    painter.scale(static_cast<qreal>(width()) / PaletteWidth, static_cast<qreal>(height()) / PaletteHeight);
    painter.setPen(palette().color(QPalette::WindowText));
    DrawNoteSelector(painter);
}

} // namespace tabrova
