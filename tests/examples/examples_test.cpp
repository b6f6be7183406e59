// What every example document keeps to, so that its page reads well and its repeats keep the beat.
#include "core/document/bar_marks.h"
#include "core/document/document_file.h"
#include "core/document/document_operations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> examples() {
    std::vector<fs::path> list;
    for (const fs::directory_entry& entry : fs::directory_iterator(TABROVA_SOURCE_DIR "/examples"))
        if (entry.path().extension() == ".tr3") list.push_back(entry.path());
    std::ranges::sort(list);
    return list;
}

class Example : public ::testing::TestWithParam<fs::path> {
  protected:
    void SetUp() override {
        resetToNewDocument(document);
        std::ifstream file(GetParam(), std::ios::binary);
        ASSERT_TRUE(readDocument(document, file));
    }

    Document document;
};

TEST(Examples, AreThere) { EXPECT_THAT(examples(), ::testing::Not(::testing::IsEmpty())); }

// The File menu makes a title of the name: words begin with capitals, hyphens become blanks.
TEST_P(Example, HasANameInLowerCaseWithHyphens) {
    EXPECT_THAT(GetParam().stem().string(), ::testing::MatchesRegex("[a-z]+(-[a-z]+)*"));
}

// There it would read as a double bar beside the staff's own left end.
TEST_P(Example, NoStaffBeginsWithABarSeparator) {
    for (int column = 0; column < document.ColumnCapacity; column += ColumnsPerStaff)
        EXPECT_NE(document.barMark(column), ".") << "staff " << column / ColumnsPerStaff + 1;
}

TEST_P(Example, EveryTrackSounds) {
    for (int track = 1; track <= document.TrackCount; ++track) {
        bool sounds = false;
        for (int column = 0; column < document.ColumnCapacity; ++column)
            for (int row = 0; row < StringsPerTrack; ++row)
                sounds = sounds || !document.note(column, Document::firstRowOfTrack(track) + row).empty();
        EXPECT_TRUE(sounds) << document.TrackNames[static_cast<std::size_t>(track - 1)];
    }
}

TEST_P(Example, NoTechniqueStandsWithoutANote) {
    for (int column = 0; column < document.ColumnCapacity; ++column)
        for (int row = 0; row < document.RowCapacity; ++row)
            if (!document.technique(column, row).empty()) {
                EXPECT_NE(document.note(column, row), "") << "column " << column << ", row " << row;
            }
}

// The column that closes is not part of the passage: it is the first one behind it.
TEST_P(Example, ARepeatedPassageKeepsTheBeat) {
    constexpr int Beat = 4;
    int opened = -1;
    for (int column = 0; column < document.ColumnCapacity; ++column) {
        if (document.barMark(column) == "r") opened = column;
        if (!closedRepeatCount(document.barMark(column))) continue;
        ASSERT_GE(opened, 0) << "column " << column;
        EXPECT_EQ((column - opened) % Beat, 0) << "column " << column;
        opened = -1;
    }
    EXPECT_EQ(opened, -1);
}

// A column that closes a repeat sounds in the same tick as the passage's first one; a note that rings on
// there would sound into the passage.
TEST_P(Example, NothingRingsOnWhereARepeatCloses) {
    for (int column = 0; column < document.ColumnCapacity; ++column)
        for (int row = 0; closedRepeatCount(document.barMark(column)) && row < document.RowCapacity; ++row)
            EXPECT_NE(document.technique(column, row), "r") << "column " << column << ", row " << row;
}

std::string nameOf(const ::testing::TestParamInfo<fs::path>& example) {
    std::string name = example.param.stem().string();
    std::ranges::replace(name, '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, Example, ::testing::ValuesIn(examples()), nameOf);

} // namespace
} // namespace tabrova
