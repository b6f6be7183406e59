// Every key by shift state and kind of track.
#include "editing/key_codes.h"
#include "tests/editing/fake_window.h"

namespace tabrova::testing {
namespace {

enum Shift { Any, Clear, Set };

struct Row {
    int code;
    Shift shift;
    const char* note;      // what the cell "5" becomes; nullptr: it stays
    const char* technique; // what the technique "v" becomes
    const char* mark;      // what the mark "." becomes
    bool percussion;
};

constexpr Row Rows[] = {
    {'0', Any, "0", nullptr, nullptr, false},
    {'1', Any, "1", nullptr, nullptr, false},
    {'2', Any, "2", nullptr, nullptr, false},
    {'3', Any, "3", nullptr, nullptr, false},
    {'4', Any, "4", nullptr, nullptr, false},
    {'5', Any, "5", nullptr, nullptr, false},
    {'6', Any, "6", nullptr, nullptr, false},
    {'7', Any, "7", nullptr, nullptr, false},
    {'8', Any, "8", nullptr, nullptr, false},
    {'9', Any, "9", nullptr, nullptr, false},
    {'X', Any, "x", nullptr, nullptr, false},
    {'J', Any, ">", nullptr, nullptr, false},
    {13, Clear, nullptr, nullptr, ".", true},
    {32, Clear, nullptr, nullptr, "r", true},
    {32, Set, nullptr, nullptr, "", true},
    {46, Clear, "", nullptr, nullptr, true},
    {46, Set, nullptr, "", nullptr, true},
    {8, Any, nullptr, "", nullptr, false},
    {'U', Clear, nullptr, nullptr, "", true},
    {'B', Any, nullptr, "", nullptr, false},
    {'H', Any, nullptr, "h", nullptr, false},
    {'S', Any, nullptr, "s", nullptr, false},
    {'V', Any, nullptr, "v", nullptr, false},
    {'W', Any, nullptr, "w", nullptr, false},
    {'D', Any, nullptr, "d", nullptr, false},
    {'G', Clear, nullptr, "g", nullptr, true},
    {'M', Any, nullptr, "m", nullptr, false},
    {'F', Any, nullptr, "f", nullptr, false},
    {'T', Any, nullptr, "t", nullptr, false},
    {'L', Any, nullptr, "l", nullptr, false},
    {'O', Any, nullptr, "o", nullptr, false},
    {'R', Any, nullptr, "r", nullptr, false},
    {'Z', Any, nullptr, ".", nullptr, false},
    {'K', Clear, nullptr, "\xB2", nullptr, true},
    {key::RedrawOnly, Any, nullptr, nullptr, nullptr, false},
    {'A', Any, nullptr, nullptr, nullptr, false},
    {27, Any, nullptr, nullptr, nullptr, false},
    {112, Any, nullptr, nullptr, nullptr, false},
};

class KeyRows : public EditorTest, public ::testing::WithParamInterface<std::tuple<int, bool>> {
  protected:
    // The row of this code that this shift state meets.
    static const Row* rowFor(int code, int shift) {
        for (const Row& row : Rows)
            if (row.code == code && (row.shift == Any || (row.shift == Set) == ((shift & 1) != 0)))
                return &row;
        return nullptr;
    }
};

TEST_P(KeyRows, DoExactlyTheirRow) {
    const auto [shift, guitar] = GetParam();
    for (const Row& each : Rows) {
        editor.MakeNewDocument();
        if (!guitar) makePercussionTrack();
        document.setNote(0, 0, "5");
        document.setTechnique(0, 0, "v");
        document.setBarMark(0, ".");
        window.redraws = 0;
        window.pageRefreshes = 0;
        editor.picDocument_KeyDown(each.code, shift);
        const Row* row = rowFor(each.code, shift);
        const bool isTaken = row && (guitar || row->percussion);
        EXPECT_EQ(noteHere(), isTaken && row->note ? row->note : "5") << each.code;
        EXPECT_EQ(techniqueHere(), isTaken && row->technique ? row->technique : "v") << each.code;
        EXPECT_EQ(markHere(), isTaken && row->mark ? row->mark : ".") << each.code;
        // A key that percussion ignores ends without a repaint; on a guitar track every key redraws.
        EXPECT_EQ(window.redraws > 0, guitar || isTaken) << each.code;
        EXPECT_EQ(window.pageRefreshes > 0, guitar || isTaken) << each.code;
    }
}

INSTANTIATE_TEST_SUITE_P(ShiftAndTrack, KeyRows,
                         ::testing::Combine(::testing::Values(0, 1, 2, 3, 4, 5, 6, 7), ::testing::Bool()));

TEST_F(EditorTest, ArrowsMoveOnBothKindsOfTrackUnderAnyShift) {
    for (const bool guitar : {true, false}) {
        editor.MakeNewDocument();
        document.GuitarTrackFlags[0] = boolean16(guitar);
        for (const int shift : {0, 1, 2, 4}) {
            editor.picDocument_KeyDown(key::Right, shift);
            editor.picDocument_KeyDown(key::Down, shift);
        }
        EXPECT_EQ(document.ColumnInStaff, 4);
        EXPECT_EQ(document.CurrentString, 4);
        editor.picDocument_KeyDown(key::Left, 1);
        editor.picDocument_KeyDown(key::Up, 1);
        EXPECT_EQ(document.ColumnInStaff, 3);
        EXPECT_EQ(document.CurrentString, 3);
    }
}

TEST_F(EditorTest, AnArrowWithinAStaffRedrawsNothing) {
    window.redraws = 0;
    keys({key::Right, key::Down, key::Up, key::Left});
    EXPECT_EQ(window.redraws, 0);
    keys({key::Left});
    EXPECT_EQ(window.redraws, 1); // at the very start the page is redrawn though nothing moved
}

} // namespace
} // namespace tabrova::testing
