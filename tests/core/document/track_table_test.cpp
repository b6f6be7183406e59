// Adding and removing tracks: single steps, and random orders against a plain list of tracks.
#include "core/document/track_table.h"

#include "core/document/document_operations.h"
#include "core/files/entry_name.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace tabrova {
namespace {

class TrackTable : public ::testing::Test {
  protected:
    TrackTable() { resetToNewDocument(document); }

    void add(bool guitar) {
        ASSERT_TRUE(growByOneTrack(document));
        document.CurrentTrack = static_cast<std::int16_t>(appendTrackRows(document) + 1);
        finishNewTrack(document, guitar);
    }

    Document document;
};

TEST_F(TrackTable, ANewTrackHasTheNewTracksValues) {
    add(true);
    EXPECT_EQ(document.TrackCount, 2);
    EXPECT_EQ(document.RowCapacity, 12);
    EXPECT_EQ(document.NoteGrid.rows(), 12);
    EXPECT_EQ(document.TrackNames, (std::vector<std::string>{"Untitled Track", "Untitled Track"}));
    EXPECT_EQ(document.TrackInstruments, (std::vector<std::string>{"24", "24"}));
    EXPECT_EQ(document.TrackVolumes, (std::vector<std::string>{"127", "127"}));
    EXPECT_EQ(document.TuningTable, std::vector<std::int16_t>(12, 13));
    EXPECT_EQ(document.GuitarTrackFlags, (std::vector<std::int16_t>{-1, -1}));
}

TEST_F(TrackTable, TheFlagTellsGuitarFromPercussion) {
    add(false);
    EXPECT_EQ(document.GuitarTrackFlags, (std::vector<std::int16_t>{-1, 0}));
    EXPECT_FALSE(document.isGuitarTrack(2));
}

TEST_F(TrackTable, AddingKeepsWhatThereWas) {
    document.setNote(31, 5, "7");
    document.TuningTable[3] = 9;
    add(true);
    EXPECT_EQ(document.note(31, 5), "7");
    EXPECT_EQ(document.TuningTable[3], 9);
    EXPECT_EQ(document.ColumnCapacity, 32);
}

TEST_F(TrackTable, MoreThan1024TracksCanBeAdded) {
    for (int track = 2; track <= 1030; ++track)
        add(track % 2 == 0);
    EXPECT_EQ(document.TrackCount, 1030);
    EXPECT_EQ(document.RowCapacity, 1030 * 6);
    document.setNote(0, 1029 * 6, "3");
    EXPECT_EQ(document.note(0, 1029 * 6), "3");
}

TEST_F(TrackTable, ADocumentThatCannotGrowStaysAsItIs) {
    document.TrackCount = 32767;
    EXPECT_FALSE(growByOneTrack(document));
    EXPECT_EQ(document.RowCapacity, 6);
}

TEST_F(TrackTable, TheOnlyTrackCannotBeRemoved) {
    document.setNote(0, 0, "1");
    removeCurrentTrack(document);
    EXPECT_EQ(document.TrackCount, 1);
    EXPECT_EQ(document.note(0, 0), "1");
}

TEST_F(TrackTable, RemovingTheLastTrackLeavesTheOthersUntouched) {
    add(false);
    add(true);
    for (int row = 0; row < 18; ++row)
        document.setNote(row, row, std::to_string(row));
    document.setTechnique(4, 4, "v");
    document.TrackNames = {"a", "b", "c"};
    document.TuningTable[7] = 3;
    document.CurrentTrack = 3;
    removeCurrentTrack(document);
    EXPECT_EQ(document.TrackNames, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(document.GuitarTrackFlags, (std::vector<std::int16_t>{-1, 0}));
    for (int row = 0; row < 12; ++row)
        EXPECT_EQ(document.note(row, row), std::to_string(row));
    EXPECT_EQ(document.technique(4, 4), "v");
    EXPECT_EQ(document.TuningTable[7], 3);
    EXPECT_EQ(document.CurrentTrack, 1);
}

TEST_F(TrackTable, RowsOfADocumentReadInPartAreNoHazard) {
    document.TrackCount = 5;
    document.TrackNames = {"a", "b"};
    document.TrackVolumes = {};
    document.CurrentTrack = 4;
    removeCurrentTrack(document);
    EXPECT_EQ(document.TrackCount, 4);
    EXPECT_EQ(document.RowCapacity, 6);
    document.CurrentTrack = 2;
    setCurrentTrackRow(document, document.TrackVolumes, "99");
    EXPECT_TRUE(document.TrackVolumes.empty());
    EXPECT_EQ(trackName(document, 7), "");
    add(true);
    EXPECT_EQ(document.TrackCount, 5);
}

TEST_F(TrackTable, ACountBelowZeroIsNoHazard) {
    document.TrackCount = -5;
    add(true);
    EXPECT_EQ(document.TrackCount, -4);
    EXPECT_FALSE(document.GuitarTrackFlags.empty());
}

TEST_F(TrackTable, TheTuningOfADocumentReadInPartStays) {
    document.TrackCount = 2;
    document.TrackNames = {"a", "b"};
    removeCurrentTrack(document);
    EXPECT_EQ(document.TuningTable, std::vector<std::int16_t>(6, 13));
}

// What a track is, all in one piece.
struct PlainTrack {
    std::string name = "Untitled Track", instrument = "24", volume = "127";
    bool guitar = true;
    std::array<std::int16_t, 6> tuning = {13, 13, 13, 13, 13, 13};
    std::map<std::pair<int, int>, std::string> notes, techniques; // by column and string
    bool operator==(const PlainTrack&) const = default;
};

PlainTrack trackOf(const Document& document, int track) {
    PlainTrack plain;
    const auto row = static_cast<std::size_t>(track - 1);
    plain.name = document.TrackNames.at(row);
    plain.instrument = document.TrackInstruments.at(row);
    plain.volume = document.TrackVolumes.at(row);
    plain.guitar = document.GuitarTrackFlags.at(row) == True16;
    for (int string = 0; string < 6; ++string) {
        const int cell = (track - 1) * 6 + string;
        plain.tuning[static_cast<std::size_t>(string)] =
            document.TuningTable.at(static_cast<std::size_t>(cell));
        for (int column = 0; column < document.ColumnCapacity; ++column) {
            if (!document.note(column, cell).empty())
                plain.notes[{column, string}] = document.note(column, cell);
            if (!document.technique(column, cell).empty())
                plain.techniques[{column, string}] = document.technique(column, cell);
        }
    }
    return plain;
}

TEST_F(TrackTable, RandomAddsAndRemovalsMatchAListOfTracks) {
    std::mt19937 random(20);
    const auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    std::vector<PlainTrack> tracks(1);
    for (int step = 0; step < 1500; ++step) {
        const int act = below(4);
        if (act == 0 && tracks.size() < 12) {
            tracks.emplace_back().guitar = below(2) == 0;
            add(tracks.back().guitar);
        } else if (act == 1 && tracks.size() > 1) {
            const int gone = below(static_cast<int>(tracks.size()));
            document.CurrentTrack = static_cast<std::int16_t>(gone + 1);
            tracks.erase(tracks.begin() + gone);
            removeCurrentTrack(document);
        } else {
            const int row = below(static_cast<int>(tracks.size()));
            PlainTrack& track = tracks[static_cast<std::size_t>(row)];
            const int column = below(32), string = below(6);
            document.CurrentTrack = static_cast<std::int16_t>(row + 1);
            track.notes[{column, string}] = track.techniques[{column, string}] = std::to_string(step);
            document.setNote(column, row * 6 + string, std::to_string(step));
            document.setTechnique(column, row * 6 + string, std::to_string(step));
            track.tuning[static_cast<std::size_t>(string)] = static_cast<std::int16_t>(step);
            document.TuningTable[static_cast<std::size_t>(row * 6 + string)] =
                static_cast<std::int16_t>(step);
            track.name = std::to_string(step);
            setCurrentTrackRow(document, document.TrackNames, track.name);
        }
        ASSERT_EQ(document.TrackCount, static_cast<int>(tracks.size()));
        ASSERT_EQ(document.RowCapacity, document.TrackCount * 6);
        for (std::size_t row = 0; row < tracks.size(); ++row)
            ASSERT_EQ(trackOf(document, static_cast<int>(row) + 1), tracks[row]) << "step " << step;
    }
}

TEST(EntryName, RefusesWhatIsNoNameOfAFileInAFolder) {
    using namespace std::string_view_literals;
    for (const auto name : {u""sv, u"."sv, u".."sv, u"a/b"sv, u"a\\b"sv, u"/etc"sv, u"a\0b"sv})
        EXPECT_FALSE(isEntryName(name));
    for (const auto name : {u"(new scale)"sv, u"..."sv, u"m7-5"sv, u"Ré"sv, u"a b"sv})
        EXPECT_TRUE(isEntryName(name));
}

} // namespace
} // namespace tabrova
