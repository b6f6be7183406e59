// The mock page: a notation strip, and below it staves with every number, mark and bend.
#include "preview.h"

#include "sheet_canvas.h"

#include <QString>

#include <array>

namespace sheet {

namespace {

constexpr int cursorWidth = 13;
constexpr int stripHeight = 176;
constexpr int pageRows = 4;
constexpr int pageHeight = stripHeight + pageRows * 100 + 20;

enum class Raster { Copy, And };

class MockPage {
  public:
    MockPage(const QImage& sheetImage, int scale, int columnWidth)
        : sheet_(sheetImage), scale_(scale), columnWidth_(columnWidth),
          page_(width() * scale, pageHeight * scale, QImage::Format_RGB32) {
        page_.fill(QColor(255, 254, 242));
        fill(QRect(0, 0, width(), stripHeight), Qt::white);
    }

    int columnWidth() const { return columnWidth_; }
    int width() const { return 32 * columnWidth_ + 60; }
    const QImage& image() const { return page_; }

    void fill(const QRect& place, const QColor& color) {
        QPainter(&page_).fillRect(QRect(place.topLeft() * scale_, place.size() * scale_), color);
    }

    void stretch(const QRect& place, const QRect& source, Raster raster) {
        const QSize size = place.size() * scale_;
        const QPoint from = source.topLeft() * scale_;
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                put(place.topLeft() * scale_ + QPoint(x, y),
                    sheet_.pixel(from.x() + x * source.width() / place.width(),
                                 from.y() + y * source.height() / place.height()),
                    raster);
    }

    void copy(int left, int top, const QRect& source, Raster raster) {
        stretch(QRect(QPoint(left, top), source.size()), source, raster);
    }

  private:
    void put(const QPoint& at, QRgb color, Raster raster) {
        if (!page_.rect().contains(at)) return;
        page_.setPixel(at, raster == Raster::And ? color & page_.pixel(at) : color);
    }

