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
    // By the items' checks. The strip opens only on a guitar track; it can be closed on any.
    void mnuViewNotation();
    void mnuVirtualFretboard();
    // The statistics line, and whether it shows the fields.
    void showStatistics(bool shown);
    void setDebugMode(bool on);

    const WindowLayout& layout() const { return layout_; }
    bool statisticsShown() const { return statisticsShown_; }

  private:
    Workbench& bench_;
    MenuState& menus_;
    WindowLayout layout_;
    bool loaded_ = false;
    bool statisticsShown_ = false;
};

} // namespace tabrova
