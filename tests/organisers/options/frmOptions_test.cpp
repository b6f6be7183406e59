// The options window by itself: what each control does at once, and what it does with a device that is gone.
#include "organisers/options/frmOptions.h"

#include "tests/workbench/tool_bench.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class Options : public testing::ToolBench {
  protected:
    Options() {
        bench.sound.CloseMidiDevice();
        midi.take();
        document().RealtimeMode = 0;
        document().TrackInstruments = {"30"};
        document().TrackVolumes = {"127"};
    }

    frmOptions& load() {
        form = std::make_unique<frmOptions>(context, nullptr);
        form->Form_Load();
        form->show();
        return *form;
    }
    ListBox& list(const char* name) { return *form->findChild<ListBox*>(name); }
    QAbstractButton& button(const char* name) { return *form->findChild<QAbstractButton*>(name); }
    QLabel& label(const char* name) { return *form->findChild<QLabel*>(name); }
    void clickRow(ListBox& rows, int row) {
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(rows.item(row)).center());
    }
    QString stored(const char* key) { return settings->GetSetting("Options", key, "nothing"); }

    std::unique_ptr<frmOptions> form;

    using Messages = std::vector<ShortMessage>;
};

TEST_F(Options, OpenTheFirstDeviceIfNoneIsStored) {
    load();
    EXPECT_EQ(list("lst_Devices").count(), 2);
    EXPECT_EQ(list("lst_Devices").currentRow(), 0);
    EXPECT_NE(bench.sound.MidiOutputHandle, 0u);
    EXPECT_EQ(midi.take(), (Messages{{0xB0, 0, 0x80}, {0xC0, 30, 0}}));
    EXPECT_EQ(stored("DeviceIndex"), "0");
    EXPECT_TRUE(label("lblDeviceGone").isHidden());
}

TEST_F(Options, OpenTheStoredDevice) {
    settings->SaveSetting("Options", "DeviceIndex", "1");
    load();
    EXPECT_EQ(list("lst_Devices").currentRow(), 1);
    EXPECT_NE(bench.sound.MidiOutputHandle, 0u);
}

TEST_F(Options, LeaveTheDeviceClosedIfTheStoredOneIsGone) {
    for (const char* gone : {"2", "-1", "port", ""}) {
        settings->SaveSetting("Options", "DeviceIndex", gone);
        load();
        EXPECT_EQ(list("lst_Devices").currentRow(), -1) << gone;
        EXPECT_EQ(bench.sound.MidiOutputHandle, 0u) << gone;
        EXPECT_FALSE(label("lblDeviceGone").isHidden()) << gone;
        bench.sound.NoteOn(0, 60, 100);
        EXPECT_EQ(ends, 0) << gone;
        EXPECT_TRUE(midi.take().empty()) << gone;
        EXPECT_EQ(stored("DeviceIndex"), gone);
    }
    clickRow(list("lst_Devices"), 1);
    EXPECT_NE(bench.sound.MidiOutputHandle, 0u);
    EXPECT_TRUE(label("lblDeviceGone").isHidden());
    EXPECT_EQ(stored("DeviceIndex"), "1");
    midi.setFailing(RecordingMidiDevice::Operation::Send, true);
    bench.sound.NoteOn(0, 60, 100);
    EXPECT_EQ(ends, 1); // from now on a failure counts
}

TEST_F(Options, ReopenTheSameDeviceAtAClick) {
    load();
    midi.take();
    midi.setFailing(RecordingMidiDevice::Operation::Close, true);
    clickRow(list("lst_Devices"), 0);
    EXPECT_EQ(ends, 1); // it was closed
    EXPECT_NE(bench.sound.MidiOutputHandle, 0u);
    EXPECT_EQ(midi.take(), (Messages{{0xB0, 0, 0x80}, {0xC0, 30, 0}}));
}

