// The tracks of a MIDI file, event by event.
#include "tests/sound/midi_export_helpers.h"

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

MidiFileEvents emptyColumn(int channel, std::uint32_t time = Column) {
    MidiFileEvents events(7, {0, 0x90 + channel, 0, 0});
    events[1].ticks = time;
    return events;
}

TEST_F(MidiExportTest, AnEmptyQueueGivesAFileWithoutTracks) {
    ASSERT_TRUE(exportTracks({}));
    EXPECT_EQ(file.format, 1);
    EXPECT_EQ(file.division, 500);
    EXPECT_EQ(file.tracks, (std::vector<MidiFileEvents>{{{0, 0xFF, 500000, 0}}}));
}

TEST_F(MidiExportTest, AnEmptyDocumentIsAllFillersAndTheLastColumnIsLeftOut) {
    ASSERT_TRUE(exportTracks({0}));
    ASSERT_EQ(file.tracks.size(), 2U);
    EXPECT_EQ(file.tracks[1].front(), (MidiFileEvent{0, 0xC0, 24, 0}));
    ASSERT_EQ(file.tracks[1].size(), 1U + 31 * 7);
    for (std::size_t each = 0; each < 31; ++each)
        EXPECT_EQ(column(each), emptyColumn(0));
}

TEST_F(MidiExportTest, TheLastColumnIsNotExported) {
    document.setNote(30, 0, "1");
    document.setNote(31, 0, "2");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(melody(), std::vector{65});
}

TEST_F(MidiExportTest, StringsComeFromTheLowestWithTheirOpenNotes) {
    for (int row = 0; row < 6; ++row)
        document.setNote(2, row, std::to_string(row + 1));
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(column(2), (MidiFileEvents{{0, 0x90, 0, 0},
                                         {Column, 0x90, 46, 100},
                                         {0, 0x90, 50, 100},
                                         {0, 0x90, 54, 100},
                                         {0, 0x90, 58, 100},
                                         {0, 0x90, 61, 100},
                                         {0, 0x90, 65, 100}}));
}

TEST_F(MidiExportTest, TheTuningMovesEachString) {
    document.TuningTable = {14, 11, 25, 1, 13, 0};
    for (int row = 0; row < 6; ++row)
        document.setNote(0, row, "0");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(melody(), (std::vector{40 - 13, 45, 50 - 12, 55 + 12, 59 - 2, 64 + 1}));
}

TEST_F(MidiExportTest, BlankDeadAndJumpCellsAreFillers) {
    document.setNote(1, 0, "x");
    document.setNote(1, 3, "x");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(column(1), emptyColumn(0));
}

// A jump in any track takes the time out of the column in every file track.
TEST_F(MidiExportTest, AColumnWithAJumpTakesNoTime) {
    makeDocument(3);
    document.setNote(4, 13, ">");
    document.setNote(4, 0, "5");
    ASSERT_TRUE(exportTracks({0, 1}));
    EXPECT_EQ(column(3), emptyColumn(0));
    EXPECT_EQ(column(4)[1].ticks, 0U);
    EXPECT_EQ(melody(), std::vector{69});
    EXPECT_EQ(column(4, 2), emptyColumn(1, 0));
    EXPECT_EQ(column(5, 2), emptyColumn(1));
}

TEST_F(MidiExportTest, AGhostNoteHasHalfTheVolumeRoundedHalfToEven) {
    const std::pair<const char*, int> volumes[] = {{"127", 64}, {"125", 62}, {"100", 50}, {"126.5", 63}};
    for (const auto& [volume, half] : volumes) {
        document.TrackVolumes = {volume};
        document.setNote(1, 0, "0");
        document.setTechnique(1, 0, "g");
        ASSERT_TRUE(exportTracks({0}));
        EXPECT_EQ(column(1)[6], (MidiFileEvent{0, 0x90, 64, half})) << volume;
    }
    document.setTechnique(1, 0, "r");
    document.TrackVolumes = {"126.5"};
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(column(1)[6], (MidiFileEvent{0, 0x90, 64, 126}));
}

