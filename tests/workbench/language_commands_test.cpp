// The program's words follow the active language file.
#include "tests/workbench/tool_bench.h"

#include "core/language/language_file.h"

#include <fstream>

namespace tabrova::testing {
namespace {

class LanguageSteps : public ToolBench {
  protected:
    // Line n says "Line n".
    void writeFile(int lines) {
        std::ofstream file(activeLanguageFile(folder()), std::ios::trunc);
        for (int line = 1; line <= lines; ++line)
            file << "Line " << line << "\r\n";
    }
};

TEST_F(LanguageSteps, TheWordsAreTheBuiltInOnesBeforeAnyFileIsRead) {
    writeFile(600);
    EXPECT_EQ(bench.words.track, "Track");
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::Yes], "&Yes");
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::No], "&No");
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::Ok], "OK");
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::Cancel], "Cancel");
}

TEST_F(LanguageSteps, LoadingTakesEveryMessageOfTheMainWindowFromItsLine) {
    writeFile(600);
    commands.language.LoadLanguage();
    EXPECT_TRUE(watcher.last.language);
    std::set<std::string> words;
    for (const LanguageLine& line : languageLinesOf("frmMain"))
        if (line.use == LineUse::Message) words.insert("Line " + std::to_string(line.number));
    for (const std::string& word : {bench.words.track,
                                    bench.words.of,
                                    bench.words.staff,
                                    bench.words.selectedTrack,
                                    bench.words.saveQuestion,
                                    bench.words.percussionQuestion,
                                    bench.words.onlyTrack,
                                    bench.words.removeTrackQuestion,
                                    bench.words.clearOnlyStaffQuestion,
                                    bench.words.longExport,
                                    bench.words.foreignCharacter,
                                    bench.words.place,
                                    bench.words.playing,
                                    bench.words.speed,
                                    bench.words.notSaved,
                                    bench.words.noBankHere,
                                    bench.words.noOutputHere,
                                    bench.words.noAnswerHere,
                                    bench.words.noBank,
                                    bench.words.bankUnreadable,
                                    bench.words.noOutput,
                                    bench.words.noAnswer,
                                    bench.words.soundBanks,
                                    bench.words.keys,
                                    bench.words.keysOnPage,
                                    bench.words.arrowKeys,
                                    bench.words.moveCursor,
                                    bench.words.digits,
                                    bench.words.writeFret,
                                    bench.words.recentDocuments,
                                    bench.words.examples,
                                    bench.words.fileGone,
                                    bench.words.toolkit})
        EXPECT_EQ(words.erase(word), 1u) << word;
    for (const auto& [answer, text] : boxes.buttonTexts)
        EXPECT_EQ(words.erase(text.toStdString()), 1u) << text.toStdString();
    EXPECT_EQ(words, std::set<std::string>());
}

TEST_F(LanguageSteps, AShorterFileLeavesTheBuiltInWordsBehindItsEnd) {
    writeFile(600);
    commands.language.LoadLanguage();
    writeFile(3);
    commands.language.LoadLanguage();
    EXPECT_EQ(bench.words.foreignCharacter, LanguageWords().foreignCharacter);
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::No], "&No");
}

TEST_F(LanguageSteps, AWordIsCutWhereNoCaptionIsLonger) {
    std::ofstream file(activeLanguageFile(folder()), std::ios::trunc);
    for (int line = 1; line <= 600; ++line)
        file << std::string(251, 'x') << "\n";
    file.close();
    commands.language.LoadLanguage();
    EXPECT_EQ(bench.words.track, std::string(250, 'x'));
}

TEST_F(LanguageSteps, AnotherLanguageIsWrittenIntoPanelAndLineAtOnce) {
    writeFile(600);
    const std::string panel = bench.texts.trackPanel;
    commands.language.languageApplied();
    EXPECT_EQ(log, Log{"act lstLanguages_DblClick"});
    EXPECT_TRUE(watcher.last.language && watcher.last.trackPanel && watcher.last.statistics);
    EXPECT_EQ(bench.texts.trackPanel, bench.words.track + " Untitled Track");
    EXPECT_TRUE(bench.texts.statistics.starts_with(bench.words.track + " 1 "));
    EXPECT_NE(bench.texts.trackPanel, panel);
    EXPECT_EQ(watcher.last.redraws, 0);
}

TEST_F(LanguageSteps, APatchIsTheFirstLineOfAFileAmongTheInstalledOnes) {
    std::filesystem::create_directory(installedLanguages(folder()));
    std::ofstream(installedLanguages(folder()) / "patch") << "&Fichero\nsecond";
    std::ofstream(installedLanguages(folder()) / "empty");
    EXPECT_EQ(commands.language.ApplyLanguagePatch("patch"), "&Fichero");
    for (const char* name : {"empty", "missing", "..", ".", "", "../lang.trl", "/etc/hostname"})
        EXPECT_EQ(commands.language.ApplyLanguagePatch(name), std::nullopt) << name;
}

} // namespace
} // namespace tabrova::testing
