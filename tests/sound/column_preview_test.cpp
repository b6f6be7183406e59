// What a typed column sounds like in the three modes.
#include "core/document/document_operations.h"
#include "sound/column_preview.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class Preview : public ::testing::Test {
  protected:
    Preview() {
        output.OpenMidiDevice(MidiMapperId);
        resetToNewDocument(document);
        document.TrackCount = 3;
        ResizeGrids(document, 32, 18);
        document.GuitarTrackFlags = {True16, True16, False16};
        document.TrackVolumes = {"100", "90", "80"};
        document.TrackInstruments = {"24", "30", "0"};
        document.TuningTable.assign(18, 13);
        document.CurrentTrack = 1;
    }

    std::vector<ShortMessage> preview(RealtimeMode mode) {
        document.RealtimeMode = static_cast<std::int16_t>(mode);
        sendColumnPreview(document, output);
        return device.take();
    }

    using Messages = std::vector<ShortMessage>;
    Document document;
    RecordingMidiDevice device;
    MidiOutput output{device, [](int) { ADD_FAILURE(); }};
};

TEST_F(Preview, NothingSoundsInModeOne) {
    document.setNote(0, 0, "5");
    EXPECT_TRUE(preview(RealtimeMode::Nothing).empty());
}

TEST_F(Preview, TheCurrentTracksStringsSoundFromTheTop) {
    for (int row = 0; row < 6; ++row)
        document.setNote(0, row, "2");
    EXPECT_EQ(preview(RealtimeMode::CurrentTrack), (Messages{{0x90, 66, 100},
                                                             {0x90, 61, 100},
                                                             {0x90, 57, 100},
                                                             {0x90, 52, 100},
                                                             {0x90, 47, 100},
                                                             {0x90, 42, 100}}));
}

TEST_F(Preview, TheCurrentTracksTuningIndexHasNoFactorOfSix) {
    for (std::size_t row = 0; row < 18; ++row)
        document.TuningTable[row] = static_cast<std::int16_t>(row);
    document.CurrentTrack = 2;
    document.setNote(0, 6, "0");
    document.setNote(0, 11, "0");
    EXPECT_EQ(preview(RealtimeMode::CurrentTrack),
              (Messages{{0x90, 64 + 1 - 13, 90}, {0x90, 40 + 6 - 13, 90}}));
}

