// The tracks of a MIDI file, event by event.
#include "core/document/document_operations.h"
#include "sound/midi_export.h"
#include "tests/sound/midi_file_reader.h"

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t Column = 125; // ticks, at the speed of a new document

class MidiExportTest : public ::testing::Test {
  protected:
    MidiExportTest() { makeDocument(1); }
    ~MidiExportTest() override { fs::remove(path); }

    // Guitar tracks in standard tuning, with the volumes 100, 99, 98 and the programs 24, 25, 26.
    void makeDocument(int tracks, int staves = 1) {
        resetToNewDocument(document);
        document.TrackCount = static_cast<std::int16_t>(tracks);
        document.StaffCount = static_cast<std::int16_t>(staves);
        ResizeGrids(document, staves * ColumnsPerStaff, tracks * StringsPerTrack);
        document.TuningTable.assign(static_cast<std::size_t>(tracks * StringsPerTrack), StandardTuning);
        document.GuitarTrackFlags.assign(static_cast<std::size_t>(tracks), True16);
        document.TrackVolumes.clear();
        document.TrackInstruments.clear();
        for (int track = 0; track < tracks; ++track) {
            document.TrackVolumes.push_back(std::to_string(100 - track));
            document.TrackInstruments.push_back(std::to_string(24 + track));
        }
    }

    bool exportTracks(std::vector<int> queue, bool noteOffs = false) {
        MIDIFile control;
        control.setPath(MIDIFile::Property::FileName, path);
        const bool exported = exportMidiFile(document, {std::move(queue), noteOffs, {}}, control);
        file = exported ? readMidiFile(fileBytes(path)) : ReadMidiFile();
        return exported;
    }

    bool exportMidiFileTo(const fs::path& place) {
        MIDIFile control;
        control.setPath(MIDIFile::Property::FileName, place);
        return exportMidiFile(document, {{0}, false, {}}, control);
    }

    // The events of a file track, from 1, without its program change.
    MidiFileEvents notes(std::size_t track = 1) const {
        MidiFileEvents events;
        for (const MidiFileEvent& event : file.tracks.at(track))
            if ((event.status & 0xF0) != 0xC0) events.push_back(event);
        return events;
    }
    // The seven events of a column, in the order in which columns were written; without note-offs.
    MidiFileEvents column(std::size_t place, std::size_t track = 1) const {
        const MidiFileEvents all = notes(track);
        const auto first = all.begin() + static_cast<std::ptrdiff_t>(place * 7);
        return {first, first + 7};
    }
    std::size_t columns(std::size_t track = 1) const { return notes(track).size() / 7; }
    // The pitches that sound, in the order in which they were written.
    std::vector<int> melody(std::size_t track = 1) const {
        std::vector<int> pitches;
        for (const MidiFileEvent& event : notes(track))
            if (event.data2 > 0) pitches.push_back(event.data1);
        return pitches;
    }

    Document document;
    ReadMidiFile file;
    const fs::path path = fs::path(::testing::TempDir()) / "tabrova_export.mid";
};

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

// What is played in which order: each column of this document sounds its own number.
class MidiExportRepeats : public MidiExportTest {
  protected:
    void number(int tracks, int staves = 1) {
        makeDocument(tracks, staves);
        for (int column = 0; column < staves * ColumnsPerStaff; ++column)
            for (int track = 0; track < tracks; ++track)
                document.setNote(column, track * 6 + 5, std::to_string(column - 40));
        for (std::int16_t& tuning : document.TuningTable)
            tuning = 13 + 40;
    }
    // The columns of a file track from its beginning; as many as asked for.
    std::vector<int> order(std::size_t most, std::size_t track = 1) const {
        std::vector<int> all;
        for (const int pitch : melody(track))
            all.push_back(pitch - 40);
        all.resize(std::min(all.size(), most));
        return all;
    }
};

TEST_F(MidiExportRepeats, AClosedRepeatIsReadOneColumnEarlierThanThePlayerReadsIt) {
    number(1);
    document.setBarMark(2, "r");
    document.setBarMark(5, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(order(12), (std::vector{0, 1, 2, 3, 4, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(columns(), 31U + 3);
}

TEST_F(MidiExportRepeats, EachNumberPlaysItsPassageOnceMore) {
    for (int count = 1; count <= 15; ++count) {
        number(1);
        document.setBarMark(3, "r");
        document.setBarMark(5, "r" + std::to_string(count));
        ASSERT_TRUE(exportTracks({0}));
        EXPECT_EQ(columns(), 31U + 2 * static_cast<std::size_t>(count)) << count;
    }
    for (const char* mark : {"r16", "r0", "R1", "r1 ", "."}) {
        number(1);
        document.setBarMark(3, "r");
        document.setBarMark(5, mark);
        ASSERT_TRUE(exportTracks({0}));
        EXPECT_EQ(columns(), 31U) << mark;
    }
}

TEST_F(MidiExportRepeats, ARepeatWithoutABeginningGoesToTheFirstColumn) {
    number(1);
    document.setBarMark(3, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(order(8), (std::vector{0, 1, 2, 0, 1, 2, 3, 4}));
}

TEST_F(MidiExportRepeats, AMarkInTheFirstColumnIsNotReadAsAnEnd) {
    number(1);
    document.setBarMark(0, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(columns(), 31U);
}

TEST_F(MidiExportRepeats, AMarkInTheLastColumnIsRead) {
    number(1);
    document.setBarMark(29, "r");
    document.setBarMark(31, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(columns(), 31U + 2);
}

// Any other mark counts for the repeat that runs.
TEST_F(MidiExportRepeats, AnotherMarkInThePassageCountsToo) {
    number(1);
    document.setBarMark(2, "r");
    document.setBarMark(6, "r2");
    document.setBarMark(4, "other");
    ASSERT_TRUE(exportTracks({0}));
    // 6: two are left, back; 4: one is left, back; 4: none is left, the repeat is over; 6: it would begin
    // anew, and so for ever.
    EXPECT_EQ(order(15), (std::vector{0, 1, 2, 3, 4, 5, 2, 3, 2, 3, 4, 5, 6, 7, 8}));
}

// The repeat that is open goes on into the next queued track.
TEST_F(MidiExportRepeats, TheStateGoesOnFromTrackToTrack) {
    number(2);
    document.setBarMark(20, "r");
    document.setBarMark(3, "r1");
    ASSERT_TRUE(exportTracks({0, 1}));
    EXPECT_EQ(order(8, 1), (std::vector{0, 1, 2, 0, 1, 2, 3, 4}));
    // The passage of the second track begins where the first one's last repeat was opened.
    EXPECT_EQ(order(6, 2), (std::vector{0, 1, 2, 20, 21, 22}));
    EXPECT_EQ(columns(2), 3U + 11);
}

// Two ends of one beginning would repeat for ever. The second round is left at the jump that was made before.
TEST_F(MidiExportRepeats, APassageThatWouldComeRoundForEverIsLeft) {
    number(1);
    document.setBarMark(5, "r1");
    document.setBarMark(10, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_LT(columns(), 100U);
    EXPECT_EQ(order(1000).back(), 30);
    number(1);
    document.setBarMark(0, "r2"); // on which a repeat without a beginning ends at once
    document.setBarMark(4, "r3");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_LT(columns(), 100U);
    EXPECT_EQ(order(1000).back(), 30);
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
    ASSERT_TRUE(exportTracks({0, 7}));
    EXPECT_EQ(column(5, 2), emptyColumn(9)); // a track without a flag is percussion
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
