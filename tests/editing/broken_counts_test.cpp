// Edits on documents whose counts do not fit their grids: each does what its rule says for the cells that are
// there, and touches nothing else.
#include "tests/editing/structure_walk.h"

namespace tabrova::testing {
namespace {

class BrokenCounts : public ::testing::TestWithParam<unsigned> {};

TEST_P(BrokenCounts, LeaveEveryEditToTheCellsThatAreHeld) {
    Document document;
    Walk walk(GetParam(), document);
    for (int each = 0; each < 1500; ++each) {
        walk.start(walk.choose(1, 3), walk.choose(1, 3));
        if (walk.oneIn(2)) copyStaff(document), walk.model.copyStaff();
        walk.breakCounts();
        for (int edits = walk.choose(1, 4); edits > 0; --edits) {
            const int rows = document.RowCapacity;
            walk.said.str("");
            walk.said << "document " << each << " of " << document.ColumnCapacity << " columns and " << rows
                      << " rows, staves " << document.StaffCount << ", tracks " << document.TrackCount
                      << ", cursor in staff " << document.CurrentStaff << ", column "
                      << document.ColumnInStaff << ", track " << document.CurrentTrack << ": ";
            walk.edit();
            ASSERT_TRUE(sameGrid(document, walk.model)) << walk.said.str();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(FourSeeds, BrokenCounts, ::testing::Values(31u, 32u, 33u, 34u));

} // namespace
} // namespace tabrova::testing