    const QImage& sheet_;
    int scale_;
    int columnWidth_;
    QImage page_;
};

int topOfRow(int row) { return stripHeight + 10 + row * 100; }

void drawStaff(MockPage& page, int row) {
    const int top = topOfRow(row);
    page.copy(12, top + 30, QRect(3, 24, 20, 51), Raster::Copy);
    page.stretch(QRect(22, top + 30, page.width() - 34, 51), QRect(33, 24, 30, 51), Raster::Copy);
    page.copy(page.width() - 14, top + 30, QRect(3, 24, 2, 51), Raster::Copy);
}

void drawFret(MockPage& page, int row, int column, int string, int fret) {
    page.copy(page.columnWidth() * column + 24, topOfRow(row) + 10 * string + 26,
              QRect(1 + 10 * fret, 1, 9, 7), Raster::Copy);
}

void drawCell(MockPage& page, int row, int column, int string, const QPoint& source) {
    page.copy(page.columnWidth() * column + 24, topOfRow(row) + 10 * string + 26, QRect(source, QSize(9, 7)),
              Raster::Copy);
}

void drawMark(MockPage& page, int row, int column, int string, char code, int reach) {
    struct Mark {
        char code;
        int left;
        int sheetLeft;
        bool stretched;
        Raster raster;
    };
    constexpr std::array<Mark, 11> marks{{{'h', 24, 29, true, Raster::Copy},
                                          {'s', 24, 57, true, Raster::Copy},
                                          {'v', 24, 85, true, Raster::Copy},
                                          {'w', 24, 113, true, Raster::Copy},
                                          {'d', 24, 141, true, Raster::Copy},
                                          {'m', 19, 197, false, Raster::And},
                                          {'f', 22, 225, true, Raster::And},
                                          {'t', 22, 253, true, Raster::And},
                                          {'l', 19, 281, false, Raster::And},
                                          {'o', 19, 309, false, Raster::And},
                                          {'r', 19, 337, true, Raster::And}}};
    const int left = page.columnWidth() * column;
    const int top = topOfRow(row) + 10 * string;
    if (code == '.') page.copy(left + 24 + cursorWidth, top + 29, QRect(30, 85, 4, 4), Raster::And);
    if (code == '2') page.copy(left + 19 + cursorWidth, top + 23, QRect(448, 126, 10, 12), Raster::And);
    if (code == 'g') {
        page.copy(left + 21, top + 25, QRect(212, 19, 3, 10), Raster::And);
        page.copy(left + 20 + cursorWidth, top + 25, QRect(220, 19, 3, 10), Raster::And);
    }
    for (const Mark& mark : marks) {
        if (mark.code != code) continue;
        const int width = mark.stretched ? page.columnWidth() * reach - cursorWidth : 26;
        page.stretch(QRect(left + mark.left + cursorWidth, top + 23, width, 12),
                     QRect(mark.sheetLeft, 107, 26, 12), mark.raster);
    }
}

void drawBend(MockPage& page, int row, int column, int string, int halves, bool down) {
    constexpr std::array<QRect, 6> downwards{QRect{425, 58, 10, 17}, QRect{437, 58, 12, 28},
                                             QRect{451, 57, 13, 32}, QRect{464, 57, 14, 32},
                                             QRect{480, 57, 14, 32}, QRect{493, 57, 14, 32}};
    constexpr std::array<QRect, 6> upwards{QRect{423, 101, 10, 17}, QRect{435, 90, 12, 28},
                                           QRect{448, 86, 13, 32},  QRect{461, 86, 14, 32},
                                           QRect{476, 86, 14, 32},  QRect{490, 86, 14, 32}};
    constexpr std::array<int, 6> upwardTops{13, 1, -3, -3, -3, -3};
    const auto index = static_cast<std::size_t>(halves - 1);
    const int offset = down ? 27 : upwardTops[index];
    page.copy(page.columnWidth() * column + 22 + cursorWidth, topOfRow(row) + 10 * string + offset,
              down ? downwards[index] : upwards[index], Raster::And);
}

void drawBar(MockPage& page, int row, int column) {
    page.copy(page.columnWidth() * column + 16, topOfRow(row) + 25, QRect(3, 19, 12, 59), Raster::And);
}

void drawClosedRepeat(MockPage& page, int row, int column, int mark) {
    const int top = topOfRow(row);
    const QPoint count = mark <= 8 ? QPoint(188 + 10 * (mark - 1), 54) : QPoint(188 + 10 * (mark - 9), 62);
    page.copy(page.columnWidth() * column + 12, top + 25, QRect(340, 25, 12, 59), Raster::And);
    page.copy(page.columnWidth() * column + 6, top + 17, QRect(258, 62, 9, 7), Raster::And);
    page.copy(page.columnWidth() * column + 14, top + 17, QRect(count, QSize(9, 7)), Raster::And);
}

void drawNumberRow(MockPage& page) {
    for (int fret = 0; fret <= 29; ++fret)
        drawFret(page, 0, fret, fret % 6, fret);
    for (int number = 30; number <= 46; ++number)
        drawCell(page, 0, number - 30, (number + 3) % 6, {1 + 10 * (number - 30), 9});
    drawCell(page, 0, 30, 1, {301, 1});
    drawCell(page, 0, 30, 3, {171, 9});
    for (int mark = 1; mark <= 15; ++mark)
        drawClosedRepeat(page, 0, 2 * mark, mark);
}

void drawTechniqueRow(MockPage& page) {
    const QString codes = QStringLiteral("hsvwd.gmftlor2");
    page.copy(page.columnWidth() * 0 + 8, topOfRow(1) + 25, QRect(323, 25, 12, 59), Raster::And);
    for (int index = 0; index < codes.size(); ++index) {
        const int string = index % 3 * 2;
        drawFret(page, 1, index * 2, string, (index * 5) % 26);
        drawFret(page, 1, index * 2 + 1, string, (index * 7 + 3) % 26);
        drawMark(page, 1, index * 2, string, codes[index].toLatin1(), 1);
        drawMark(page, 1, index * 2 + 1, string + 1, codes[index].toLatin1(), 1);
    }
    for (const int column : {4, 8, 12, 16, 24})
        drawBar(page, 1, column);
    drawClosedRepeat(page, 1, 31, 3);
}

void drawBendRow(MockPage& page) {
    for (int halves = 1; halves <= 6; ++halves) {
        drawFret(page, 2, halves * 2, 1, 7);
        drawBend(page, 2, halves * 2, 1, halves, true);
        drawFret(page, 2, halves * 2 + 1, 5, 12);
        drawBend(page, 2, halves * 2 + 1, 5, halves, false);
    }
    int column = 15;
    for (const int reach : {2, 4, 9}) {
        drawFret(page, 2, column, 1, 5);
        drawMark(page, 2, column, 1, 'h', reach);
        drawFret(page, 2, column + reach, 1, 7);
        drawFret(page, 2, column, 3, 12);
        drawMark(page, 2, column, 3, 't', reach);
        drawFret(page, 2, column + reach, 3, 15);
        column += reach + (reach == 9 ? 0 : 1);
    }
    drawBar(page, 2, 14);
    drawBar(page, 2, 18);
}

void drawRhythm(MockPage& page, int column, int columns, int ladderTop, int ladderHeight) {
    const int top = topOfRow(3);
    const int left = page.columnWidth() * column;
    page.stretch(QRect(left + 27, top + 85, 1, 18), QRect(346, 0, 1, 18), Raster::Copy);
    page.stretch(QRect(left + 28, top + 103 - ladderHeight, columns * page.columnWidth(), ladderHeight),
                 QRect(347, ladderTop, 10, ladderHeight), Raster::And);
    page.stretch(QRect(left + columns * page.columnWidth() + 27, top + 85, 1, 18), QRect(346, 0, 1, 18),
                 Raster::And);
}

void drawRhythmRow(MockPage& page) {
    for (const int column : {0, 1, 2, 3, 4, 6, 8, 12, 16})
        drawFret(page, 3, column, 5, column % 4);
    for (int column = 0; column < 4; ++column)
        drawRhythm(page, column, 1, 1, 17);
    drawRhythm(page, 4, 2, 10, 8);
    drawRhythm(page, 6, 2, 10, 8);
    drawRhythm(page, 8, 4, 10, 5);
    drawRhythm(page, 16, 8, 10, 2);
    page.copy(page.columnWidth() * 25 + 28, topOfRow(3) + 104, QRect(421, 35, 5, 5), Raster::Copy);
}

void drawStrip(MockPage& page) {
    page.copy(9, 30, QRect(596, 0, 45, 154), Raster::Copy);
    page.stretch(QRect(39, 30, page.width() - 50, 154), QRect(630, 0, 1, 154), Raster::Copy);
    constexpr std::array<int, 4> beams{11, 8, 5, 3};
    constexpr std::array<int, 8> heights{86, 89, 92, 83, 80, 77, 74, 95};
    for (int column = 0; column < 24; ++column) {
        const int left = page.columnWidth() * column;
        const int noteTop = heights[static_cast<std::size_t>(column % 8)];
        const int head = column < 16 ? 445 : column < 20 ? 459 : 482;
        if (column % 3 == 0) page.copy(left + 28, noteTop - 3, QRect(470, 35, 8, 9), Raster::And);
        page.copy(left + 37, noteTop - 13, QRect(head, 2, 14, 18), Raster::And);
        if (column >= 20) continue;
        page.fill(QRect(left + 44, 50, 1, noteTop - 50), ink);
        const int beam = beams[static_cast<std::size_t>(column / 4 % 4)];
        if (column % 4 != 3)
            page.stretch(QRect(left + 44, 50, page.columnWidth(), beam), QRect(365, 30, 1, beam),
                         Raster::And);
    }
    constexpr std::array<int, 12> marks{57, 85, 113, 141, 225, 337, 169, 197, 281, 309, 29, 253};
    for (int index = 0; index < 12; ++index) {
        const int left = page.columnWidth() * (2 * index + 1);
        page.copy(left + 37, 131 - 13, QRect(445, 2, 14, 18), Raster::And);
        page.stretch(QRect(left + 49, 131 - 13, 24, 12),
                     QRect(marks[static_cast<std::size_t>(index)], 107, 26, 12), Raster::And);
    }
}

} // namespace

QImage previewPage(const QImage& sheetImage, int scale, int columnWidth) {
    MockPage page(sheetImage, scale, columnWidth);
    drawStrip(page);
    for (int row = 0; row < pageRows; ++row)
        drawStaff(page, row);
    drawNumberRow(page);
    drawTechniqueRow(page);
    drawBendRow(page);
    drawRhythmRow(page);
    return page.image();
}

} // namespace sheet
