#include "tools/chord_manager/chord_staff.h"

#include "forms/code_page_text.h"
#include "forms/named.h"
#include "forms/paper.h"
#include "tabview/sprites.h"
#include "tabview/tab_view.h"

namespace tabrova {

namespace {

// The pieces of the sheet are shown half as large again, from the finest sheet.
constexpr int SheetScale = 3;
constexpr qreal Enlarged = 1.5;
constexpr QRgb LineColor = 0xFF9A9A9A;
constexpr int White = 0xFF;
constexpr int LineGray = 0x70; // the lines behind the clef are lighter than that

constexpr int StaffHeight = 108;
constexpr int StaffMiddle = 54; // the line of the B
constexpr int LineGap = 9;
constexpr int StaffLeft = 12;
constexpr int StaffWidth = 150;
constexpr Rect ClefPiece = {597, 22, 30, 52};
constexpr int ClefAboveMiddle = 26; // rows of the piece
constexpr int HeadLeft = 112;
constexpr int HeadShift = 15; // of every second head, which its neighbour would touch
// Signs stand left of all heads, in columns in which none covers another.
constexpr int FirstSign = 19;
constexpr int SignGap = 13;
constexpr int LedgerWidth = 24;

constexpr int TabLeft = StaffLeft + StaffWidth + 18;
constexpr int TabWidth = 118;
constexpr int TabGap = 14;
constexpr int TabTop = StaffMiddle - TabGap * 5 / 2;
constexpr int FretLeft = TabLeft + 62;
constexpr int FretPixels = 13;
constexpr QSize FretSize = {22, 19};

// By note index: diatonic steps above the C below the staff.
constexpr std::array<int, ChordNotes> Steps = {5, 5, 6, 0, 0, 1, 1, 2, 3, 3, 4, 4};
constexpr std::array<int, ChordNotes> SignColumns = {0, 1, 0, 0, 0, 0, 1, 0, 0, 2, 0, 0};
constexpr int StepOfMiddleLine = 6;

// The dark pixels of a piece of the sheet as ink on nothing.
QImage inkOf(const Surface& sheet, const Rect& piece, int lightest) {
    QImage ink = sheet.image()
                     .copy(piece.left * SheetScale, piece.top * SheetScale, piece.width * SheetScale,
                           piece.height * SheetScale)
                     .convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < ink.height(); ++y)
        for (int x = 0; x < ink.width(); ++x) {
            const int gray = qGray(ink.pixel(x, y));
            ink.setPixel(x, y, gray > lightest ? 0 : qRgba(0, 0, 0, White - gray));
        }
    return ink;
}

int heightOf(std::size_t note) { return StaffMiddle + (StepOfMiddleLine - Steps[note]) * LineGap / 2; }

// A head or a sharp sign.
class StaffMark : public QWidget {
  public:
    StaffMark(const QString& name, QImage ink, QPointF middle, bool ledger, QWidget* parent)
        : QWidget(parent), ink_(std::move(ink)), ledger_(ledger) {
        setObjectName(name);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        const QSizeF drawn = QSizeF(ink_.size()) / SheetScale * Enlarged;
        const int width = ledger ? LedgerWidth : static_cast<int>(drawn.width()) + 1;
        const int height = static_cast<int>(drawn.height()) + 1;
        setGeometry(qRound(middle.x() - width / 2.0), qRound(middle.y() - height / 2.0), width, height);
        place_ = QRectF(QPointF((width - drawn.width()) / 2, (height - drawn.height()) / 2), drawn);
        hide();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (ledger_) fillSharp(painter, QRectF(0, height() / 2.0 - 0.5, width(), 1), ChartInk);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place_, ink_);
    }

  private:
    QImage ink_;
    bool ledger_;
    QRectF place_;
};

// The part of a piece that holds ink.
QImage trimmed(const QImage& ink) {
    QRect inked;
    for (int y = 0; y < ink.height(); ++y)
        for (int x = 0; x < ink.width(); ++x)
            if (qAlpha(ink.pixel(x, y))) inked |= QRect(x, y, 1, 1);
    return ink.copy(inked);
}

} // namespace

