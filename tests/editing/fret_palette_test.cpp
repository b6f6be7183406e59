// The fret palette: where its highlight goes, which fret that is, and what a choice does to the cell.
#include "editing/fret_palette.h"
#include "editing/key_codes.h"
#include "tests/editing/fake_window.h"

#include <cmath>

namespace tabrova::testing {
namespace {

constexpr Rect Somewhere = {300, 18, 20, 18};

using Palette = EditorTest;

int grid(int place, int first) { return static_cast<int>(std::trunc((place - first) / 20.0)) * 20; }

TEST(PaletteHighlight, GoesToTheCellUnderThePointer) {
    for (int x = -30; x < 260; ++x)
        for (int y = 10; y < 110; ++y)
            ASSERT_EQ(paletteHighlight(Somewhere, x, y), (Rect{grid(x, 4) + 1, grid(y, 20) + 18, 20, 18}))
                << x << ',' << y;
}

TEST(PaletteHighlight, StaysWhereItIsAboveTheCells) {
    for (int x = -30; x < 260; ++x)
        for (int y = -30; y < 10; ++y)
            ASSERT_EQ(paletteHighlight(Somewhere, x, y), Somewhere) << x << ',' << y;
}

TEST(PaletteFret, IsThatOfTheCellUnderTheHighlightAndNothingBesideTheCells) {
    for (int left = -40; left < 330; ++left)
        for (int top = -40; top < 120; ++top) {
            std::optional<int> fret;
            for (int cell = 0; cell < 30; ++cell)
                if (left == 1 + cell % 10 * 20 && top == 18 + cell / 10 * 20) fret = cell;
            ASSERT_EQ(paletteFret({left, top, 20, 18}), fret) << left << ',' << top;
        }
}

TEST_F(Palette, AChoiceReplacesTheNoteAndKeepsTechniqueAndMark) {
    for (int fret = 0; fret < 30; ++fret)
        for (const char* old : {"", "1", "2", "25", "x"}) {
            document.setNote(0, 0, old);
            document.setTechnique(0, 0, "v");
            document.setBarMark(0, ".");
            editor.chooseFromPalette({1 + fret % 10 * 20, 18 + fret / 10 * 20, 20, 18});
            EXPECT_EQ(noteHere(), std::to_string(fret)) << old;
            EXPECT_EQ(techniqueHere(), "v");
            EXPECT_EQ(markHere(), ".");
        }
}

TEST_F(Palette, AChoiceOfNoCellRemovesTheNoteAlone) {
    keys({key::Right, key::Down});
    document.setNote(1, 1, "7");
    document.setTechnique(1, 1, "v");
    document.setNote(0, 0, "5");
    editor.chooseFromPalette(Somewhere);
    EXPECT_EQ(noteHere(), "");
    EXPECT_EQ(techniqueHere(), "v");
    EXPECT_EQ(document.note(0, 0), "5");
}

TEST_F(Palette, OnAPercussionTrackAChoiceRemovesTheDrumAlone) {
    makePercussionTrack();
    document.setNote(0, 0, "36");
    document.setNote(1, 0, "38");
    editor.chooseFromPalette({41, 38, 20, 18});
    EXPECT_EQ(noteHere(), "");
    EXPECT_EQ(document.note(1, 0), "38");
}

} // namespace
} // namespace tabrova::testing
