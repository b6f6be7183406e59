#include "tabview/page_marks.h"

#include "core/document/bar_marks.h"

#include "tabview/page_geometry.h"

namespace tabrova {

namespace {

constexpr int TypedShift = 8;
constexpr int LongestReach = 9;

// How wide a mark is drawn: as its sprite, up to the next column, or as far as an arc reaches.
enum class Width { Own, ToNextColumn, HammerReach, TapReach };

struct TechniqueSprite {
    std::string_view code;
    int left; // from ColumnWidth * column
    int top;  // from the slot's top + 10 * string
    Width width;
    Rect source;
    Raster raster;
};

constexpr int RightOfCell = CellLeft + CursorWidth; // 37
constexpr int RightOfCursor = 22 + CursorWidth;     // 35
constexpr int RightOfNote = 19 + CursorWidth;       // 32

constexpr TechniqueSprite Techniques[] = {
    {"h", RightOfCell, 23, Width::HammerReach, sprite::HammerArc, Raster::SrcCopy},
    {"s", RightOfCell, 23, Width::ToNextColumn, sprite::Slide, Raster::SrcCopy},
    {"v", RightOfCell, 23, Width::ToNextColumn, sprite::Vibrato, Raster::SrcCopy},
    {"w", RightOfCell, 23, Width::ToNextColumn, sprite::WhammyBar, Raster::SrcCopy},
    {"d", RightOfCell, 23, Width::ToNextColumn, sprite::Dive, Raster::SrcCopy},
    {".", RightOfCell, 29, Width::Own, sprite::StaccatoDot, Raster::SrcAnd},
    {"g", 21, 25, Width::Own, {212, 19, 3, 10}, Raster::SrcAnd},
    {"g", 20 + CursorWidth, 25, Width::Own, {220, 19, 3, 10}, Raster::SrcAnd},
    {"m", RightOfNote, 23, Width::Own, sprite::Harmonic, Raster::SrcAnd},
    {"f", RightOfCursor, 23, Width::ToNextColumn, sprite::FadeIn, Raster::SrcAnd},
    {"t", RightOfCursor, 23, Width::TapReach, sprite::TapArc, Raster::SrcAnd},
    {"l", RightOfNote, 23, Width::Own, sprite::Slap, Raster::SrcAnd},
    {"o", RightOfNote, 23, Width::Own, sprite::Pop, Raster::SrcAnd},
    {"r", RightOfNote, 23, Width::ToNextColumn, sprite::RingOn, Raster::SrcAnd},
    {"\xB2", RightOfNote, 23, Width::Own, {448, 126, 10, 12}, Raster::SrcAnd},
    {"p0.5", RightOfCursor, 27, Width::Own, {425, 58, 10, 17}, Raster::SrcAnd},
    {"p1.0", RightOfCursor, 27, Width::Own, {437, 58, 12, 28}, Raster::SrcAnd},
    {"p1.5", RightOfCursor, 27, Width::Own, {451, 57, 13, 32}, Raster::SrcAnd},
    {"p2.0", RightOfCursor, 27, Width::Own, {464, 57, 14, 32}, Raster::SrcAnd},
    {"p2.5", RightOfCursor, 27, Width::Own, {480, 57, 14, 32}, Raster::SrcAnd},
    {"p3.0", RightOfCursor, 27, Width::Own, {493, 57, 14, 32}, Raster::SrcAnd},
    {"b0.5", RightOfCursor, 13, Width::Own, {423, 101, 10, 17}, Raster::SrcAnd},
    {"b1.0", RightOfCursor, 1, Width::Own, {435, 90, 12, 28}, Raster::SrcAnd},
    {"b1.5", RightOfCursor, -3, Width::Own, {448, 86, 13, 32}, Raster::SrcAnd},
    {"b2.0", RightOfCursor, -3, Width::Own, {461, 86, 14, 32}, Raster::SrcAnd},
    {"b2.5", RightOfCursor, -3, Width::Own, {476, 86, 14, 32}, Raster::SrcAnd},
    {"b3.0", RightOfCursor, -3, Width::Own, {490, 86, 14, 32}, Raster::SrcAnd},
};

bool holdsNote(const Document& document, int column, int row) {
    return document.NoteGrid.at(column, row) != EmptyText;
}

int widthOf(const TechniqueSprite& mark, const Document& document, const MarkPlace& place) {
    const int pitch = document.ColumnWidth;
    switch (mark.width) {
    case Width::ToNextColumn:
        return pitch - CursorWidth;
    case Width::HammerReach:
        return pitch * hammerReach(document, place.column, place.row) - CursorWidth;
    case Width::TapReach:
        return pitch * tapReach(document, place.column, place.row) - CursorWidth;
    case Width::Own:
        break;
    }
    return mark.source.width;
}

// Beside the frame that the cursor has on the column's first string. `shift` moves the marks of one sprite to
// the left.
void addBarMarkAt(std::vector<SpriteCopy>& copies, std::string_view mark, int frameLeft, int frameTop,
                  int shift) {
    const auto add = [&](const Rect& source, int left, int top) {
        copies.push_back(
            {{frameLeft + left, frameTop + top, source.width, source.height}, source, Raster::SrcAnd});
    };
    if (mark == ".") add(sprite::BarLine, -6 - shift, 0);
    if (mark == "r") add(sprite::OpenedRepeat, -14 - shift, 0);
    if (const auto count = closedRepeatCount(mark)) {
        add(sprite::ClosedRepeat, -10, 0);
        add(sprite::RepeatTimes, -16, -8);
        add(repeatCountGlyph(*count), -8, -8);
    }
}

} // namespace

void addBarMark(std::vector<SpriteCopy>& copies, std::string_view mark, int slot, int column,
                int columnWidth) {
    if (mark.empty()) return;
    addBarMarkAt(copies, mark, columnWidth * column + CursorLeft, SlotHeight * slot + CursorTop, 0);
}

std::vector<SpriteCopy> typedBarMark(std::string_view mark, const Rect& cursor, int string) {
    std::vector<SpriteCopy> copies;
    addBarMarkAt(copies, mark, cursor.left, cursor.top - StringSpacing * string, TypedShift);
    return copies;
}

void addTechniqueMark(std::vector<SpriteCopy>& copies, const Document& document, const MarkPlace& place) {
    const std::string_view code = document.technique(place.column, place.row);
    if (code.empty()) return;
    for (const TechniqueSprite& mark : Techniques) {
        if (mark.code != code) continue;
        const Rect at = {document.ColumnWidth * place.columnInStaff + mark.left,
                         SlotHeight * place.slot + StringSpacing * place.string + mark.top,
                         widthOf(mark, document, place), mark.source.height};
        if (at.width > 0) copies.push_back({at, mark.source, mark.raster});
    }
}

// The two searches differ in the order of their last steps, which matters at the document's end. A look past
// the end of the grid sees no note.
int hammerReach(const Document& document, int column, int row) {
    int distance = 1;
    while (!holdsNote(document, column + distance, row) && distance < LongestReach) {
        ++distance;
        if (column + distance >= document.ColumnCapacity) break;
    }
    return distance;
}

int tapReach(const Document& document, int column, int row) {
    int distance = 1;
    while (!holdsNote(document, column + distance, row) && distance < LongestReach) {
        if (column + distance >= document.ColumnCapacity) break;
        ++distance;
    }
    return distance;
}

} // namespace tabrova
