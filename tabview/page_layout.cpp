#include "tabview/page_layout.h"

#include "tabview/page_geometry.h"
#include "tabview/page_marks.h"

namespace tabrova {

namespace {

constexpr int LinesTop = 30;
constexpr int ColumnsPerBeat = 4;

void addCopy(std::vector<SpriteCopy>& copies, const Rect& source, int left, int top) {
    copies.push_back({{left, top, source.width, source.height}, source, Raster::SrcCopy});
}

void addStaffLines(std::vector<SpriteCopy>& copies, int slot, int pageWidth) {
    const int top = SlotHeight * slot + LinesTop;
    addCopy(copies, sprite::StaffEnd, 12, top);
    copies.push_back(
        {{22, top, pageWidth - 34, sprite::StaffLines.height}, sprite::StaffLines, Raster::SrcCopy});
}

struct StaffPass {
    std::vector<SpriteCopy>& copies;
    const Document& document;
    int slot;
    int firstColumn;
    int firstRow;
    bool percussion;

    void addCell(int columnInStaff, int string, std::string_view mark) {
        const int column = firstColumn + columnInStaff;
        const int row = firstRow + string;
        const std::string_view text = document.note(column, row);
        if (!text.empty()) addGlyphs(text, columnInStaff, string);
        addBarMark(copies, mark, slot, columnInStaff, document.ColumnWidth);
        addTechniqueMark(copies, document, {slot, columnInStaff, string, column, row});
    }

    void addGlyphs(std::string_view text, int columnInStaff, int string) {
        const int left = document.ColumnWidth * columnInStaff + CellLeft;
        const int top = SlotHeight * slot + StringSpacing * string + CellTop;
        if (const auto glyph = noteGlyph(text)) addCopy(copies, *glyph, left, top);
        if (!percussion) return;
        if (const auto glyph = percussionGlyph(text)) addCopy(copies, *glyph, left, top);
    }

    void addColumns() {
        for (int column = 0; column < ColumnsPerStaff; ++column) {
            const std::string_view mark = document.barMark(firstColumn + column);
            for (int string = 0; string < StringsPerTrack; ++string)
                addCell(column, string, mark);
        }
    }
};

} // namespace

int layoutPage(std::vector<SpriteCopy>& copies, const Document& document, int pageWidth) {
    copies.clear();
    const int firstRow = Document::firstRowOfTrack(document.CurrentTrack);
    const bool percussion = !document.isGuitarTrack(document.CurrentTrack);
    int slot = 0;
    for (int staff = document.TopStaff;
         staff != document.VisibleStaves + document.TopStaff && staff != document.StaffCount;
         ++staff, ++slot) {
        addStaffLines(copies, slot, pageWidth);
        StaffPass{copies, document, slot, staff * ColumnsPerStaff, firstRow, percussion}.addColumns();
        addCopy(copies, sprite::StaffRightEnd, pageWidth - 14, SlotHeight * slot + LinesTop);
    }
    return slot;
}

std::optional<SpriteCopy> typedCell(std::string_view text, const Rect& cursor) {
    const auto glyph = text.empty() ? std::optional<Rect>(sprite::BlankCell) : noteGlyph(text);
    if (!glyph) return std::nullopt;
    const int left = cursor.left + (CellLeft - CursorLeft);
    const int top = cursor.top + (CellTop - CursorTop);
    return SpriteCopy{{left, top, glyph->width, glyph->height}, *glyph, Raster::SrcCopy};
}

std::vector<SpriteCopy> stripBackground(int pageWidth) {
    constexpr int Top = 30;
    return {
        {{9, Top, sprite::StripStart.width, sprite::StripStart.height}, sprite::StripStart, Raster::SrcCopy},
        {{39, Top, pageWidth - 50, sprite::StripLines.height}, sprite::StripLines, Raster::SrcCopy}};
}

std::vector<RulerTick> beatRuler(int columnWidth) {
    std::vector<RulerTick> ticks;
    for (int column = 0; column < ColumnsPerStaff; ++column) {
        const bool onBeat = column % ColumnsPerBeat == 0;
        const int x = columnWidth * column + (onBeat ? 31 : 30);
        ticks.push_back({x, x + 2, onBeat});
    }
    return ticks;
}

} // namespace tabrova
