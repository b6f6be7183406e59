// Stems, beams and signs below the tab, each row of the table.
#include "tabview/rhythm_marks.h"
#include "tests/tabview/plain_blitter.h"

namespace tabrova::testing {
namespace {

constexpr int CW = 29;
constexpr RhythmPlace Place = {200, 3, CW, 2}; // third slot, column 3

std::vector<SpriteCopy> beamOf(ValueCode value) {
    std::vector<SpriteCopy> copies;
    addRhythmBeam(copies, Place, value);
    return copies;
}

TEST(RhythmMarks, TheStemReachesUpToTheLowestNote) {
    for (int string = 0; string < 6; ++string) {
        std::vector<SpriteCopy> copies;
        addRhythmStem(copies, {200, 3, CW, string});
        const int n = 5 - string;
        EXPECT_EQ(copies,
                  (std::vector<SpriteCopy>{
                      {{CW * 3 + 27, 200 + 85 - 10 * n, 1, 10 * n + 18}, {346, 0, 1, 18}, Raster::SrcCopy}}));
    }
}

TEST(RhythmMarks, StringZeroHasTheLongestStem) {
    std::vector<SpriteCopy> copies;
    addRhythmStem(copies, {0, 0, CW, 0});
    addRhythmStem(copies, {0, 0, CW, 5});
    EXPECT_EQ(copies[0].place.height, 68);
    EXPECT_EQ(copies[1].place.height, 18);
}

TEST(RhythmMarks, BeamsRunToTheirEndStem) {
    struct Row {
        ValueCode value;
        int top, columns, height, sourceTop;
    };
    for (const Row& row :
         {Row{16, 86, 1, 17, 1}, Row{8, 95, 2, 8, 10}, Row{4, 98, 4, 5, 10}, Row{2, 101, 8, 2, 10}}) {
        const std::vector<SpriteCopy> expected = {
            {{CW * 3 + 28, 200 + row.top, row.columns * CW, row.height},
             {347, row.sourceTop, 10, row.height},
             Raster::SrcAnd},
            {{CW * 3 + row.columns * CW + 27, 200 + 85, 1, 18}, {346, 0, 1, 18}, Raster::SrcAnd}};
        EXPECT_EQ(beamOf(row.value), expected) << row.value;
    }
}

TEST(RhythmMarks, ADottedEighthHasASignBelowItsStem) {
    EXPECT_EQ(beamOf(3),
              (std::vector<SpriteCopy>{{{CW * 3 + 28, 310, 5, 5}, {421, 35, 5, 5}, Raster::SrcCopy}}));
}

TEST(RhythmMarks, AWholeNoteWipesTheSpaceToTheLeftOfItsStemWithThePagesPaper) {
    EXPECT_EQ(beamOf(1),
              (std::vector<SpriteCopy>{
                  {{CW * 2 + 35, 285, CW - 8, 18}, {1, 1, 1, 1}, Raster::SrcCopy, CopyFrom::Page}}));
}

TEST(RhythmMarks, NoValueNoBeam) { EXPECT_TRUE(beamOf(0).empty()); }

} // namespace
} // namespace tabrova::testing
