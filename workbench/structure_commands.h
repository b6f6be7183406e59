// The commands that change the shape of the grid, from menus and toolbar: staves, columns, the clipboard and
// the note lengths.
#pragma once

#include "editing/command_table.h"
#include "workbench/workbench.h"

namespace tabrova {

class StructureCommands {
  public:
    explicit StructureCommands(Workbench& bench) : bench_(bench), editor_(bench.editor) {}
    void registerRows(CommandTable& table);

    // The document's only staff cannot go: asks whether it is to be cleared instead.
    void mnuDeleteBar();

  private:
    void registerStaves(CommandTable& table);
    void registerColumns(CommandTable& table);

    Workbench& bench_;
    Editor& editor_;
};

} // namespace tabrova
