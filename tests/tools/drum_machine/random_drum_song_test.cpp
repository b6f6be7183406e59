// A full song of 1,600 steps, played note by note beside the plain model.
#include "tests/tools/drum_machine/drum_window_acts.h"

namespace tabrova::testing {
namespace {

class RandomDrumSong : public DrumWindowActs {
  protected:
    RandomDrumSong() {
        chance.seed(GetParam());
        write("", "song.txt", songs.good());
        open();
        openFile("song.txt");
        EXPECT_TRUE(sameAsModel());
    }
    void playOrStop() {
        press("Command1");
        model->Command1();
        ASSERT_TRUE(sameAsModel());
    }
    void tickAndCompare(std::size_t count) {
        tick();
        ASSERT_EQ(sentText(), midiText(std::exchange(model->midi, {}))) << "at tick " << count;
    }
};

TEST_P(RandomDrumSong, PlaysAllItsPatternsAndStopsByItself) {
    QTest::keyClick(&at("chkPlayAll"), Qt::Key_Space);
    model->playAll = true;
    ASSERT_NO_FATAL_FAILURE(playOrStop());
    for (std::size_t count = 0; count < 1600; ++count)
        ASSERT_NO_FATAL_FAILURE(tickAndCompare(count));
    ASSERT_TRUE(sameAsModel());
    EXPECT_TRUE(tmrplayback().timerEnabled());
    tick();
    ASSERT_TRUE(sameAsModel());
    EXPECT_FALSE(tmrplayback().timerEnabled());
}

TEST_P(RandomDrumSong, LoopsTheShownPattern) {
    for (int pattern = 0; pattern < 100; ++pattern) {
        at<QAbstractSlider>("sldPattern").setValue(pattern);
        model->setPattern(pattern);
        ASSERT_NO_FATAL_FAILURE(playOrStop());
        for (std::size_t count = 0; count < 33; ++count)
            ASSERT_NO_FATAL_FAILURE(tickAndCompare(count));
        ASSERT_NO_FATAL_FAILURE(playOrStop());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomDrumSong, ::testing::Range(1u, 4u));

} // namespace
} // namespace tabrova::testing
