// The File menu's commands on the document: new, open, save, and the question that goes before them.
#pragma once

#include "editing/command_table.h"
#include "workbench/menu_state.h"
#include "workbench/recent_documents.h"
#include "workbench/tool_opener.h"
#include "workbench/workbench.h"

namespace tabrova {

// `CommonDialog1`: the one store of the current file's name.
struct CommonDialog {
    QString fileName;
};

// How the document is left for another one.
enum class Leaving { WithAQuestion, WithoutAQuestion };

class DocumentCommands {
  public:
    DocumentCommands(Workbench& bench, ToolOpener& tools, const MenuState& menus);
    void registerRows(CommandTable& table);
    // Of the file that the document was read from or saved in, without its folder; "" for a document that has
    // none.
    QString fileName() const;

    void mnuFileNew();
    // New without the question: a new document, then its properties.
    void newTablature();
    void mnuFileOpen();
    void mnuFileSave();
    void mnuSaveAs();
    // The properties go first, so that their next showing reads the new values.
    void MakeNewDocument();
    // Reads without asking to save; `showDialog` asks for the file first, else the dialog's name serves.
    void OpenDocNoConfirm(bool showDialog);
    void OpenCommandLineDocument(const QString& path);
    // Asks to save, unless told not to, then reads this file. One that is gone is told and leaves the list of
    // recent documents.
    void openFile(const QString& path, Leaving leaving = Leaving::WithAQuestion);

    // The question before the document goes. Yes has already saved when this returns; false: the user
    // cancelled.
    bool confirmLeaving();

    CommonDialog CommonDialog1;
    RecentDocuments recent;

  private:
    bool askForName(FileQuestion::Kind kind);
    void readNamedDocument();
    // The document is in the dialog's file now.
    void tookFile();

    Workbench& bench_;
    Document& document_;
    Editor& editor_;
    Services& services_;
    ToolOpener& tools_;
    const MenuState& menus_;
    QString file_; // the document's; "" for none
};

} // namespace tabrova
