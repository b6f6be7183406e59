// The status bar's line: where, how fast, in which file.
#include "workbench/place_line.h"

#include "core/document/document_operations.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class PlaceLine : public ::testing::Test {
  protected:
    PlaceLine() {
        resetToNewDocument(document);
        document.StaffCount = 6;
        document.CurrentStaff = 2;
        document.ColumnInStaff = 16;
        document.Tempo = 480;
    }
    std::string line() { return placeLine(document, facts, words).toStdString(); }

    Document document;
    PlaceFacts facts;
    LanguageWords words;
};

TEST_F(PlaceLine, TellsStaffColumnSpeedAndFile) {
    facts.fileName = "iron kettle.tr3";
    EXPECT_EQ(line(), "Staff 2 of 6, column 17 · 480 columns a minute, ♩ = 120 · iron kettle.tr3");
    document.ColumnInStaff = 0;
    document.Tempo = 250;
    EXPECT_EQ(line(), "Staff 2 of 6, column 1 · 250 columns a minute, ♩ = 62.5 · iron kettle.tr3");
}

TEST_F(PlaceLine, ADocumentWithoutAFileSaysSo) {
    EXPECT_EQ(line(), "Staff 2 of 6, column 17 · 480 columns a minute, ♩ = 120 · not saved yet");
}

TEST_F(PlaceLine, TheDoubledSpeedIsTheOneThatIsHeard) {
    facts.doubleTime = true;
    EXPECT_EQ(line(), "Staff 2 of 6, column 17 · 960 columns a minute, ♩ = 240 · not saved yet");
    document.Tempo = 32767;
    EXPECT_NE(line().find("65534 columns a minute, ♩ = 16383.5"), std::string::npos) << line();
}

TEST_F(PlaceLine, WhilePlayingItFollowsTheMusic) {
    facts.trouble = "no sound";
    facts.sounding = 0;
    EXPECT_EQ(line(), "Playing: staff 1 of 6, column 1");
    facts.sounding = 31;
    EXPECT_EQ(line(), "Playing: staff 1 of 6, column 32");
    facts.sounding = 32 + 16;
    EXPECT_EQ(line(), "Playing: staff 2 of 6, column 17");
}

TEST_F(PlaceLine, ATroubleStandsWhereSpeedAndFileDo) {
    facts.fileName = "a.tr3";
    facts.trouble = "No sound.";
    EXPECT_EQ(line(), "Staff 2 of 6, column 17 · No sound.");
}

TEST_F(PlaceLine, ADamagedDocumentsNumbersAreShownAsTheyAre) {
    document.ColumnInStaff = 2147483647;
    document.CurrentStaff = -5;
    document.Tempo = -480;
    EXPECT_EQ(line(), "Staff -5 of 6, column 2147483648 · -480 columns a minute, ♩ = -120 · not saved yet");
}

TEST_F(PlaceLine, WordsOfALanguageFileMayLackPlacesOrRepeatThem) {
    words.place = "%3 %3 %9 %";
    words.speed = "%2";
    words.notSaved = "%1";
    EXPECT_EQ(line(), "17 17 %9 % · 120 · %1");
    facts.fileName = "%1%2.tr3";
    EXPECT_EQ(line(), "17 17 %9 % · 120 · %1%2.tr3");
}

TEST(QuarterNotes, HaveAtMostTwoDigitsBehindThePoint) {
    for (const auto& [columns, quarters] : {std::pair{480, "120"},
                                            {490, "122.5"},
                                            {481, "120.25"},
                                            {483, "120.75"},
                                            {20, "5"},
                                            {2000, "500"},
                                            {0, "0"},
                                            {400, "100"},
                                            {-2, "-0.5"}})
        EXPECT_EQ(quarterNotes(columns).toStdString(), quarters);
}

} // namespace
} // namespace tabrova
