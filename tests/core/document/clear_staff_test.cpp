// Emptying the current staff: which parts of it, and in which rows.
#include "core/document/document_operations.h"
#include "tests/core/document/document_helpers.h"

#include <gtest/gtest.h>

namespace tabrova::testing {
namespace {

TEST(ClearStaff, EmptiesTheCurrentStaffOfAllTracksAndNoOther) {
    Document document;
    makeDocument(document, 2, 3);
    for (int column = 0; column < 96; ++column) {
        for (int row = 0; row < 12; ++row) {
            document.setNote(column, row, "5");
            document.setTechnique(column, row, "h");
        }
        document.setBarMark(column, ".");
    }
    document.CurrentStaff = 2;
    document.ColumnInStaff = 17;
    document.CurrentTrack = 2;
    ClearStaffallall(document);
    for (int column = 0; column < 96; ++column) {
        const bool cleared = column >= 32 && column < 64;
        EXPECT_EQ(document.barMark(column), cleared ? "" : ".") << column;
        for (int row = 0; row < 12; ++row) {
            EXPECT_EQ(document.note(column, row), cleared ? "" : "5") << column;
            EXPECT_EQ(document.technique(column, row), cleared ? "" : "h") << column;
        }
    }
}

TEST(ClearStaff, ClearsTheNamedPartsInTheNamedRows) {
    for (const StaffParts parts :
         {StaffParts{true, false, false}, {false, true, false}, {false, false, true}}) {
        Document document;
        makeDocument(document, 2, 2);
        for (int row = 0; row < 12; ++row) {
            document.setNote(33, row, "5");
            document.setTechnique(33, row, "h");
        }
        document.setBarMark(33, ".");
        document.CurrentStaff = 2;
        emptyStaff(document, {4, 3}, parts);
        for (int row = 0; row < 12; ++row) {
            const bool named = row >= 4 && row < 7;
            EXPECT_EQ(document.note(33, row), parts.notes && named ? "" : "5") << row;
            EXPECT_EQ(document.technique(33, row), parts.techniques && named ? "" : "h") << row;
        }
        EXPECT_EQ(document.barMark(33), parts.barMarks ? "" : ".");
    }
}

// A read that fails leaves a number of tracks that the grids do not have.
TEST(ClearStaff, ClearsAllRowsOfTheGridsWhateverTheNumberOfTracks) {
    for (const int tracks : {-32768, 0, 1, 3, 32767}) {
        Document document;
        makeDocument(document, 2, 1);
        for (const int row : {0, 5, 6, 11}) {
            document.setNote(7, row, "5");
            document.setTechnique(7, row, "h");
        }
        document.TrackCount = static_cast<std::int16_t>(tracks);
        ClearStaffallall(document);
        for (int row = 0; row < 12; ++row) {
            EXPECT_EQ(document.note(7, row), "") << tracks;
            EXPECT_EQ(document.technique(7, row), "") << tracks;
        }
    }
}

} // namespace
} // namespace tabrova::testing