ChordStaff::ChordStaff(QWidget* parent) : QWidget(parent) {
    makePaper(*this);
    makeStaffMarks();
    makeFrets();
}

void ChordStaff::makeStaffMarks() {
    const Surface sheet = loadSheet(SheetScale);
    clef_ = inkOf(sheet, ClefPiece, LineGray);
    const QImage head = trimmed(inkOf(sheet, sprite::WholeHead, White - 1));
    const QImage sharp = trimmed(inkOf(sheet, sprite::Sharp, White - 1));
    for (std::size_t note = 0; note < ChordNotes; ++note) {
        const ChordNoteRow& row = chordNoteTable()[note];
        const bool shifted = Steps[note] % 2 == 1;
        const int x = row.sharp ? HeadLeft - FirstSign - SignGap * SignColumns[note]
                                : HeadLeft + (shifted ? HeadShift : 0);
        const bool ledger = !row.sharp && Steps[note] == 0;
        staffMarks_[note] =
            new StaffMark(row.staffMark, row.sharp ? sharp : head, QPointF(x, heightOf(note)), ledger, this);
    }
}

void ChordStaff::makeFrets() {
    QFont digits = font();
    digits.setPixelSize(FretPixels);
    digits.setBold(true);
    for (std::size_t string = 0; string < ChordStrings; ++string) {
        frets_[string] = named(new QLabel(this), ChordStringTable[string].fretText);
        const int line = TabTop + ChordStringTable[string].documentRow * TabGap;
        frets_[string]->setGeometry(QRect(QPoint(FretLeft, line - FretSize.height() / 2), FretSize));
        frets_[string]->setAlignment(Qt::AlignCenter);
        frets_[string]->setFont(digits);
        frets_[string]->setTextFormat(Qt::PlainText);
    }
}

QSize ChordStaff::sizeHint() const { return {TabLeft + TabWidth + StaffLeft, StaffHeight}; }

void ChordStaff::showChord(const ChordDisplay& display) {
    for (std::size_t note = 0; note < ChordNotes; ++note)
        staffMarks_[note]->setVisible(display.staff[note]);
    for (std::size_t string = 0; string < ChordStrings; ++string)
        frets_[string]->setText(fromCodePage(display.frets[string]));
    update();
}

void ChordStaff::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPaper(painter, rect());
    paintStaff(painter);
    paintTablature(painter);
}

void ChordStaff::paintStaff(QPainter& painter) const {
    for (int line = -2; line <= 2; ++line)
        fillSharp(painter, QRectF(StaffLeft, StaffMiddle + line * LineGap, StaffWidth, 1), LineColor);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF size = QSizeF(clef_.size()) / SheetScale * Enlarged;
    painter.drawImage(QRectF(QPointF(StaffLeft + 3, StaffMiddle + 0.5 - ClefAboveMiddle * Enlarged), size),
                      clef_);
}

// A line stops beside the fret that stands on it.
void ChordStaff::paintTablature(QPainter& painter) const {
    for (int line = 0; line < static_cast<int>(ChordStrings); ++line)
        fillSharp(painter, QRectF(TabLeft, TabTop + line * TabGap, TabWidth, 1), LineColor);
    QFont letters = font();
    letters.setPixelSize(18);
    letters.setBold(true);
    painter.setFont(letters);
    painter.setPen(QColor::fromRgb(ChartInk));
    int y = TabTop + 4;
    for (const char letter : {'T', 'A', 'B'}) {
        painter.drawText(QRect(TabLeft + 6, y, 18, 20), Qt::AlignCenter, QString(QLatin1Char(letter)));
        y += 21;
    }
    for (const QLabel* fret : frets_)
        if (!fret->text().trimmed().isEmpty())
            painter.fillRect(fret->geometry(), QColor::fromRgb(ChartPaper));
}

} // namespace tabrova
