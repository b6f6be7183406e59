#include "tools/chord_manager/chord_diagram.h"

#include "forms/paper.h"
#include "tools/chord_manager/new_chord.h"

namespace tabrova {

namespace {

constexpr std::array StringWidths = {3.0, 2.5, 2.0, 1.75, 1.5, 1.0}; // from the lowest, in pixels
constexpr QRgb StringColor = 0xFF505050;
constexpr QRgb WireColor = 0xFF9A9A9A;
constexpr int NutHeight = 5;
constexpr int NumberWidth = 18;
constexpr int BottomMargin = 12;
constexpr int RightMargin = 18;

QRgb markColor(MarkColor color) { return color == MarkColor::Root ? RootMarkColor : PlainMarkColor; }

RoundMark::Shape shapeOf(std::size_t mark) {
    if (mark == SilentMark) return RoundMark::Shape::Cross;
    return mark == 0 ? RoundMark::Shape::Ring : RoundMark::Shape::Disc;
}

} // namespace

QRect DiagramLayout::markPlace(std::size_t string, std::size_t mark) const {
    const bool fretted = mark >= 1 && mark <= static_cast<std::size_t>(Frets);
    const int middle = fretted ? fretY(static_cast<int>(mark)) - fretGap / 2 : (top - NutHeight) / 2;
    return {stringX(string) - markSize / 2, middle - markSize / 2, markSize, markSize};
}

QSize DiagramLayout::size() const {
    return {stringX(ChordStrings - 1) + RightMargin, fretY(Frets) + BottomMargin};
}

ChordDiagram::ChordDiagram(const DiagramLayout& layout, const MarkNames& names, std::size_t marks,
                           QWidget* parent)
    : QWidget(parent), layout_(layout) {
    makePaper(*this);
    setFixedSize(layout.size());
    for (std::size_t string = 0; string < ChordStrings; ++string)
        for (std::size_t mark = 0; mark < marks; ++mark) {
            auto* made = new RoundMark(QString("%1(%2)").arg(names[string]).arg(mark), shapeOf(mark),
                                       PlainMarkColor, this);
            made->setGeometry(layout_.markPlace(string, mark));
            marks_[string].push_back(made);
        }
}

void ChordDiagram::showChord(const ChordDisplay& display) {
    for (std::size_t string = 0; string < ChordStrings; ++string) {
        silent_[string] = display.frets[string] == " ";
        for (std::size_t mark = 0; mark < ChordFretMarks; ++mark) {
            marks_[string][mark]->setMarkColor(markColor(display.marks[string][mark].color));
            marks_[string][mark]->setVisible(display.marks[string][mark].visible);
        }
    }
    update();
}

void ChordDiagram::showOneMark(const std::array<std::size_t, ChordStrings>& marks) {
    for (std::size_t string = 0; string < ChordStrings; ++string)
        for (std::size_t mark = 0; mark < marks_[string].size(); ++mark)
            marks_[string][mark]->setVisible(mark == marks[string]);
}

void ChordDiagram::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPaper(painter, rect());
    const int left = layout_.stringX(0), right = layout_.stringX(ChordStrings - 1);
    painter.setPen(QColor::fromRgb(ChartFaintInk));
    for (int fret = 1; fret <= DiagramLayout::Frets; ++fret) {
        fillSharp(painter, QRectF(left, layout_.fretY(fret), right - left, 1), WireColor);
        painter.drawText(QRect(0, layout_.fretY(fret - 1), NumberWidth, layout_.fretGap), Qt::AlignCenter,
                         QString::number(fret));
    }
    for (std::size_t string = 0; string < ChordStrings; ++string) {
        const qreal width = StringWidths[string];
        fillSharp(painter,
                  QRectF(layout_.stringX(string) - width / 2, layout_.fretY(0), width,
                         layout_.fretGap * DiagramLayout::Frets + 1),
                  StringColor);
    }
    for (std::size_t string = 0; string < ChordStrings; ++string)
        if (silent_[string]) paintCross(painter, layout_.markPlace(string, 0));
    fillSharp(painter, QRectF(left - 2, layout_.fretY(0) - NutHeight, right - left + 4, NutHeight), ChartInk);
}

} // namespace tabrova
