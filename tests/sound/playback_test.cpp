// How playing begins and ends, how long a column lasts, and what a column sends whatever it holds.
#include "tests/sound/player_helpers.h"

namespace tabrova::testing {
namespace {

const Messages Programs24 = {{0xB0, 0, 0x80}, {0xC0, 24, 0}, {0xB1, 0, 0x80}, {0xC1, 24, 0}};

class Playback : public PlayerTest {};
class PlaybackInterval : public PlayerTest {
  protected:
    std::optional<int> interval(int tempo, std::int16_t doubleTime = False16) {
        return playbackInterval(tempo, doubleTime != False16);
    }
};

// Of whole numbers, so that no conversion is shared with what is tested.
int quotientHalfToEven(int value, int divisor) {
    const int below = value / divisor;
    const int twice = value % divisor * 2;
    return below + (twice > divisor || (twice == divisor && below % 2 != 0) ? 1 : 0);
}

TEST_F(Playback, PlayAllBeginsAtColumnZeroOutsideARepeat) {
    makeDocument(32, {Kind::Guitar});
    document.CurrentColumn = 7;
    document.playback = {5, 4, 3, True16};
    state = playbackStart(document, PlayFrom::Start);
    EXPECT_EQ(state.PlaybackPosition, 0);
    EXPECT_EQ(state.RepeatStartColumn, 0);
    EXPECT_EQ(state.RepeatsLeft, 0);
    EXPECT_EQ(state.InRepeat, False16);
}

TEST_F(Playback, PlayFromHereBeginsAtTheCursorOutsideARepeat) {
    makeDocument(32, {Kind::Guitar});
    document.CurrentColumn = 7;
    document.playback = {5, 4, 3, True16};
    document.setBarMark(6, "r");
    state = playbackStart(document, PlayFrom::Cursor);
    EXPECT_EQ(state.PlaybackPosition, 7);
    EXPECT_EQ(state.RepeatStartColumn, 0);
    EXPECT_EQ(state.RepeatsLeft, 0);
    EXPECT_EQ(state.InRepeat, False16);
}

TEST_F(PlaybackInterval, ANewDocumentsColumnLastsAnEighthOfASecond) {
    resetToNewDocument(document);
    EXPECT_EQ(playbackInterval(document.Tempo, document.DoubleTime != False16), 125);
}

TEST_F(PlaybackInterval, EveryTempoOfTheSliderDividesTheMinute) {
    for (int tempo = 20; tempo <= 2000; ++tempo) {
        const int whole = quotientHalfToEven(60000, tempo);
        EXPECT_EQ(interval(tempo), whole) << tempo;
        EXPECT_EQ(interval(tempo, True16), quotientHalfToEven(whole, 2)) << tempo;
    }
}

TEST_F(PlaybackInterval, AHalfIsRoundedToTheEvenNeighbour) {
    for (const auto& [tempo, milliseconds] :
         {std::pair{1600, 38}, {960, 62}, {320, 188}, {192, 312}, {64, 938}}) {
        EXPECT_EQ(interval(tempo), milliseconds) << tempo;
    }
}

TEST_F(PlaybackInterval, DoubleTimeHalvesItAndRoundsAgain) {
    EXPECT_EQ(interval(480, True16), 62); // 125 / 2
    EXPECT_EQ(interval(2000), 30);
    EXPECT_EQ(interval(2000, True16), 15);
    EXPECT_EQ(interval(1961), 31);         // 30.6
    EXPECT_EQ(interval(1961, True16), 16); // of 31, not of 30.6
    EXPECT_EQ(interval(20, True16), 1500);
    EXPECT_EQ(interval(32767, True16), 1);   // of 2
    EXPECT_EQ(interval(20000, True16), 2);   // of 3
    EXPECT_EQ(interval(-480, True16), -62);  // of -125
    EXPECT_EQ(interval(-1961, True16), -16); // of -31
}

TEST_F(PlaybackInterval, ATempoOutsideTheSliderIsTakenAsItIs) {
    EXPECT_EQ(interval(2), 30000);
    EXPECT_EQ(interval(19), 3158);
    EXPECT_EQ(interval(2001), 30);
    EXPECT_EQ(interval(32767), 2);
    EXPECT_EQ(interval(-480), -125);
    EXPECT_EQ(interval(-2), -30000);
    EXPECT_EQ(interval(-32768), -2);
}

TEST_F(PlaybackInterval, ATempoWhoseColumnDoesNotFitSixteenBitsGivesNone) {
    for (const int tempo : {0, 1, -1}) {
        EXPECT_EQ(interval(tempo), std::nullopt) << tempo;
        EXPECT_EQ(interval(tempo, True16), std::nullopt) << tempo; // though half of it would fit
    }
}

TEST_F(Playback, AColumnATick) {
    makeDocument(3, {Kind::Guitar});
    for (int column = 0; column < 3; ++column)
        put(column, 0, std::to_string(column));
    document.PreventReverberations = 0;
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(state.PlaybackPosition, column);
        EXPECT_EQ(sounds(), (Messages{{0x90, static_cast<std::uint8_t>(64 + column), 100}}));
        EXPECT_EQ(result, TickResult::Playing);
    }
    EXPECT_EQ(state.PlaybackPosition, 3);
}

TEST_F(Playback, PastTheLastColumnItEndsWithoutAMessage) {
    makeDocument(1, {Kind::Guitar, Kind::Percussion});
    put(0, 0, "5");
    tick();
    EXPECT_EQ(result, TickResult::Playing);
    EXPECT_EQ(tick(), Messages{});
    EXPECT_EQ(result, TickResult::Ended);
    EXPECT_EQ(tick(), Messages{});
    EXPECT_EQ(result, TickResult::Ended);
}

TEST_F(Playback, FromPastTheLastColumnItEndsAtTheFirstTick) {
    makeDocument(32, {Kind::Guitar});
    put(31, 0, "5");
    for (const int column : {32, 33, 1000000}) {
        playFrom(column);
        EXPECT_EQ(tick(), Messages{});
        EXPECT_EQ(result, TickResult::Ended);
    }
    playFrom(31);
    EXPECT_EQ(sounds().size(), 3u);
    EXPECT_EQ(result, TickResult::Playing);
}

TEST_F(Playback, OfADocumentWithoutColumnsEndsAtTheFirstTick) {
    makeDocument(0, {Kind::Guitar});
    EXPECT_EQ(tick(), Messages{});
    EXPECT_EQ(result, TickResult::Ended);
}

TEST_F(Playback, OfABlankDocumentSendsProgramsOnlyAndEnds) {
    resetToNewDocument(document);
    document.TrackInstruments = {"24"};
    const int columns = document.ColumnCapacity;
    ASSERT_GT(columns, 0);
    for (int column = 0; column < columns; ++column) {
        EXPECT_EQ(tick(), Programs24) << column;
        EXPECT_EQ(result, TickResult::Playing);
    }
    EXPECT_EQ(tick(), Messages{});
    EXPECT_EQ(result, TickResult::Ended);
}

TEST_F(Playback, EachGuitarTrackSendsItsProgramOnBothChannelsAtEveryColumn) {
    makeDocument(2, {Kind::Guitar, Kind::Guitar});
    const Messages both = {{0xB0, 0, 0x80}, {0xC0, 24, 0}, {0xB1, 0, 0x80}, {0xC1, 24, 0},
                           {0xB0, 0, 0x80}, {0xC0, 25, 0}, {0xB1, 0, 0x80}, {0xC1, 25, 0}};
    EXPECT_EQ(tick(), both);
    EXPECT_EQ(tick(), both);
}

TEST_F(Playback, APercussionTrackSendsNoProgram) {
    makeDocument(1, {Kind::Percussion});
    put(0, 2, "38");
    EXPECT_EQ(tick(), (Messages{{0x99, 38, 100}}));
}

TEST_F(Playback, AnInstrumentThatIsNoNumberSendsNoProgramAndItsNotesSound) {
    makeDocument(1, {Kind::Guitar});
    put(0, 0, "5");
    document.PreventReverberations = 0;
    const Messages note = {{0x90, 69, 100}};
    for (const char* const instrument : {"", "piano", "x", "40000", "1e5"}) {
        document.TrackInstruments = {instrument};
        playFrom(0);
        EXPECT_EQ(tick(), note) << instrument;
    }
    document.TrackInstruments.clear();
    playFrom(0);
    EXPECT_EQ(tick(), note);
}

TEST_F(Playback, ATrackWithoutAVolumeStillSendsItsProgram) {
    makeDocument(1, {Kind::Guitar});
    document.TrackVolumes = {"loud"};
    put(0, 0, "5");
    document.PreventReverberations = 0;
    EXPECT_EQ(tick(), Programs24);
}

TEST_F(Playback, AnInstrumentIsRoundedHalfToEven) {
    makeDocument(2, {Kind::Guitar});
    document.TrackInstruments = {"24.5"};
    EXPECT_EQ(tick(), Programs24);
    document.TrackInstruments = {" 23.5 "};
    EXPECT_EQ(tick(), Programs24);
}

TEST_F(Playback, TracksFollowEachOtherEachAfterItsOwnProgram) {
    makeDocument(1, {Kind::Guitar, Kind::Percussion, Kind::Guitar});
    put(0, 5, "1");
    put(0, 6, "36");
    put(0, 12, "2");
    EXPECT_EQ(tick(), (Messages{{0xB0, 120, 0},
                                {0xB0, 123, 0},
                                {0xB0, 0, 0x80},
                                {0xC0, 24, 0},
                                {0xB1, 0, 0x80},
                                {0xC1, 24, 0},
                                {0x90, 41, 100},
                                {0x99, 36, 90},
                                {0xB0, 0, 0x80},
                                {0xC0, 26, 0},
                                {0xB1, 0, 0x80},
                                {0xC1, 26, 0},
                                {0x90, 66, 80}}));
}

TEST_F(Playback, MoreThanSixteenTracksShareTheSameTwoChannels) {
    constexpr int Tracks = 40;
    makeDocument(1, std::vector<Kind>(Tracks, Kind::Guitar));
    Messages expected = {{0xB0, 120, 0}, {0xB0, 123, 0}};
    for (std::uint8_t track = 0; track < Tracks; ++track) {
        document.TrackVolumes[track] = std::to_string(track + 1);
        put(0, track * 6, std::to_string(track));
        put(0, track * 6 + 1, "0", "r");
        const auto program = static_cast<std::uint8_t>(24 + track);
        const auto volume = static_cast<std::uint8_t>(track + 1);
        const Messages ofTrack = {{0xB0, 0, 0x80},
                                  {0xC0, program, 0},
                                  {0xB1, 0, 0x80},
                                  {0xC1, program, 0},
                                  {0x90, static_cast<std::uint8_t>(64 + track), volume},
                                  {0x91, 59, volume}};
        expected.insert(expected.end(), ofTrack.begin(), ofTrack.end());
    }
    EXPECT_EQ(tick(), expected);
}

TEST_F(Playback, RowsBehindTheLastTrackAreNotPlayed) {
    makeDocument(1, {Kind::Guitar, Kind::Guitar});
    document.TrackCount = 1;
    put(0, 6, "5");
    put(0, 7, ">");
    EXPECT_EQ(tick(), Programs24);
    EXPECT_EQ(result, TickResult::Playing);
}

TEST_F(Playback, ATracksStringsEndBeforeTheNextTracks) {
    makeDocument(4, {Kind::Percussion, Kind::Guitar, Kind::Percussion});
    document.PreventReverberations = 0;
    put(0, 6, "40", ".");
    put(1, 12, "40", ".");
    put(2, 12, "x");
    put(3, 12, "36", "r");
    EXPECT_EQ(sounds(), (Messages{{0x90, 104, 90}, {0x90, 104, 0}}));
    EXPECT_EQ(sounds(), (Messages{{0x99, 40, 80}}));
    EXPECT_EQ(sounds(), Messages{});
    EXPECT_EQ(sounds(), (Messages{{0x99, 36, 80}}));
}

} // namespace
} // namespace tabrova::testing
