// The File menu's commands on the document: new, open, save, and the question that goes before them.
#pragma once

#include "core/document/document.h"
#include "core/language/language_words.h"
#include "platform/services.h"

#include <functional>

namespace tabrova {

class Editor;

// `CommonDialog1`: the one store of the current file's name.
struct CommonDialog {
    QString fileName;
};

// What the commands ask of the window.
struct DocumentCommandHost {
    std::function<bool(const QString& command)> isEnabled;
    std::function<void(const std::string& text)> setTrackPanel;
    // Other tracks stand in the document now.
    std::function<void()> tracksReplaced;
    // Shows the document's properties modally.
    std::function<void()> showFrmFileProperties;
};

class DocumentCommands {
  public:
    DocumentCommands(Document& document, Editor& editor, Services& services, const LanguageWords& words,
                     DocumentCommandHost host);

    void mnuFileNew();
    void mnuFileOpen();
    void mnuFileSave();
    void mnuSaveAs();
    // Reads without asking to save; `showDialog` asks for the file first, else the dialog's name serves.
    void OpenDocNoConfirm(bool showDialog);
    void OpenCommandLineDocument(const QString& path);

    // The question before the document goes. Yes has already saved when this returns; false: the user
    // cancelled.
    bool confirmLeaving();

    CommonDialog CommonDialog1;

  private:
    bool askForName(FileQuestion::Kind kind);
    void readNamedDocument();

    Document& document_;
    Editor& editor_;
    Services& services_;
    const LanguageWords& words_;
    DocumentCommandHost host_;
};

} // namespace tabrova
