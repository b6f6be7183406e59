#include "workbench/import_commands.h"

#include "core/document/document_operations.h"
#include "core/document/old_document.h"
#include "forms/code_page_text.h"
#include "platform/paths.h"

namespace tabrova {

void ImportCommands::registerRows(CommandTable& table) {
    table.item("mnuImportTR211", [this] { mnuImportTR211(); });
}

void ImportCommands::mnuImportTR211() {
    documents_.MakeNewDocument();
    tools_.unload("frmFileProperties");
    const auto answer =
        bench_.services.files.choose({FileQuestion::Kind::Open, fromCodePage(OldDocumentFilter),
                                      fromCodePage(OldDocumentExtension), CommonDialog2.fileName});
    if (!answer) return;
    CommonDialog2.fileName = *answer;
    readNamedDocument();
}

void ImportCommands::readNamedDocument() {
    const auto item = readOldDocumentItem(pathOf(CommonDialog2.fileName));
    if (!item) return;
    const Act act(bench_.acts, "mnuImportTR211");
    const bool whole = readOldDocument(bench_.document, *item);
    bench_.acts.changes().tracks = true;
    if (!whole) return;
    bench_.editor.refreshdrawing();
    moveToFirstColumn(bench_.document);
}

} // namespace tabrova
