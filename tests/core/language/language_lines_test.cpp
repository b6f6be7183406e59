// The table of the language lines: every range and every line of the main form, and the default file.
#include "core/language/language_lines.h"

#include "core/files/text_lines.h"
#include "core/language/language_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace tabrova {
namespace {

constexpr int LastFixedLine = 343;

struct Range {
    const char* form;
    int first;
    int last;
};

constexpr Range Ranges[] = {
    {"frmBandManager", 118, 145},   {"frmChordTypeCreator", 149, 152}, {"frmChordWizard", 156, 189},
    {"frmDrumMachine", 210, 217},   {"frmFileProperties", 221, 229},   {"frmInstrumentSelector", 233, 236},
    {"frmLessons", 240, 245},       {"frmMetronome", 249, 258},        {"frmOptions", 263, 275},
    {"frmPercussion", 279, 281},    {"frmScaleWizard", 285, 290},      {"frmTrackProperties", 294, 299},
    {"frmTuningManager", 303, 310}, {"frmWebsites", 319, 322},         {"frmExport", 328, 329},
    {"frmMIDIExport", 333, 343},
};

std::vector<std::string> assetLines(const std::string& name) {
    return readTextLines(std::filesystem::path(TABROVA_SOURCE_DIR) / "assets" / name, 100000);
}

TEST(LanguageLines, EachFormReadsItsWholeRangeInOrder) {
    for (const Range& range : Ranges) {
        int next = range.first;
        for (const LanguageLine& line : languageLinesOf(range.form))
            if (line.number <= LastFixedLine) {
                EXPECT_EQ(line.number, next++) << range.form;
            }
        EXPECT_EQ(next, range.last + 1) << range.form;
    }
}

TEST(LanguageLines, NoOtherFormReadsAFixedLine) {
    for (const FormLines& form : languageForms()) {
        const bool known = std::any_of(std::begin(Ranges), std::end(Ranges), [&](const Range& range) {
            return range.form == std::string(form.form);
        });
        if (known || form.form == std::string("frmMain")) continue;
        for (const LanguageLine& line : form.lines)
            EXPECT_GT(line.number, LastFixedLine) << form.form;
    }
}

TEST(LanguageLines, TheMainFormsLinesStandInTheirPlaces) {
    const std::map<int, std::vector<std::string>> places = {
        {5, {"mnuFile"}},
        {6,
         {"mnuFileNew", "mnuFileOpen", "mnuFileSave", "mnuFilePrint", "mnuFileExport", "mnuExportText",
          "mnuExportMidiFile"}},
        {14, {"mnuFileImport", "mnuImportTR211", "mnuFileProperties", "mnuExit"}},
        {19,
         {"mnuEdit", "mnuMode", "mnuCCP", "mnuStandard", "mnuIntelligent", "mnuCopyStaff", "mnuEditCopyNext",
          "mnuCopyNextBeat(0)", "mnuCopyNextBeat(1)", "mnuCopyNextBeat(2)", "mnuCopyNextBeat(3)",
          "mnuCopyNextBeat(4)", "mnuCopyNextBeat(5)", "mnuCopyNextBeat(6)", "mnuCopyNextBeat(7)",
          "mnuEditPaste(0)", "mnuEditPaste(1)"}},
        {37, {"mnuView", "mnuViewNotation", "mnuVirtualFretboard", "mnuViewRefresh"}},
        {42,
         {"mnuStaff", "mnuEditnewBar", "mnuEditNewBarBeforeCurrent", "mnuEditNewBarAfterCurrentBar",
          "mnuEditnewBarAtEndofDocument", "mnuClearBarAllTracks", "ClearStaffallall",
          "clearstaffallnorepeats", "clearstaffallnotes", "clearstaffalltech", "clearstaffcurrentall",
          "clearstaffcurrentnorepeats", "clearstaffcurrentnotes", "clearstaffcurrenttech", "mnuDeleteBar"}},
        {58,
         {"mnuNote", "mnuEditInsertNoteOnAllTracks", "mnuEditInsertNoteOnCurrentTrack",
          "mnuEditRemoveNoteonAllTracks", "mnuEditRemoveNoteonCurrentTrack", "mnuNoteDeleteNote",
          "mnuNoteDeleteTechnique", "mnuInsertSeparator", "mnuInsertOpenRepeat", "mnuInsertClosedRepeat",
          "mnuNoteRemoveBar"}},
        {70, {"mnuTrack", "mnuAddTrack", "mnuKillTrack", "mnuTrackProps"}},
        {75,
         {"mnuTools", "mnuChordManager", "mnuScaleManager", "mnuBandManager", "mnuTuningManager",
          "mnuToolsWebsiteManager", "mnuToolsGuitarLessons", "mnuToolsMetronome", "mnuToolsDrumMachine",
          "mnuToolsOptions"}},
        {86, {"mnuSound", "mnuSoundPlayAll", "mnuPlayFromHere", "mnuPlaybackStop"}},
        {91, {"mnuHelp", "mnuHelpContents", "mnuTechSupport", "mnuNewVersionCheck", "mnuAbout"}},
        {99,
         {"lblToolTip2(3)", "track", "lblToolTip2(2)", "lblToolTip2(0)", "Label1", "lblToolTip2(1)",
          "Label2"}},
    };
    std::map<int, std::string> expected;
    for (const auto& [first, names] : places)
        for (std::size_t index = 0; index < names.size(); ++index)
            expected[first + static_cast<int>(index)] = names[index];
    std::map<int, std::string> read;
    int messages = 0;
    for (const LanguageLine& line : languageLinesOf("frmMain")) {
        if (line.number <= 105) read[line.number] = line.target;
        if (line.number > 105 && line.number <= 114) messages += line.use == LineUse::Message ? 1 : 0;
    }
    EXPECT_EQ(read, expected);
    EXPECT_EQ(messages, 9);
}

TEST(LanguageLines, NoLineHasTwoReaders) {
    std::set<int> numbers;
    for (const FormLines& form : languageForms())
        for (const LanguageLine& line : form.lines)
            EXPECT_TRUE(numbers.insert(line.number).second) << form.form << " " << line.number;
}

TEST(LanguageLines, EveryMessageOfTheMainFormHasAWordThatHoldsItsBuiltInText) {
    LanguageWords words;
    const LanguageWords builtIn;
    std::size_t taken = 0;
    for (const LanguageLine& line : languageLinesOf("frmMain")) {
        if (line.use != LineUse::Message || std::string_view(line.target).starts_with("box.")) continue;
        words.set(line.target, line.text);
        ++taken;
    }
    EXPECT_EQ(taken, 33U);
    EXPECT_EQ(words.track, builtIn.track);
    EXPECT_EQ(words.of, builtIn.of);
    EXPECT_EQ(words.staff, builtIn.staff);
    EXPECT_EQ(words.selectedTrack, builtIn.selectedTrack);
    EXPECT_EQ(words.saveQuestion, builtIn.saveQuestion);
    EXPECT_EQ(words.percussionQuestion, builtIn.percussionQuestion);
    EXPECT_EQ(words.onlyTrack, builtIn.onlyTrack);
    EXPECT_EQ(words.removeTrackQuestion, builtIn.removeTrackQuestion);
    EXPECT_EQ(words.clearOnlyStaffQuestion, builtIn.clearOnlyStaffQuestion);
    EXPECT_EQ(words.longExport, builtIn.longExport);
    EXPECT_EQ(words.foreignCharacter, builtIn.foreignCharacter);
    EXPECT_EQ(words.place, builtIn.place);
    EXPECT_EQ(words.playing, builtIn.playing);
    EXPECT_EQ(words.speed, builtIn.speed);
    EXPECT_EQ(words.notSaved, builtIn.notSaved);
    EXPECT_EQ(words.fileGone, builtIn.fileGone);
    EXPECT_EQ(words.noBankHere, builtIn.noBankHere);
    EXPECT_EQ(words.noOutputHere, builtIn.noOutputHere);
    EXPECT_EQ(words.noAnswerHere, builtIn.noAnswerHere);
    EXPECT_EQ(words.soundBanks, builtIn.soundBanks);
    EXPECT_EQ(words.keys, builtIn.keys);
    EXPECT_EQ(words.keysOnPage, builtIn.keysOnPage);
    EXPECT_EQ(words.arrowKeys, builtIn.arrowKeys);
    EXPECT_EQ(words.moveCursor, builtIn.moveCursor);
    EXPECT_EQ(words.digits, builtIn.digits);
    EXPECT_EQ(words.writeFret, builtIn.writeFret);
    EXPECT_EQ(words.recentDocuments, builtIn.recentDocuments);
    EXPECT_EQ(words.examples, builtIn.examples);
    EXPECT_EQ(words.toolkit, builtIn.toolkit);
    // The synthesizer says these itself until a language is loaded.
    for (const auto word : {&LanguageWords::noBank, &LanguageWords::bankUnreadable, &LanguageWords::noOutput,
                            &LanguageWords::noAnswer}) {
        EXPECT_EQ(builtIn.*word, "");
        EXPECT_NE(words.*word, "");
    }
}

TEST(LanguageLines, TheDefaultFileHoldsTheBuiltInTexts) {
    const std::vector<std::string> file = assetLines("lang.trl");
    ASSERT_EQ(static_cast<int>(file.size()), lastLanguageLine());
    std::vector<std::string> expected(file.size());
    expected[0] = "Tabrova";
    expected[1] = "English";
    for (const FormLines& form : languageForms())
        for (const LanguageLine& line : form.lines)
            expected[static_cast<std::size_t>(line.number - 1)] = line.text;
    for (std::size_t index = 0; index < file.size(); ++index)
        EXPECT_EQ(file[index], expected[index]) << "line " << index + 1;
    EXPECT_EQ(assetLines("languages/English/lang.trl"), file);
}

TEST(LanguageLines, EveryInstalledLanguageHasEveryText) {
    int languages = 0;
    const std::vector<std::string> english = assetLines("lang.trl");
    for (const auto& folder : std::filesystem::directory_iterator(std::filesystem::path(TABROVA_SOURCE_DIR) /
                                                                  "assets/languages")) {
        const auto lines = readTextLines(folder.path() / "lang.trl", 100000);
        ASSERT_EQ(lines.size(), english.size()) << folder.path();
        for (std::size_t index = 0; index < lines.size(); ++index)
            EXPECT_EQ(lines[index].empty(), english[index].empty()) << folder.path() << " " << index + 1;
        ++languages;
    }
    EXPECT_EQ(languages, 7);
}

} // namespace
} // namespace tabrova