TEST_F(Options, SkipTheProgramOfATrackWhoseInstrumentIsNoNumber) {
    document().TrackInstruments = {"guitar"};
    load();
    EXPECT_NE(bench.sound.MidiOutputHandle, 0u);
    EXPECT_TRUE(midi.take().empty());
    EXPECT_EQ(stored("DeviceIndex"), "0");
}

TEST_F(Options, HideTheDebugBoxUntilTheTwoHundredthClick) {
    load();
    for (int click = 1; click <= 199; ++click)
        clickRow(list("lst_Devices"), click % 2);
    EXPECT_TRUE(button("Check2").isHidden());
    clickRow(list("lst_Devices"), 0);
    EXPECT_FALSE(button("Check2").isHidden());
    clickRow(list("lst_Devices"), 0);
    EXPECT_FALSE(button("Check2").isHidden());
    button("Check2").click();
    EXPECT_TRUE(bench.surroundings.debugMode);
    button("Check2").click();
    EXPECT_FALSE(bench.surroundings.debugMode);
}

TEST_F(Options, ShowWhatHoldsWhenTheyLoad) {
    load();
    EXPECT_TRUE(button("PlayAllTracks").isChecked());
    EXPECT_FALSE(button("chkEyeBall").isChecked());
    EXPECT_FALSE(button("chkTABOUT").isChecked());
    EXPECT_FALSE(button("chkStats").isChecked());
    EXPECT_TRUE(button("chkSplash").isChecked());
    EXPECT_FALSE(button("Check1").isChecked());
    bench.editor.setCursorBorderWidth(2);
    bench.editor.setTabOneColor(true);
    settings->SaveSetting("Options", "ShowSplash", "0");
    const char* const modes[] = {"PlayAllTracks", "PlayNone", "PlayCurrentTrack"};
    for (std::int16_t mode = 0; mode < 3; ++mode) {
        document().RealtimeMode = mode;
        load();
        EXPECT_TRUE(button(modes[mode]).isChecked());
        EXPECT_TRUE(button("chkEyeBall").isChecked());
        EXPECT_TRUE(button("chkTABOUT").isChecked());
        EXPECT_FALSE(button("chkSplash").isChecked());
    }
    document().RealtimeMode = 17; // no such mode: nothing is chosen
    load();
    for (const char* mode : modes)
        EXPECT_FALSE(button(mode).isChecked());
}

TEST_F(Options, TakeEffectAtOnce) {
    load();
    button("PlayCurrentTrack").click();
    EXPECT_EQ(document().RealtimeMode, 2);
    button("PlayNone").click();
    EXPECT_EQ(document().RealtimeMode, 1);
    button("PlayAllTracks").click();
    EXPECT_EQ(document().RealtimeMode, 0);
    button("chkEyeBall").click();
    EXPECT_EQ(bench.editor.page().borderWidth, 2);
    button("chkEyeBall").click();
    EXPECT_EQ(bench.editor.page().borderWidth, 1);
    button("chkTABOUT").click();
    EXPECT_TRUE(bench.editor.tabOneColor());
    button("chkStats").click();
    EXPECT_TRUE(commands.views.statisticsShown());
    button("chkSplash").click();
    EXPECT_EQ(stored("ShowSplash"), "0");
    button("chkSplash").click();
    EXPECT_EQ(stored("ShowSplash"), "1");
    clickRow(list("lstColors"), 4);
    EXPECT_EQ(bench.editor.page().color, 0xFFFF8000u);
}

