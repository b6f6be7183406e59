// How the program starts and ends, step by step.
#include "tests/workbench/tool_bench.h"

#include "core/document/document_file.h"
#include "core/document/document_operations.h"
#include "platform/paths.h"

#include <fstream>

namespace tabrova::testing {
namespace {

using Messages = std::vector<ShortMessage>;
using Splash = ProgramCommands::Splash;

class ProgramSteps : public ToolBench {
  protected:
    ProgramSteps() { bench.editor.modes.powerChord = true; }
    int countOf(const std::string& step) {
        return static_cast<int>(std::count(log.begin(), log.end(), step));
    }
    std::ptrdiff_t placeOf(const std::string& step) {
        return std::find(log.begin(), log.end(), step) - log.begin();
    }

    ProgramCommands program{context, menus};
};

TEST_F(ProgramSteps, StartInTheirOrder) {
    tools.whenLoaded = [this](std::string_view form) {
        if (form != "frmOptions") return;
        EXPECT_EQ(bench.sound.MidiOutputHandle, 0u); // the device is closed before
        bench.sound.OpenMidiDevice(MidiMapperId);
        midi.take();
    };
    program.Form_Load({}, Splash::Never);
    for (const auto& [before, after] : {std::pair{"act LoadLanguage", "load frmOptions"},
                                        {"load frmOptions", "load frmInstrumentSelector"},
                                        {"load frmInstrumentSelector", "act SetDebugLabel"},
                                        {"act SetDebugLabel", "act MakeNewDocument"},
                                        {"act MakeNewDocument", "act Form_Load"},
                                        {"act Form_Load", "act mnuViewNotation"},
                                        {"act mnuViewNotation", "act Form_Resize"},
                                        {"act Form_Resize", "act focusPage"}}) {
        EXPECT_EQ(countOf(before), 1) << before;
        EXPECT_LT(placeOf(before), placeOf(after)) << before;
    }
    EXPECT_EQ(log.back(), "act focusPage");
    EXPECT_EQ(midi.take(), (Messages{{0xB0, 0, 0x80}, {0xC0, 24, 0}}));
    EXPECT_TRUE(menus.isChecked("mnuViewNotation"));
    EXPECT_TRUE(commands.views.layout().stripShown);
    EXPECT_EQ(document().VisibleStaves, 4);
    EXPECT_EQ(document().Tempo, 480);
    EXPECT_EQ(document().TuningTable, std::vector<std::int16_t>(6, 13));
    EXPECT_EQ(bench.texts.trackPanel, "Untitled Track selected (Click here to change)");
}

TEST_F(ProgramSteps, TheInstrumentsShowTheProgramOfTheNewTrack) {
    struct Listener : ActObserver {
        explicit Listener(Acts& itsActs) : acts(itsActs) { acts.add(*this); }
        ~Listener() override { acts.remove(*this); }
        void actEnded(std::string_view, const Changes& changes) override { chosen += changes.trackChosen; }
        Acts& acts;
        int chosen = 0;
    } listener(bench.acts);
    program.Form_Load({}, Splash::Never);
    EXPECT_EQ(listener.chosen, 1);
}

TEST_F(ProgramSteps, ThePageIsAsHighAsTheStavesThatItShowsLeaveIt) {
    program.Form_Load({}, Splash::Never);
    EXPECT_EQ(bench.view.picDocument.height(), 676 - 204 - 24);
    EXPECT_EQ(bench.surroundings.page, commands.views.layout().picDocument);
}

TEST_F(ProgramSteps, TheWelcomeWindowComesIfTheSettingsDoNotForbidIt) {
    program.Form_Load({}, Splash::AsSettingsSay);
    EXPECT_EQ(countOf("open frmAltSplash"), 1);
    settings->SaveSetting("Options", "ShowSplash", "0");
    program.Form_Load({}, Splash::AsSettingsSay);
    settings->SaveSetting("Options", "ShowSplash", "1");
    program.Form_Load({}, Splash::Never);
    EXPECT_EQ(countOf("open frmAltSplash"), 1);
}

TEST_F(ProgramSteps, ADocumentOfTheCommandLineComesInThePlaceOfTheWelcomeWindow) {
    Document other;
    resetToNewDocument(other);
    other.Title = "Other";
    ASSERT_TRUE(saveDocument(other, folder() / "other.tr3"));
    program.Form_Load(textOf(folder() / "other.tr3"), Splash::AsSettingsSay);
    EXPECT_EQ(countOf("open frmAltSplash"), 0);
    EXPECT_EQ(document().Title, "Other");
}

TEST_F(ProgramSteps, EndInTheirOrderAndOnce) {
    program.Form_Load({}, Splash::Never);
    bench.sound.OpenMidiDevice(MidiMapperId);
    commands.playback.play(PlayFrom::Start);
    log.clear();
    midi.take();
    program.endInOrder();
    EXPECT_EQ(log, (Log{"clock off", "act StopTimer", "clock off", "act StopTimer", "unload all"}));
    EXPECT_EQ(midi.take().size(), 18u); // two for each of nine channels
    EXPECT_EQ(bench.sound.MidiOutputHandle, 0u);
    log.clear();
    program.endInOrder();
    EXPECT_EQ(log, Log{});
}

} // namespace
} // namespace tabrova::testing
