#include "shell/document_commands.h"

#include "core/document/document_file.h"
#include "core/files/regular_file.h"
#include "editing/editor.h"
#include "forms/box_title.h"
#include "forms/code_page_text.h"
#include "platform/paths.h"

namespace tabrova {

namespace {

QString literal(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

DocumentCommands::DocumentCommands(Document& document, Editor& editor, Services& services,
                                   const LanguageWords& words, DocumentCommandHost host)
    : document_(document), editor_(editor), services_(services), words_(words), host_(std::move(host)) {}

bool DocumentCommands::confirmLeaving() {
    const QString question =
        QString::fromStdString(words_.saveQuestion) + " " + shownName(document_.Title) + "?";
    const BoxAnswer answer = services_.boxes.ask(
        {BoxTitle, question, BoxIcon::Exclamation, {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}});
    if (answer == BoxAnswer::Yes) mnuFileSave();
    return answer != BoxAnswer::Cancel;
}

bool DocumentCommands::askForName(FileQuestion::Kind kind) {
    const auto answer = services_.files.choose(
        {kind, literal(DocumentFilter), literal(DocumentExtension), CommonDialog1.fileName});
    if (answer) CommonDialog1.fileName = *answer;
    return answer.has_value();
}

void DocumentCommands::mnuFileNew() {
    if (!confirmLeaving()) return;
    editor_.MakeNewDocument();
    editor_.refreshdrawing();
    editor_.SetDebugLabel();
    host_.showFrmFileProperties();
}

void DocumentCommands::mnuFileSave() {
    if (!host_.isEnabled("mnuFileSave")) return;
    if (!document_.HasFileName && !askForName(FileQuestion::Kind::Save)) return;
    saveDocument(document_, pathOf(CommonDialog1.fileName));
}

void DocumentCommands::mnuSaveAs() {
    document_.HasFileName = False16;
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
    editor_.MakeNewDocument();
    const bool whole = readDocument(document_, file);
    host_.tracksReplaced();
    if (!whole) return;
    editor_.refreshdrawing();
    host_.setTrackPanel(shownName(document_.TrackNames.front()).toStdString() + " " + words_.selectedTrack);
    editor_.SetDebugLabel();
}

void DocumentCommands::OpenCommandLineDocument(const QString& path) {
    const bool quoted = path.startsWith('"');
    if (quoted && path.size() < 2) {
        services_.boxes.ask({"Bad Format", "Tabrova cannot open this file. The format is not recognised.",
                             BoxIcon::Critical});
        editor_.MakeNewDocument();
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
