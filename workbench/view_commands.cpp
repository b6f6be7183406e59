#include "workbench/view_commands.h"

#include <algorithm>
#include <cstdlib>

namespace tabrova {

ViewCommands::ViewCommands(Workbench& bench, MenuState& menus) : bench_(bench), menus_(menus) {
    bench_.surroundings.page = layout_.picDocument;
}

void ViewCommands::registerRows(CommandTable& table) {
    table.item("mnuViewNotation", [this] { mnuViewNotation(); });
    table.item("mnuVirtualFretboard", [this] { mnuVirtualFretboard(); });
    table.item("mnuViewRefresh", [this] { bench_.editor.refreshdrawing(); });
    for (std::size_t step = 0; step < ZoomSteps.size(); ++step)
        table.item("mnuZoom(" + std::to_string(step) + ")", [this, step] { setZoom(ZoomSteps[step]); });
    table.item("mnuZoomIn", [this] { stepZoom(1); });
    table.item("mnuZoomOut", [this] { stepZoom(-1); });
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

void ViewCommands::takeClientArea(int width, int height, double pixelRatio) {
    clientWidth_ = width;
    clientHeight_ = height;
    pixelRatio_ = pixelRatio;
    takeZoom();
}

void ViewCommands::takeZoom() {
    if (clientWidth_ < 1) return;
    Surroundings& around = bench_.surroundings;
    around.clientWidth = unzoomedWidth(clientWidth_, zoom_);
    around.clientHeight = unzoomedHeight(clientHeight_, zoom_);
    around.scale = surfaceScale(pixelRatio_, zoom_);
}

void ViewCommands::setZoom(int percent) {
    showZoom(percent);
    bench_.services.settings.SaveSetting("Options", "Zoom", QString::number(zoom_));
}

void ViewCommands::restoreZoom() {
    const QString stored = bench_.services.settings.GetSetting("Options", "Zoom", {});
    showZoom(stored.isEmpty() ? firstZoom_ : std::clamp(stored.toInt(), ZoomSteps.front(), ZoomSteps.back()));
}

void ViewCommands::showZoom(int percent) {
    percent = std::min(percent, largestZoom_);
    zoom_ =
        *std::ranges::min_element(ZoomSteps, {}, [percent](int step) { return std::abs(step - percent); });
    for (std::size_t step = 0; step < ZoomSteps.size(); ++step)
        menus_.setChecked("mnuZoom(" + QString::number(step) + ")", ZoomSteps[step] == zoom_);
    takeZoom();
    // A window that is too narrow for this zoom shows the narrowest page.
    if (bench_.surroundings.clientWidth <= NarrowestFollowedWidth)
        layout_.picDocument.width = NarrowestFollowedWidth - ScrollBarWidth;
    Form_Resize();
}

void ViewCommands::stepZoom(int steps) {
    const auto at = std::ranges::find(ZoomSteps, zoom_) - ZoomSteps.begin();
    setZoom(ZoomSteps[static_cast<std::size_t>(
        std::clamp<std::ptrdiff_t>(at + steps, 0, std::ssize(ZoomSteps) - 1))]);
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
