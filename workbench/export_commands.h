// The File menu's ways out of the program as text: the text of the current track, and the window that shows
// it to be saved and printed.
#pragma once

#include "editing/command_table.h"
#include "workbench/menu_state.h"
#include "workbench/tool_opener.h"
#include "workbench/workbench.h"

namespace tabrova {

class ExportCommands {
  public:
    ExportCommands(Workbench& bench, ToolOpener& tools, const MenuState& menus)
        : bench_(bench), tools_(tools), menus_(menus) {}
    void registerRows(CommandTable& table);

    void mnuExportText();
    // Printing goes through the same text.
    void mnuFilePrint();

    // Writes the current track's text tablature in the place of any file there; a link is replaced and not
    // followed. Returns the text, whatever became of the file.
    std::string ExportToFile(const std::filesystem::path& path) const;

  private:
    // What the window of the track's properties would show of its instrument, in UTF-8.
    QString instrumentCaption() const;

    Workbench& bench_;
    ToolOpener& tools_;
    const MenuState& menus_;
};

} // namespace tabrova