TEST_F(Options, MakeTheFolderOfLanguagesAndListItsFolders) {
    load();
    EXPECT_TRUE(std::filesystem::is_directory(services.programFolder / "languages"));
    EXPECT_EQ(list("lstLanguages").count(), 0);
    for (const char* name : {"languages/Deutsch", "languages/English"})
        std::filesystem::create_directory(services.programFolder / name);
    QFile file(home.filePath("languages/readme"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    load();
    ASSERT_EQ(list("lstLanguages").count(), 2);
    EXPECT_EQ(list("lstLanguages").item(0)->text(), "Deutsch");
    EXPECT_EQ(list("lstLanguages").item(1)->text(), "English");
}

TEST_F(Options, BearAFolderOfLanguagesThatCannotBeMade) {
    services.programFolder = "/dev/null/nowhere";
    load();
    EXPECT_EQ(list("lstLanguages").count(), 0);
}

TEST_F(Options, TellWhatTheSynthesizerUses) {
    synthesizer.told = {true, true, "", "", ""};
    load();
    EXPECT_EQ(label("lblSoundBank").text(), "loading...");
    synthesizer.told = {true, false, "/banks/small.sf2", "PulseAudio", ""};
    synthesizer.tellChange();
    EXPECT_EQ(label("lblSoundBank").text(), "small.sf2");
    EXPECT_EQ(label("lblSoundBank").toolTip(), "/banks/small.sf2");
    EXPECT_EQ(label("lblAudioOutput").text(), "PulseAudio");
    EXPECT_TRUE(label("lblSoundTrouble").isHidden());
    synthesizer.told = {true, false, "", "", "No sound bank was found."};
    synthesizer.tellChange();
    EXPECT_EQ(label("lblSoundBank").text(), "none");
    EXPECT_EQ(label("lblSoundTrouble").text(), "No sound bank was found.");
    EXPECT_FALSE(label("lblSoundTrouble").isHidden());
    synthesizer.told = {};
    synthesizer.tellChange();
    EXPECT_EQ(label("lblAudioOutput").text(), "not in use");
}

TEST_F(Options, ChooseAnotherSoundBank) {
    load();
    button("cmdSoundBank").click(); // cancelled
    EXPECT_EQ(stored("SoundBank"), "nothing");
    files.queueAnswer("/banks/mine.sf3");
    button("cmdSoundBank").click();
    EXPECT_EQ(stored("SoundBank"), "/banks/mine.sf3");
    EXPECT_EQ(synthesizer.told.bank, "/banks/mine.sf3");
    EXPECT_EQ(label("lblSoundBank").text(), "mine.sf3");
}

TEST_F(Options, PlayAChordAsATest) {
    load();
    midi.take();
    button("cmdTestSound").click();
    EXPECT_EQ(midi.take(), (Messages{{0x90, 40, 127},
                                     {0x90, 47, 127},
                                     {0x90, 52, 127},
                                     {0x90, 56, 127},
                                     {0x90, 59, 127},
                                     {0x90, 64, 127}}));
    EXPECT_EQ(timers.timers().value("tmrsndStopper")->timerInterval(), 2000);
    EXPECT_TRUE(timers.timers().value("tmrsndStopper")->timerEnabled());
}

TEST_F(Options, CarryTheirTexts) {
    load();
    EXPECT_EQ(form->windowTitle(), "Options");
    const std::pair<const char*, const char*> texts[] = {
        {"PlayAllTracks", "Play Notes on All Tracks during Editing"},
        {"PlayNone", "Don't Play Notes during Editing"},
        {"PlayCurrentTrack", "Play Notes on Current Track Only during Editing"},
        {"chkEyeBall", "Make Cursor Stand Out"},
        {"chkTABOUT", "Make Tab One Color"},
        {"chkStats", "Show Statistics"},
        {"chkSplash", "Show Splash Screen"},
        {"Check1", "Show lines with cursor on tablature"},
        {"Check2", "Debug Mode"}};
    for (const auto& [name, text] : texts)
        EXPECT_EQ(button(name).text(), text);
    EXPECT_EQ(label("lblDevices").text(), "Output Device:");
    EXPECT_EQ(label("lblColors").text(), "Color of Cursor:");
    EXPECT_EQ(label("lblLanguages").text(), "Installed Languages: (Double Click to Apply)");
}

} // namespace
} // namespace tabrova
