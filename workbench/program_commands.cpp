#include "workbench/program_commands.h"

#include "sound/pitch.h"

#include <utility>

namespace tabrova {

namespace {

constexpr int StartProgram = 24;

} // namespace

void ProgramCommands::Form_Load(const QString& commandLine, Splash splash) {
    Commands& commands = context_.commands;
    commands.language.LoadLanguage();
    startSound();
    bench_.editor.SetDebugLabel();
    commands.documents.MakeNewDocument();
    bench_.properties.takeStartValues();
    bench_.tracks.showChosen();
    commands.views.restoreZoom();
    commands.views.windowIsLoaded();
    menus_.setChecked("mnuViewNotation", true);
    commands.views.mnuViewNotation();
    // Only now the staves that the page shows are known, and with them its height.
    commands.views.Form_Resize();
    if (!commandLine.isEmpty()) {
        commands.documents.OpenCommandLineDocument(commandLine);
    } else if (splash == Splash::AsSettingsSay &&
               context_.services.settings.GetSetting("Options", "ShowSplash", "1") == "1") {
        context_.tools.open("frmAltSplash");
    }
    bench_.editor.focusPage();
}

// The options open the device that the user has chosen, and stay loaded.
void ProgramCommands::startSound() {
    bench_.sound.CloseMidiDevice();
    context_.tools.load("frmOptions");
    context_.tools.load("frmInstrumentSelector");
    bench_.sound.ProgramChange(GuitarChannel, StartProgram);
}

void ProgramCommands::endInOrder() {
    if (std::exchange(ended_, true)) return;
    context_.commands.playback.StopTimer();
    context_.commands.playback.StopTimer();
    bench_.sound.AllNotesOff();
    context_.tools.unloadAll();
    bench_.sound.CloseMidiDevice();
}

} // namespace tabrova
