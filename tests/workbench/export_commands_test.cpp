// The text of the current track as a file, and the commands that lead to its window.
#include "core/document/text_tablature.h"
#include "core/document/track_table.h"
#include "tests/workbench/tool_bench.h"

#include <QDate>
#include <QLocale>

#include <fstream>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class ExportCommandsTest : public ToolBench {
  protected:
    ExportCommands& exports() { return commands.exports; }
    fs::path path() const { return folder() / "out.txt"; }
    static std::string bytesOf(const fs::path& file) {
        std::ifstream input(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    // A line of the text, from 1.
    std::string line(int number) const {
        std::string rest = commands.exports.ExportToFile(path());
        for (; number > 1; --number)
            rest.erase(0, rest.find("\r\n") + 2);
        return rest.substr(0, rest.find("\r\n"));
    }
    void writeInstruments() { std::ofstream(folder() / "genmidi.txt") << "Piano\r\nHarp\u2192\xC3\xA9\r\n"; }
};

TEST_F(ExportCommandsTest, TheFileHoldsTheTextThatIsReturned) {
    document().Title = "Tune";
    document().Author = "Me";
    const std::string text = exports().ExportToFile(path());
    EXPECT_EQ(bytesOf(path()), text);
    EXPECT_EQ(line(1), "Tune by Me - Created with Tabrova 3 (https://tabrova.invalid)");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 7 + 16);
}

TEST_F(ExportCommandsTest, TheAddressIsASettingOfTheInstallation) {
    settings->SaveSetting("Installation", "WebAddress", "https://elsewhere.example");
    EXPECT_EQ(line(1), "Untitled by Anonymous - Created with Tabrova 3 (https://elsewhere.example)");
}

TEST_F(ExportCommandsTest, TheDateIsTodaysInTheSystemsShortFormat) {
    const auto today = [] { return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat); };
    const QString before = today();
    const QString date = QString::fromLatin1(line(2).c_str());
    EXPECT_TRUE(date == before || date == today()) << date.toStdString();
}

TEST_F(ExportCommandsTest, TuningAndInstrumentAreWhatThePropertiesOfTheTrackShow) {
    writeInstruments();
    bench.instruments.fill_sound_list(folder());
    document().TrackInstruments = {"1"};
    document().TuningTable = {13, 13, 13, 13, 13, 11};
    EXPECT_EQ(line(6), "Tuning: D A D G B E");
    EXPECT_EQ(line(7), "Instrument: Patch: Harp?\xE9"); // in the code page
    document().TrackInstruments = {"none"};
    EXPECT_EQ(line(7), "Instrument: Patch: ");
}

TEST_F(ExportCommandsTest, ThePatchWordIsThatOfTheActiveLanguage) {
    writeInstruments();
    bench.instruments.fill_sound_list(folder());
    document().TrackInstruments = {"0"};
    const auto write = [this](const char* word) {
        std::ofstream language(folder() / "lang.trl");
        for (int number = 1; number < 412; ++number)
            language << "\r\n";
        language << word << "\r\n";
    };
    write("Klang: ");
    EXPECT_EQ(line(7), "Instrument: Klang: Piano");
    write("Инструмент: "); // which the file cannot hold
    EXPECT_EQ(line(7), "Instrument: Patch: Piano");
}

TEST_F(ExportCommandsTest, ShowsTheCurrentTrackAndItsKind) {
    growByOneTrack(document());
    appendTrackRows(document());
    document().CurrentTrack = 2;
    finishNewTrack(document(), false);
    document().TrackNames[1] = "Drums";
    EXPECT_EQ(line(5), "Track: Drums");
    EXPECT_EQ(line(7), "Percussion.");
}

TEST_F(ExportCommandsTest, AnOldFileIsReplaced) {
    std::ofstream(path()) << std::string(100'000, 'x');
    const std::string text = exports().ExportToFile(path());
    EXPECT_EQ(bytesOf(path()), text);
}

TEST_F(ExportCommandsTest, ALinkIsReplacedAndNotFollowed) {
    const fs::path other = folder() / "other";
    std::ofstream(other) << "other's";
    fs::create_symlink(other, path());
    const std::string text = exports().ExportToFile(path());
    EXPECT_EQ(bytesOf(other), "other's");
    EXPECT_FALSE(fs::is_symlink(path()));
    EXPECT_EQ(bytesOf(path()), text);
}

TEST_F(ExportCommandsTest, WhatCannotBeWrittenIsReturnedAllTheSame) {
    fs::create_directory(path());
    EXPECT_NE(exports().ExportToFile(path()), "");
    EXPECT_TRUE(fs::is_directory(path()));
    EXPECT_NE(exports().ExportToFile(folder() / "missing" / "out.txt"), "");
}

TEST_F(ExportCommandsTest, ALongDocumentIsToldOf) {
    document().StaffCount = LongExport;
    exports().mnuExportText();
    EXPECT_TRUE(boxes.take().isEmpty());
    document().StaffCount = LongExport + 1;
    exports().mnuExportText();
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].box.title, "Tabrova for Windows");
    EXPECT_EQ(asked[0].box.text, "This document has more than 20 staves. The export may take a while.");
    EXPECT_EQ(asked[0].box.icon, BoxIcon::Information);
    EXPECT_EQ(log, (Log{"open frmExport", "open frmExport"}));
}

TEST_F(ExportCommandsTest, PrintingGoesThroughTheSameWindow) {
    document().StaffCount = LongExport + 1;
    exports().mnuFilePrint();
    EXPECT_EQ(boxes.take().size(), 1);
    EXPECT_EQ(log, Log{"open frmExport"});
}

TEST_F(ExportCommandsTest, PrintingDoesNothingWhileItsItemIsDisabled) {
    document().StaffCount = LongExport + 1;
    menus.disabled = {"mnuFilePrint"};
    exports().mnuFilePrint();
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_EQ(log, Log{});
    menus.disabled = {"mnuExportText"};
    exports().mnuFilePrint();
    EXPECT_EQ(log, Log{"open frmExport"});
}

} // namespace
} // namespace tabrova::testing
