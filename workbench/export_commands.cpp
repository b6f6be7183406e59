#include "workbench/export_commands.h"

#include "core/document/text_tablature.h"
#include "core/files/replaced_file.h"
#include "core/language/language_file.h"
#include "editing/track_texts.h"
#include "forms/code_page_text.h"
#include "platform/box_title.h"
#include "workbench/installation.h"

#include <QDate>
#include <QLocale>

#include <sstream>

namespace tabrova {

namespace {

// The file cannot hold every language's letters; the built-in word is better than a row of question marks.
bool heldByTheCodePage(const std::string& utf8) {
    const QString text = QString::fromStdString(utf8);
    return fromCodePage(toCodePage(text)) == text;
}

} // namespace

void ExportCommands::registerRows(CommandTable& table) {
    table.item("mnuExportText", [this] { mnuExportText(); });
    table.item("mnuFilePrint", [this] { mnuFilePrint(); });
    table.wordOfItem("print", "mnuFilePrint");
}

void ExportCommands::mnuExportText() {
    if (bench_.document.StaffCount > LongExport)
        bench_.services.boxes.ask(
            {BoxTitle, QString::fromStdString(bench_.words.longExport), BoxIcon::Information});
    tools_.open("frmExport");
}

void ExportCommands::mnuFilePrint() {
    if (menus_.isEnabled("mnuFilePrint")) mnuExportText();
}

QString ExportCommands::instrumentCaption() const {
    QString word;
    const auto file = activeLanguageFile(bench_.services.programFolder);
    for (const LanguageText& each : languageTexts("frmTrackProperties", file))
        if (each.line->use == LineUse::Message && each.line->target == std::string_view("patch"))
            word = heldByTheCodePage(each.text) ? QString::fromStdString(each.text) : each.line->text;
    const auto program = trackProgram(bench_.document, bench_.document.CurrentTrack);
    return program ? word + bench_.instruments.name(*program) : word;
}

std::string ExportCommands::ExportToFile(const std::filesystem::path& path) const {
    const Document& document = bench_.document;
    const QString date = QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
    const FileText text = textTablature(
        document, {toCodePage(webAddress(bench_.services.settings)), toCodePage(date),
                   tuningNames(document, document.CurrentTrack), toCodePage(instrumentCaption())});
    if (makeRoomForFile(path)) replaceFile(path, text);
    std::ostringstream bytes;
    text.writeTo(bytes);
    return std::move(bytes).str();
}

} // namespace tabrova
