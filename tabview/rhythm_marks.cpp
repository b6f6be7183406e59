#include "tabview/rhythm_marks.h"

#include "tabview/page_geometry.h"

namespace tabrova {

namespace {

constexpr int StemTop = 85;
constexpr int StemLeft = 27;
constexpr int StemHeight = 18;
constexpr int BeamLeft = 28;

struct Beam {
    ValueCode value;
    int top;
    int columns;
    Rect source; // cut from a ladder of bars, so that its height gives the number of beams
};

constexpr Beam Beams[] = {{16, 86, 1, {347, 1, 10, 17}},
                          {8, 95, 2, {347, 10, 10, 8}},
                          {4, 98, 4, {347, 10, 10, 5}},
                          {2, 101, 8, {347, 10, 10, 2}}};

constexpr ValueCode DottedEighth = 3;
constexpr ValueCode Whole = 1;
constexpr Rect PagePaper = {1, 1, 1, 1}; // on the page itself

} // namespace

void addRhythmStem(std::vector<SpriteCopy>& copies, const RhythmPlace& place) {
    const int rise = StringSpacing * (StringsPerTrack - 1 - place.lowestString);
    copies.push_back({{place.columnWidth * place.columnInStaff + StemLeft, place.slotTop + StemTop - rise, 1,
                       rise + StemHeight},
                      sprite::RhythmStem,
                      Raster::SrcCopy});
}

void addRhythmBeam(std::vector<SpriteCopy>& copies, const RhythmPlace& place, ValueCode value) {
    const int pitch = place.columnWidth;
    const int left = pitch * place.columnInStaff;
    for (const Beam& beam : Beams) {
        if (beam.value != value) continue;
        const int width = beam.columns * pitch;
        copies.push_back({{left + BeamLeft, place.slotTop + beam.top, width, beam.source.height},
                          beam.source,
                          Raster::SrcAnd});
        copies.push_back({{left + width + StemLeft, place.slotTop + StemTop, 1, StemHeight},
                          sprite::RhythmStem,
                          Raster::SrcAnd});
    }
    if (value == DottedEighth)
        copies.push_back({{left + BeamLeft, place.slotTop + 110, 5, 5}, sprite::DottedSign, Raster::SrcCopy});
    if (value == Whole)
        copies.push_back({{left - pitch + 35, place.slotTop + StemTop, pitch - 8, StemHeight},
                          PagePaper,
                          Raster::SrcCopy,
                          CopyFrom::Page});
}

} // namespace tabrova