// The top string of the next track, with that track's tuning and the string offset of the row written before.
TEST_F(MidiExportTest, TheNextTracksTopStringIsHeardBeforeTheColumnsTime) {
    makeDocument(2);
    document.TuningTable[6] = 15;
    document.setNote(0, 6, "1");
    document.setNote(1, 6, "1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(column(0)[0], (MidiFileEvent{0, 0x90, 1 + 15, 100})); // the offset is 0 at the very start
    EXPECT_EQ(column(0)[1].ticks, Column);
    EXPECT_EQ(column(1)[0], (MidiFileEvent{0, 0x90, 1 + 15 + 51, 100}));
    EXPECT_EQ(melody(), (std::vector{16, 67}));
}

TEST_F(MidiExportTest, TheOffsetGoesOnFromTrackToTrack) {
    makeDocument(4);
    document.GuitarTrackFlags[1] = False16;
    document.setNote(0, 18, "2"); // the top string of the last track
    ASSERT_TRUE(exportTracks({0, 2}));
    EXPECT_EQ(column(0, 2)[0].data1, 2 + 13 + 51);
    ASSERT_TRUE(exportTracks({1, 2}));
    EXPECT_EQ(column(0, 2)[0].data1, 2 + 13 - 13);
}

TEST_F(MidiExportTest, APercussionTrackKeepsItsNumbersOnTheDrumChannel) {
    makeDocument(2);
    document.GuitarTrackFlags[0] = False16;
    document.setNote(1, 0, "36");
    document.setNote(1, 5, "42");
    document.setTechnique(1, 5, "g");
    document.setNote(1, 6, "50"); // of the guitar track, which this track has as its seventh row
    document.TuningTable[6] = 14;
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(file.tracks[1].size(), 31U * 7); // no program
    EXPECT_EQ(column(1), (MidiFileEvents{{0, 0x99, 51, 100},
                                         {Column, 0x99, 42, 50},
                                         {0, 0x99, 0, 0},
                                         {0, 0x99, 0, 0},
                                         {0, 0x99, 0, 0},
                                         {0, 0x99, 0, 0},
                                         {0, 0x99, 36, 100}}));
}

// The channel comes from the place in the queue alone, and leaves out that of percussion.
TEST_F(MidiExportTest, EachPlaceOfTheQueueHasItsChannel) {
    makeDocument(15);
    document.GuitarTrackFlags[4] = False16;
    std::vector<int> queue;
    for (int track = 14; track >= 0; --track)
        queue.push_back(track);
    ASSERT_TRUE(exportTracks(queue));
    ASSERT_EQ(file.tracks.size(), 16U);
    constexpr int Channels[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 10, 9, 12, 13, 14, 15};
    for (std::size_t place = 0; place < 15; ++place) {
        EXPECT_EQ(column(0, place + 1), emptyColumn(Channels[place])) << place;
        if (Channels[place] == 9) continue;
        const MidiFileEvent program = {0, 0xC0 + Channels[place], 24 + queue[place], 0};
        EXPECT_EQ(file.tracks[place + 1].front(), program) << place;
    }
}

TEST_F(MidiExportTest, EachTrackHasItsOwnVolume) {
    makeDocument(3);
    for (int track = 0; track < 3; ++track)
        document.setNote(0, track * 6 + 2, "0");
    ASSERT_TRUE(exportTracks({2, 0}));
    EXPECT_EQ(column(0, 1)[4], (MidiFileEvent{0, 0x90, 55, 98}));
    EXPECT_EQ(column(0, 2)[4], (MidiFileEvent{0, 0x91, 55, 100}));
}

TEST_F(MidiExportTest, WithoutThemNoNoteOffIsWritten) {
    document.setNote(0, 0, "3");
    ASSERT_TRUE(exportTracks({0}));
    for (const MidiFileEvent& event : notes())
        EXPECT_EQ(event.status, 0x90);
}

// Each row has one behind it, which ends what the row sounded before this column.
TEST_F(MidiExportTest, ANoteOffEndsThePreviousNoteOfItsRow) {
    document.setNote(0, 0, "3");
    document.setNote(2, 0, "5");
    document.setNote(3, 0, "x");
    ASSERT_TRUE(exportTracks({0}, true));
    MidiFileEvents top; // the last two of a column's fourteen
    const MidiFileEvents all = notes();
    for (std::size_t at = 12; at < 5 * 14; at += 14)
        top.insert(top.end(), {all[at], all[at + 1]});
    EXPECT_EQ(top, (MidiFileEvents{{0, 0x90, 67, 100},
                                   {0, 0x80, 0, 0},
                                   {0, 0x90, 0, 0},
                                   {0, 0x80, 67, 0},
                                   {0, 0x90, 69, 100},
                                   {0, 0x80, 67, 0},
                                   {0, 0x90, 0, 0},
                                   {0, 0x80, 69, 0},
                                   {0, 0x90, 0, 0},
                                   {0, 0x80, 69, 0}}));
    EXPECT_EQ(all.size(), 31U * 14);
    EXPECT_EQ(all[2], (MidiFileEvent{Column, 0x90, 0, 0}));
    EXPECT_EQ(all[3], (MidiFileEvent{0, 0x80, 0, 0}));
}

// Only where the track stands at its own number in the queue; elsewhere a note ends as it began.
TEST_F(MidiExportTest, ElsewhereInTheQueueANoteEndsAsItBegan) {
    makeDocument(3);
    document.setNote(0, 6, "3");
    document.setNote(1, 6, "5");
    document.setNote(0, 11, "1");
    for (const std::vector<int>& queue : {std::vector{1}, std::vector{2, 0, 1}}) {
        ASSERT_TRUE(exportTracks(queue, true));
        const MidiFileEvents all = notes(queue.size());
        const int channel = static_cast<int>(queue.size()) - 1;
        EXPECT_EQ(all[2], (MidiFileEvent{Column, 0x90 + channel, 41, 99}));
        EXPECT_EQ(all[3], (MidiFileEvent{0, 0x80 + channel, 41, 0}));
        EXPECT_EQ(all[4], (MidiFileEvent{0, 0x90 + channel, 0, 0}));
        EXPECT_EQ(all[5], (MidiFileEvent{0, 0x80 + channel, 0, 0}));
        EXPECT_EQ(all[12], (MidiFileEvent{0, 0x90 + channel, 67, 99}));
        EXPECT_EQ(all[13], (MidiFileEvent{0, 0x80 + channel, 67, 0}));
        EXPECT_EQ(all[14 + 12], (MidiFileEvent{0, 0x90 + channel, 69, 99}));
        EXPECT_EQ(all[14 + 13], (MidiFileEvent{0, 0x80 + channel, 69, 0}));
    }
}

TEST_F(MidiExportTest, ProgressIsToldBeforeEachTrack) {
    makeDocument(3);
    std::vector<double> told;
    MIDIFile control;
    control.setPath(MIDIFile::Property::FileName, path);
    ASSERT_TRUE(exportMidiFile(document, {{2, 1, 0}, false, [&](double percent) { told.push_back(percent); }},
                               control));
    EXPECT_EQ(told, (std::vector{0.0, 100.0 / 3, 100.0 / 3 * 2}));
}

TEST_F(MidiExportTest, TheTempoIsTheDocuments) {
    const std::pair<int, std::pair<int, int>> rows[] = {
        {480, {500, 500000}},  {20, {12000, 12000000}}, {2000, {120, 120000}},  {1600, {152, 150000}},
        {96, {2500, 2500000}}, {490, {488, 489796}},    {15, {16000, 16000000}}};
    for (const auto& [tempo, expected] : rows) {
        document.Tempo = static_cast<std::int16_t>(tempo);
        ASSERT_TRUE(exportTracks({0}));
        EXPECT_EQ(file.division, expected.first) << tempo;
        EXPECT_EQ(file.tracks[0], (MidiFileEvents{{0, 0xFF, expected.second, 0}})) << tempo;
        EXPECT_EQ(column(0)[1].ticks, tempo == 1600  ? 38U
                                      : tempo == 490 ? 122U
                                                     : 60000U / static_cast<unsigned>(tempo));
    }
}

// Double time is the player's alone.
TEST_F(MidiExportTest, DoubleTimeChangesNothing) {
    ASSERT_TRUE(exportTracks({0}));
    const ReadMidiFile plain = file;
    document.DoubleTime = True16;
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(file.tracks, plain.tracks);
    EXPECT_EQ(file.division, plain.division);
}

// Errors before the end of the first column end the export: there is no file then, not even the old one.
TEST_F(MidiExportTest, AnErrorInTheFirstColumnEndsTheExport) {
    for (const char* cell : {"x", "abc", "1e400"}) {
        makeDocument(2);
        ASSERT_TRUE(exportTracks({0})) << cell;
        document.setNote(0, 3, cell);
        EXPECT_FALSE(exportTracks({0})) << cell;
        EXPECT_FALSE(fs::exists(path));
    }
    makeDocument(2);
    document.setNote(0, 6, "x"); // the seventh row of the first track
    EXPECT_FALSE(exportTracks({0}));
    document.TrackVolumes[0] = "loud";
    document.setNote(0, 6, "");
    EXPECT_TRUE(exportTracks({0})); // nothing sounds there
    document.setNote(0, 0, "1");
    EXPECT_FALSE(exportTracks({0}));
}

TEST_F(MidiExportTest, TheFirstColumnOfALaterTrackMayFail) {
    makeDocument(3);
    document.setNote(0, 14, "x");
    EXPECT_FALSE(exportTracks({2, 0}));
    ASSERT_TRUE(exportTracks({0, 2}));
    EXPECT_EQ(column(0, 2), emptyColumn(1));
}

// Statement by statement: the properties that could not be set keep what they held.
TEST_F(MidiExportTest, LaterOnWhatDoesNotConvertKeepsTheValuesBefore) {
    document.setNote(1, 5, "2");
    document.setNote(1, 4, "abc");
    document.setNote(2, 5, "abc");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(column(1)[1], (MidiFileEvent{Column, 0x90, 42, 100}));
    EXPECT_EQ(column(1)[2], (MidiFileEvent{0, 0x90, 42, 100}));
    EXPECT_EQ(column(2)[1], (MidiFileEvent{Column, 0x90, 0, 100})); // the time is not lost
    document.TrackVolumes = {"loud"};
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(column(1)[1], (MidiFileEvent{Column, 0x90, 42, 0}));
}

TEST_F(MidiExportTest, ATempoWithoutAColumnEndsTheExport) {
    for (const int tempo : {0, 1, -1}) {
        document.Tempo = static_cast<std::int16_t>(tempo);
        EXPECT_FALSE(exportTracks({0})) << tempo;
        EXPECT_FALSE(fs::exists(path));
    }
    document.Tempo = -480;
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(column(0), emptyColumn(0, 0));
    EXPECT_EQ(file.tracks[0], MidiFileEvents{});
}

TEST_F(MidiExportTest, ATrackThatIsNotThereEndsTheExportOrIsSilent) {
    document.TrackInstruments.clear();
    EXPECT_FALSE(exportTracks({0}));
    makeDocument(1);
    EXPECT_FALSE(exportTracks({1}));
    ASSERT_TRUE(exportTracks({0, 7}));
    EXPECT_EQ(column(5, 2), emptyColumn(9)); // a track without a flag is percussion
}

// Only the rows of the document's tracks count, as many as the grid has.
TEST_F(MidiExportTest, AJumpBelowTheLastTrackIsNone) {
    makeDocument(2);
    document.setNote(2, 9, ">");
    document.TrackCount = 1;
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(column(2), emptyColumn(0));
    document.TrackCount = 32767; // as a file may say that was read in part
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(column(2), emptyColumn(0, 0));
}

TEST_F(MidiExportTest, TheOldFileIsWrittenAfresh) {
    ASSERT_TRUE(exportTracks({0}));
    const std::string whole = fileBytes(path);
    std::ofstream(path, std::ios::app) << std::string(10000, 'x');
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(fileBytes(path), whole);
}

// A folder stays, and nothing is written through a pipe or into a device.
TEST_F(MidiExportTest, OnlyFilesAreReplaced) {
    fs::create_directory(path);
    ASSERT_TRUE(exportMidiFileTo(path));
    EXPECT_TRUE(fs::is_directory(path));
    fs::remove(path);
    fs::create_symlink("/dev/full", path);
    ASSERT_TRUE(exportMidiFileTo(path));
    EXPECT_TRUE(fs::is_symlink(path));
}

// Whatever repeats it has, a document makes a file that fits; it is whole, but for its end.
TEST_F(MidiExportTest, AFileThatIsFullEndsThere) {
    makeDocument(3, 10);
    MIDIFile control(5000);
    control.setPath(MIDIFile::Property::FileName, path);
    EXPECT_TRUE(exportMidiFile(document, {{0, 1, 2}, false, {}}, control));
    const std::string written = fileBytes(path);
    EXPECT_LT(written.size(), 5200U);
    EXPECT_EQ(readMidiFile(written).format, 1);
}

TEST_F(MidiExportTest, AnHourOfMusicKeepsItsTime) {
    document.Tempo = 490;
    document.StaffCount = 919; // 29408 columns of 122.449 ms
    ResizeGrids(document, 919 * ColumnsPerStaff, 6);
    ASSERT_TRUE(exportTracks({0}));
    std::uint64_t ticks = 0;
    for (const MidiFileEvent& event : file.tracks[1])
        ticks += event.ticks;
    const double milliseconds = static_cast<double>(ticks) / file.division * file.tracks[0][0].data1 / 1000.0;
    EXPECT_NEAR(milliseconds, (919 * 32 - 1) * 60000.0 / 490, 1.0);
}

} // namespace
} // namespace tabrova::testing
