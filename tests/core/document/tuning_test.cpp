// The current track's tuning: the first value belongs to the lowest string.
#include "tests/core/document/document_helpers.h"

#include <gtest/gtest.h>

namespace tabrova::testing {
namespace {

TEST(AssignTuning, WritesTheCurrentTrackFromItsLowestStringUp) {
    Document document;
    makeDocument(document, 3, 1);
    document.CurrentTrack = 2;
    assignTuning(document, 1, 2, 3, 4, 5, 6);
    EXPECT_EQ(document.TuningTable,
              (std::vector<std::int16_t>{13, 13, 13, 13, 13, 13, 6, 5, 4, 3, 2, 1, 13, 13, 13, 13, 13, 13}));
}

TEST(AssignTuning, PassesOverWhatTheTableDoesNotHave) {
    Document document;
    makeDocument(document, 1, 1);
    document.CurrentTrack = 5;
    assignTuning(document, 1, 2, 3, 4, 5, 6);
    document.CurrentTrack = -5;
    assignTuning(document, 1, 2, 3, 4, 5, 6);
    EXPECT_EQ(document.TuningTable, std::vector<std::int16_t>(6, 13));
}

} // namespace
} // namespace tabrova::testing
