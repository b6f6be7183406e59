#include "workbench/document_commands.h"

#include "core/document/document_file.h"
#include "core/document/document_operations.h"
#include "core/files/regular_file.h"
#include "core/text/code_page.h"
#include "forms/code_page_text.h"
#include "platform/box_title.h"
#include "platform/paths.h"

namespace tabrova {

DocumentCommands::DocumentCommands(Workbench& bench, ToolOpener& tools, const MenuState& menus)
    : recent(bench.services.settings), bench_(bench), document_(bench.document), editor_(bench.editor),
      services_(bench.services), tools_(tools), menus_(menus) {}

void DocumentCommands::registerRows(CommandTable& table) {
    table.item("mnuFileNew", [this] { mnuFileNew(); });
    table.item("mnuFileOpen", [this] { mnuFileOpen(); });
    table.item("mnuFileSave", [this] { mnuFileSave(); });
    table.item("mnuSaveAs", [this] { mnuSaveAs(); });
    for (int place = 0; place < RecentDocuments::Most; ++place)
        table.item("mnuRecentDocument(" + std::to_string(place) + ")", [this, place] {
            if (place < recent.files().size()) openFile(recent.files()[place]);
        });
    table.item("mnuRecentClear", [this] {
        const Act act(bench_.acts, "mnuRecentClear");
        recent.clear();
        bench_.acts.changes().recent = true;
    });
    table.wordOfItem("new", "mnuFileNew");
    table.wordOfItem("open", "mnuFileOpen");
    table.wordOfItem("save", "mnuFileSave");
    table.wordOfItem("properties", "mnuFileProperties");
}

QString DocumentCommands::fileName() const { return textOf(pathOf(file_).filename()); }

bool DocumentCommands::confirmLeaving() {
    const std::string question = bench_.words.saveQuestion + " " + shownNameUtf8(document_.Title) + "?";
    const BoxAnswer answer = services_.boxes.ask({BoxTitle,
                                                  QString::fromStdString(question),
                                                  BoxIcon::Exclamation,
                                                  {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}});
    if (answer == BoxAnswer::Yes) mnuFileSave();
    return answer != BoxAnswer::Cancel;
}

bool DocumentCommands::askForName(FileQuestion::Kind kind) {
    const auto answer = services_.files.choose(
        {kind, fromCodePage(DocumentFilter), fromCodePage(DocumentExtension), CommonDialog1.fileName});
    if (answer) CommonDialog1.fileName = *answer;
    return answer.has_value();
}

void DocumentCommands::mnuFileNew() {
    if (confirmLeaving()) newTablature();
}

void DocumentCommands::newTablature() {
    {
        const Act act(bench_.acts, "mnuFileNew");
        MakeNewDocument();
        editor_.refreshdrawing();
    }
    tools_.open("frmFileProperties");
}

void DocumentCommands::MakeNewDocument() {
    const Act act(bench_.acts, "MakeNewDocument");
    tools_.unload("frmFileProperties");
    editor_.MakeNewDocument();
    file_.clear();
}

void DocumentCommands::tookFile() {
    std::error_code failed;
    const std::filesystem::path whole = std::filesystem::absolute(pathOf(CommonDialog1.fileName), failed);
    file_ = textOf(whole.lexically_normal());
    recent.add(file_);
    bench_.acts.changes().recent = true;
}

void DocumentCommands::mnuFileSave() {
    if (!menus_.isEnabled("mnuFileSave")) return;
    if (!document_.HasFileName && !askForName(FileQuestion::Kind::Save)) return;
    const Act act(bench_.acts, "mnuFileSave");
    if (saveDocument(document_, pathOf(CommonDialog1.fileName))) tookFile();
}

void DocumentCommands::mnuSaveAs() {
    {
        const Act act(bench_.acts, "mnuSaveAs");
        forgetFileName(document_);
    }
    mnuFileSave();
}

void DocumentCommands::mnuFileOpen() {
    if (!confirmLeaving()) return;
    OpenDocNoConfirm(true);
}

void DocumentCommands::OpenDocNoConfirm(bool showDialog) {
    if (showDialog && !askForName(FileQuestion::Kind::Open)) return;
    readNamedDocument();
}

// A failure on the way ends it without a word, with what was read so far and no redraw.
void DocumentCommands::readNamedDocument() {
    RegularFile file(pathOf(CommonDialog1.fileName), LargestDocumentFile);
    if (!file) return;
    const Act act(bench_.acts, "OpenDocNoConfirm");
    MakeNewDocument();
    const bool whole = readDocument(document_, file);
    bench_.acts.changes().tracks = true;
    if (!whole) return;
    tookFile();
    editor_.refreshdrawing();
    bench_.texts.trackPanel = shownNameUtf8(document_.TrackNames.front()) + " " + bench_.words.selectedTrack;
    bench_.acts.changes().trackPanel = true;
}

void DocumentCommands::openFile(const QString& path, Leaving leaving) {
    std::error_code failed;
    if (!std::filesystem::is_regular_file(pathOf(path), failed)) {
        const Act act(bench_.acts, "openFile");
        recent.remove(path);
        bench_.acts.changes().recent = true;
        const ActInterlude interlude(bench_.acts);
        services_.boxes.ask(
            {BoxTitle, QString::fromStdString(bench_.words.fileGone) + "\n" + path, BoxIcon::Information});
        return;
    }
    if (leaving == Leaving::WithAQuestion && !confirmLeaving()) return;
    CommonDialog1.fileName = path;
    OpenDocNoConfirm(false);
}

void DocumentCommands::OpenCommandLineDocument(const QString& path) {
    const bool quoted = path.startsWith('"');
    if (quoted && path.size() < 2) {
        services_.boxes.ask({"Bad Format", "Tabrova cannot open this file. The format is not recognised.",
                             BoxIcon::Critical});
        MakeNewDocument();
        return;
    }
    const std::filesystem::path file = pathOf(quoted ? path.mid(1, path.size() - 2) : path);
    std::error_code failed;
    const std::filesystem::path whole = std::filesystem::absolute(file, failed);
    const bool there = !file.empty() && std::filesystem::exists(whole, failed);
    CommonDialog1.fileName = there ? textOf(whole.lexically_normal()) : QString();
    OpenDocNoConfirm(false);
}

} // namespace tabrova
