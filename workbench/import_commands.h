// The File menu's way in for documents of the previous generation.
#pragma once

#include "workbench/document_commands.h"

namespace tabrova {

class ImportCommands {
  public:
    ImportCommands(Workbench& bench, DocumentCommands& documents, ToolOpener& tools)
        : bench_(bench), documents_(documents), tools_(tools) {}
    void registerRows(CommandTable& table);

    // The document is new from the beginning on, whatever comes of the question and of the file; what fails
    // ends it without a word and without a redraw.
    void mnuImportTR211();

    // The name of the file that was last asked for.
    CommonDialog CommonDialog2;

  private:
    void readNamedDocument();

    Workbench& bench_;
    DocumentCommands& documents_;
    ToolOpener& tools_;
};

} // namespace tabrova
