// Note entry from menus and toolbar: the entry modes, and the items and words that stand for keys of the
// page.
#pragma once

#include "editing/command_table.h"
#include "workbench/menu_state.h"
#include "workbench/workbench.h"

namespace tabrova {

class EntryCommands {
  public:
    EntryCommands(Workbench& bench, MenuState& menus) : bench_(bench), menus_(menus) {}
    void registerRows(CommandTable& table);

    // Plain entry and power chords exclude each other, as the items' checks show.
    void mnuStandard() { chooseMode(false); }
    void mnuCCP() { chooseMode(true); }
    // By the item's check.
    void mnuIntelligent();

  private:
    void chooseMode(bool powerChord);

    Workbench& bench_;
    MenuState& menus_;
};

} // namespace tabrova
