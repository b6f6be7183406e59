// The two views beside the page, and where all panels of the window stand.
#pragma once

#include "editing/command_table.h"
#include "workbench/menu_state.h"
#include "workbench/window_layout.h"
#include "workbench/workbench.h"

namespace tabrova {

class ViewCommands {
  public:
    ViewCommands(Workbench& bench, MenuState& menus);
    void registerRows(CommandTable& table);

    // From now on the panels are laid out.
    void windowIsLoaded() { loaded_ = true; }
    // The window has the size that its surroundings say. Nothing while it is not loaded.
    void Form_Resize();
    // The window's client area, in pixels of the screen's own unit, and how many points of the screen one of
    // them has. The surroundings take them as they are at the zoom.
    void takeClientArea(int width, int height, double pixelRatio);
    // The zoom in percent, one of ZoomSteps; any other number takes the nearest. It is remembered.
    void setZoom(int percent);
    // As it was remembered, else this one.
    void restoreZoom();
    void setFirstZoom(int percent) { firstZoom_ = percent; }
    // No zoom is larger from now on: the screen has no room for the page.
    void setLargestZoom(int percent) { largestZoom_ = percent; }
    // To the next larger (1) or smaller step (-1), as far as there is one.
    void stepZoom(int steps);
    int zoom() const { return zoom_; }
    // Where something of the layout stands in the window.
    Rect inWindow(const Rect& place) const { return zoomed(place, zoom_); }
    // By the items' checks. The strip opens only on a guitar track; it can be closed on any.
    void mnuViewNotation();
    void mnuVirtualFretboard();
    // The statistics line, and whether it shows the fields.
    void showStatistics(bool shown);
    void setDebugMode(bool on);

    const WindowLayout& layout() const { return layout_; }
    bool statisticsShown() const { return statisticsShown_; }
    int clientWidth() const { return clientWidth_; }
    int clientHeight() const { return clientHeight_; }

  private:
    Workbench& bench_;
    MenuState& menus_;
    void takeZoom();

    WindowLayout layout_;
    void showZoom(int percent);

    int zoom_ = UnzoomedPercent;
    int firstZoom_ = UnzoomedPercent; // for whom none is remembered
    int largestZoom_ = ZoomSteps.back();
    int clientWidth_ = 0; // of the window
    int clientHeight_ = 0;
    double pixelRatio_ = 1.0;
    bool loaded_ = false;
    bool statisticsShown_ = false;
};

} // namespace tabrova
