#include "tabview/notation_layout.h"

#include "tabview/notation_pitch.h"
#include "tabview/page_geometry.h"
#include "tabview/rhythm_marks.h"

#include <algorithm>
#include <array>

namespace tabrova {

namespace {

constexpr int StripOffset = 41;        // from a place in the table of pitches to the strip
constexpr int OffTheStrip = -1000;     // NoteTop of a note without a pitch
constexpr int NothingDrawn = 1000;     // the highest head of an empty staff
constexpr int StemRise = 24;           // of the common beam above the highest head
constexpr int StemColumn = 44;         // the stem of column 0
constexpr double TechniqueParts = 1.2; // of a column's width

enum class Reach { OneColumn, Span, Dot };

struct StripTechnique {
    std::string_view code;
    Rect source;
    Reach reach;
};

// Bends and the double strike are not shown here. The ghost note is the ringed sign.
constexpr StripTechnique Techniques[] = {
    {"s", sprite::Slide, Reach::OneColumn},       {"v", sprite::Vibrato, Reach::OneColumn},
    {"w", sprite::WhammyBar, Reach::OneColumn},   {"d", sprite::Dive, Reach::OneColumn},
    {"f", sprite::FadeIn, Reach::OneColumn},      {"r", sprite::RingOn, Reach::OneColumn},
    {"g", sprite::RingedGhost, Reach::OneColumn}, {"m", sprite::Harmonic, Reach::OneColumn},
    {"l", sprite::Slap, Reach::OneColumn},        {"o", sprite::Pop, Reach::OneColumn},
    {"h", sprite::HammerArc, Reach::Span},        {"t", sprite::TapArc, Reach::Span},
    {".", sprite::StaccatoDot, Reach::Dot}};

class NotationPass {
  public:
    NotationPass(NotationLayout& layout, const Document& document, std::int16_t& lastTop)
        : layout_(layout), document_(document), NoteTop(lastTop),
          firstColumn_((document.CurrentStaff - 1) * ColumnsPerStaff),
          firstRow_(Document::firstRowOfTrack(document.CurrentTrack)) {}

    void run() {
        for (int column = 0; column < ColumnsPerStaff; ++column)
            addColumn(column);
        addStripStems();
    }

  private:
    void addColumn(int column);
    void addNote(int column, int string, ValueCode value);
    void addRhythm(int column);
    void addTechnique(int column, int string);
    void GetTopToPut(int column, int string);
    void setNoteTop(int top);
    void addStripStems();
    int lowestStringWithNote(int column) const;

