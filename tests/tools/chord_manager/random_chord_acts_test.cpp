// Random acts on the chord manager, each compared with a plain model that was written on its own.
#include "tests/tools/chord_manager/chord_acts.h"

namespace tabrova::testing {

class RandomChordActs : public ChordActs, public ::testing::WithParamInterface<unsigned> {};

TEST_P(RandomChordActs, LeaveTheWindowLikeThePlainModel) {
    chance.seed(GetParam());
    for (const char* room : {"chords", "chordtypes"})
        std::filesystem::create_directories(folder() / room / "Dir");
    desk.blocked = {"Dir"};
    open();
    ASSERT_TRUE(sameAsModel());
    std::string acts;
    for (int count = 0; count < 2000; ++count) {
        acts = act() + "; " + acts.substr(0, 300);
        ASSERT_TRUE(sameAsModel()) << "after " << count << " acts, the last first: " << acts;
    }
    EXPECT_EQ(ends, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomChordActs, ::testing::Range(1u, 7u));

} // namespace tabrova::testing