TEST_F(Preview, TheFirstTrackSoundsInItsOwnTuning) {
    document.TuningTable = {13, 14, 12, 13, 25, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    for (int row = 0; row < 6; ++row)
        document.setNote(0, row, "0");
    EXPECT_EQ(preview(RealtimeMode::CurrentTrack), (Messages{{0x90, 64, 100},
                                                             {0x90, 60, 100},
                                                             {0x90, 54, 100},
                                                             {0x90, 50, 100},
                                                             {0x90, 57, 100},
                                                             {0x90, 28, 100}}));
}

TEST_F(Preview, OfTheCurrentTrackSendsNoProgramAndNoOtherTrack) {
    document.CurrentTrack = 2;
    for (const int row : {0, 5, 12, 17})
        document.setNote(0, row, "7");
    EXPECT_TRUE(preview(RealtimeMode::CurrentTrack).empty());
}

TEST_F(Preview, OfTheCurrentTrackTakesDrumsForFrets) {
    document.CurrentTrack = 3;
    document.setNote(0, 12, "36");
    EXPECT_EQ(preview(RealtimeMode::CurrentTrack), (Messages{{0x90, 100, 80}}));
}

TEST_F(Preview, SoundsTheCursorsColumnOnly) {
    document.setNote(4, 0, "1");
    document.setNote(5, 0, "2");
    document.setNote(6, 0, "3");
    document.CurrentColumn = 5;
    EXPECT_EQ(preview(RealtimeMode::CurrentTrack), (Messages{{0x90, 66, 100}}));
}

TEST_F(Preview, OfAllTracksUsesEachTracksOwnTuning) {
    for (std::size_t row = 0; row < 18; ++row)
        document.TuningTable[row] = static_cast<std::int16_t>(13 + row);
    document.setNote(0, 1, "0");
    document.setNote(0, 11, "0");
    EXPECT_EQ(preview(RealtimeMode::AllTracks), (Messages{{0xB0, 0, 0x80},
                                                          {0xC0, 24, 0},
                                                          {0x90, 59 + 1, 100},
                                                          {0xB0, 0, 0x80},
                                                          {0xC0, 30, 0},
                                                          {0x90, 40 + 11, 100},
                                                          {0xB0, 0, 0x80},
                                                          {0xC0, 24, 0}}));
}

TEST_F(Preview, OfAllTracksEndsWithTheCurrentTracksInstrumentAlsoOnPercussion) {
    document.CurrentTrack = 3;
    document.TrackInstruments[2] = "117";
    EXPECT_EQ(preview(RealtimeMode::AllTracks), (Messages{{0xB0, 0, 0x80},
                                                          {0xC0, 24, 0},
                                                          {0xB0, 0, 0x80},
                                                          {0xC0, 30, 0},
                                                          {0xB0, 0, 0x80},
                                                          {0xC0, 117, 0}}));
}

TEST_F(Preview, DrumsSoundFromTheTopWithTheirTracksVolume) {
    document.TrackCount = 1;
    document.GuitarTrackFlags = {False16};
    document.TrackVolumes = {"77"};
    document.TrackInstruments = {"9"};
    for (int row = 0; row < 6; ++row)
        document.setNote(0, row, std::to_string(35 + row));
    document.setNote(0, 3, "x");
    EXPECT_EQ(preview(RealtimeMode::AllTracks), (Messages{{0x99, 35, 77},
                                                          {0x99, 36, 77},
                                                          {0x99, 37, 77},
                                                          {0x99, 39, 77},
                                                          {0x99, 40, 77},
                                                          {0xB0, 0, 0x80},
                                                          {0xC0, 9, 0}}));
}

TEST_F(Preview, ADrumOnASecondTrackKeepsItsOwnVolume) {
    document.setNote(0, 12, "36");
    document.CurrentTrack = 2;
    const Messages sent = preview(RealtimeMode::AllTracks);
    ASSERT_EQ(sent.size(), 7u);
    EXPECT_EQ(sent[4], (ShortMessage{0x99, 36, 80}));
}

TEST_F(Preview, ANoteBeyondSixteenBitsIsSilent) {
    document.setNote(0, 0, "32767");
    document.setNote(0, 1, "40000");
    document.setNote(0, 2, "1");
    EXPECT_EQ(preview(RealtimeMode::CurrentTrack), (Messages{{0x90, 56, 100}}));
}

TEST_F(Preview, ChangesNothingInTheDocument) {
    document.setNote(0, 0, "x");
    document.setNote(0, 1, "12");
    preview(RealtimeMode::AllTracks);
    EXPECT_EQ(document.note(0, 0), "x");
    EXPECT_EQ(document.note(0, 1), "12");
    EXPECT_EQ(document.CurrentTrack, 1);
}

TEST_F(Preview, AllTracksSoundWithTheCurrentTracksVolume) {
    document.CurrentTrack = 2;
    document.TuningTable[6] = 15;
    document.setNote(0, 0, "1");
    document.setNote(0, 6, "1");
    document.setNote(0, 12, "36");
    EXPECT_EQ(preview(RealtimeMode::AllTracks), (Messages{{0xB0, 0, 0x80},
                                                          {0xC0, 24, 0},
                                                          {0x90, 65, 90},
                                                          {0xB0, 0, 0x80},
                                                          {0xC0, 30, 0},
                                                          {0x90, 67, 90},
                                                          {0x99, 36, 80},
                                                          {0xB0, 0, 0x80},
                                                          {0xC0, 30, 0}}));
}

TEST_F(Preview, CellsThatAreNoNumbersAreSilent) {
    const char* const cells[] = {"x", ">", "", "abc", "1e9", " "};
    for (int row = 0; row < 6; ++row)
        document.setNote(0, row, cells[row]);
    EXPECT_TRUE(preview(RealtimeMode::CurrentTrack).empty());
    document.setNote(0, 2, "2.5");
    document.setNote(0, 3, " 3 ");
    EXPECT_EQ(preview(RealtimeMode::CurrentTrack), (Messages{{0x90, 58, 100}, {0x90, 53, 100}}));
}

TEST_F(Preview, AVolumeOrInstrumentThatIsNoNumberSilencesItsStatements) {
    document.setNote(0, 0, "1");
    document.setNote(0, 6, "1");
    document.TrackVolumes[0] = "loud";
    document.TrackInstruments[1] = "?";
    EXPECT_EQ(preview(RealtimeMode::AllTracks),
              (Messages{{0xB0, 0, 0x80}, {0xC0, 24, 0}, {0xB0, 0, 0x80}, {0xC0, 24, 0}}));
    document.TrackVolumes.clear();
    document.TrackInstruments.clear();
    document.TuningTable.clear();
    EXPECT_TRUE(preview(RealtimeMode::AllTracks).empty());
    EXPECT_TRUE(preview(RealtimeMode::CurrentTrack).empty());
}

TEST_F(Preview, OfAllTracksEndsWithTheDocumentsTracksThoughTheListsHoldMore) {
    document.TrackCount = 2;
    document.setNote(0, 11, "3");
    document.setNote(0, 12, "36");
    EXPECT_EQ(preview(RealtimeMode::AllTracks), (Messages{{0xB0, 0, 0x80},
                                                          {0xC0, 24, 0},
                                                          {0xB0, 0, 0x80},
                                                          {0xC0, 30, 0},
                                                          {0x90, 43, 100},
                                                          {0xB0, 0, 0x80},
                                                          {0xC0, 24, 0}}));
}

TEST_F(Preview, LastsTwoColumns) {
    EXPECT_EQ(previewDuration(document), 250);
    document.Tempo = 700;
    EXPECT_EQ(previewDuration(document), 171);
    document.Tempo = 1;
    EXPECT_EQ(previewDuration(document), 120000);
}

TEST_F(Preview, ItsLengthIsRoundedHalfToEven) {
    for (const auto& [tempo, milliseconds] :
         {std::pair{128, 938}, {384, 312}, {640, 188}, {1920, 62}, {32767, 4}}) {
        document.Tempo = static_cast<std::int16_t>(tempo);
        EXPECT_EQ(previewDuration(document), milliseconds) << tempo;
    }
}

TEST_F(Preview, ATempoOfNothingGivesNoLength) {
    document.Tempo = 0;
    EXPECT_EQ(previewDuration(document), std::nullopt);
}

} // namespace
} // namespace tabrova