    NotationLayout& layout_;
    const Document& document_;
    std::int16_t& NoteTop;
    int firstColumn_;
    int firstRow_;
    ValueCode value_ = 0; // of the last note: it goes on through empty columns
    std::array<ValueCode, ColumnsPerStaff + 1> ColumnValue{};
    std::array<std::array<std::int16_t, StringsPerTrack>, ColumnsPerStaff + 1> NoteTops{};
};

// A height beyond 16 bits is not taken over.
void NotationPass::setNoteTop(int top) {
    if (const auto fitting = toInteger16(static_cast<double>(top))) NoteTop = *fitting;
}

void NotationPass::GetTopToPut(int column, int string) {
    const std::string_view cell = document_.note(firstColumn_ + column, firstRow_ + string);
    if (cell == "x" || cell == ">") return setNoteTop(OffTheStrip);
    const auto pitch = notatedPitch(document_, cell, string, firstRow_ + string);
    if (!pitch) return;
    const auto place = staffPlaceOf(*pitch);
    // Outside the table the height before counts as the note's place, deliberately.
    setNoteTop((place ? place->y : NoteTop) + StripOffset);
    if (place && place->sharp)
        layout_.strip.push_back(
            {{document_.ColumnWidth * column + 28, NoteTop - 3, sprite::Sharp.width, sprite::Sharp.height},
             sprite::Sharp,
             Raster::SrcAnd});
}

int NotationPass::lowestStringWithNote(int column) const {
    for (int string = StringsPerTrack - 1; string > 0; --string)
        if (document_.NoteGrid.at(firstColumn_ + column, firstRow_ + string) != EmptyText) return string;
    return 0;
}

// The empty cells above a column's first note do not know its value yet.
void NotationPass::addColumn(int column) {
    const bool empty = columnIsEmpty(document_, firstColumn_ + column, firstRow_);
    const ValueCode value = empty ? value_ : valueByLookAhead(document_, firstColumn_ + column, firstRow_);
    for (int string = 0; string < StringsPerTrack; ++string) {
        if (document_.NoteGrid.at(firstColumn_ + column, firstRow_ + string) != EmptyText)
            addNote(column, string, value);
        addTechnique(column, string);
    }
    if (!empty) addRhythm(column);
    ColumnValue[static_cast<std::size_t>(column)] = value_;
}

void NotationPass::addNote(int column, int string, ValueCode value) {
    GetTopToPut(column, string);
    if (NoteTop > 0) NoteTops[static_cast<std::size_t>(column)][static_cast<std::size_t>(string)] = NoteTop;
    value_ = value;
    const Rect& head = noteValue(value)->head;
    layout_.strip.push_back(
        {{document_.ColumnWidth * column + 37, NoteTop - 13, head.width, head.height}, head, Raster::SrcAnd});
}

// Once for all notes of the column: each of them would draw the same over it.
void NotationPass::addRhythm(int column) {
    const RhythmPlace place = {(document_.CurrentStaff - document_.TopStaff - 1) * SlotHeight, column,
                               document_.ColumnWidth, lowestStringWithNote(column)};
    addRhythmStem(layout_.page, place);
    if (document_.barMark(firstColumn_ + column + 1).empty()) addRhythmBeam(layout_.page, place, value_);
}

void NotationPass::addTechnique(int column, int string) {
    const TextId id = document_.TechniqueGrid.at(firstColumn_ + column, firstRow_ + string);
    if (id == EmptyText) return;
    const std::string_view code = document_.pool.text(id);
    const auto* mark = std::find_if(std::begin(Techniques), std::end(Techniques),
                                    [code](const StripTechnique& row) { return row.code == code; });
    if (mark == std::end(Techniques)) return;
    Rect place = {document_.ColumnWidth * column + 49, NoteTop - 13, 0, mark->source.height};
    if (mark->reach == Reach::Dot) {
        place.top = NoteTop - 7;
        place.width = mark->source.width;
    } else {
        const NoteValue* value = noteValue(value_);
        const int columns = mark->reach == Reach::OneColumn ? 1 : value ? value->columns : 0;
        place.width = static_cast<int>(roundHalfToEven(document_.ColumnWidth / TechniqueParts * columns));
    }
    if (place.width > 0) layout_.strip.push_back({place, mark->source, Raster::SrcAnd});
}

// One height for all stems and beams of the strip.
void NotationPass::addStripStems() {
    int highest = NothingDrawn;
    for (const auto& column : NoteTops)
        for (const std::int16_t top : column)
            if (top > 0) highest = std::min<int>(highest, top);
    const int top = highest - StemRise;
    for (std::size_t column = 0; column < ColumnsPerStaff; ++column) {
        if (ColumnValue[column] <= 1) continue;
        const int x = document_.ColumnWidth * static_cast<int>(column) + StemColumn;
        const std::int16_t low = *std::max_element(NoteTops[column].begin(), NoteTops[column].end());
        if (low > 0) layout_.stems.push_back({x, low, x, top});
        if (ColumnValue[column + 1] <= 1) continue;
        Rect beam = sprite::StripBeam;
        beam.height = noteValue(ColumnValue[column])->beamHeight;
        layout_.strip.push_back({{x, top, document_.ColumnWidth, beam.height}, beam, Raster::SrcAnd});
    }
}

} // namespace

void layoutNotation(NotationLayout& layout, const Document& document, std::int16_t& NoteTop) {
    layout.page.clear();
    layout.strip.clear();
    layout.stems.clear();
    if (document.isGuitarTrack(document.CurrentTrack)) NotationPass(layout, document, NoteTop).run();
}

} // namespace tabrova
