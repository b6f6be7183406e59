#include "workbench/view_commands.h"

namespace tabrova {

ViewCommands::ViewCommands(Workbench& bench, MenuState& menus) : bench_(bench), menus_(menus) {
    bench_.surroundings.page = layout_.picDocument;
}

void ViewCommands::registerRows(CommandTable& table) {
    table.item("mnuViewNotation", [this] { mnuViewNotation(); });
    table.item("mnuVirtualFretboard", [this] { mnuVirtualFretboard(); });
    table.item("mnuViewRefresh", [this] { bench_.editor.refreshdrawing(); });
}

void ViewCommands::Form_Resize() {
    if (!loaded_) return;
    const Act act(bench_.acts, "Form_Resize");
    const Surroundings& around = bench_.surroundings;
    TabView& view = bench_.view;
    view.setScale(around.scale);
    layout_ = layOutWindow(layout_, around.clientWidth, around.clientHeight, bench_.document.VisibleStaves);
    bench_.surroundings.page = layout_.picDocument;
    bench_.acts.changes().layout = true;
    view.picDocument.resize(layout_.picDocument.width, layout_.picDocument.height);
    view.picStandardNotation.resize(layout_.picStandardNotation.width, StripHeight);
    view.picFretboard.resize(layout_.picFretboard.width, layout_.picFretboard.height);
    bench_.editor.pageResized();
}

void ViewCommands::mnuViewNotation() {
    const bool show = menus_.isChecked("mnuViewNotation");
    if (show && !bench_.document.isGuitarTrack(bench_.document.CurrentTrack))
        return menus_.setChecked("mnuViewNotation", false);
    const Act act(bench_.acts, "mnuViewNotation");
    layout_ = withStrip(layout_, show);
    bench_.surroundings.page = layout_.picDocument;
    Form_Resize();
    bench_.editor.showPageLine(!show);
}

// The page gives the neck its room, or takes it back.
void ViewCommands::mnuVirtualFretboard() {
    layout_.fretboardShown = menus_.isChecked("mnuVirtualFretboard");
    Form_Resize();
}

void ViewCommands::showStatistics(bool shown) {
    const Act act(bench_.acts, "chkStats_Click");
    statisticsShown_ = shown;
    bench_.acts.changes().layout = true;
}

void ViewCommands::setDebugMode(bool on) {
    const Act act(bench_.acts, "Check2_Click");
    bench_.surroundings.debugMode = on;
    bench_.editor.refreshdrawing();
}

} // namespace tabrova
