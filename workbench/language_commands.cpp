#include "workbench/language_commands.h"

#include "core/files/entry_name.h"
#include "core/files/text_lines.h"
#include "core/language/language_file.h"
#include "platform/paths.h"
#include "platform/toolkit_texts.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr qsizetype LongestWord = 250; // characters

struct AnswerWord {
    const char* message;
    BoxAnswer answer;
};

constexpr AnswerWord AnswerWords[] = {{"box.ok", BoxAnswer::Ok},
                                      {"box.cancel", BoxAnswer::Cancel},
                                      {"box.yes", BoxAnswer::Yes},
                                      {"box.no", BoxAnswer::No}};

} // namespace

void LanguageCommands::LoadLanguage() {
    const Act act(bench_.acts, "LoadLanguage");
    takeWords(activeLanguageFile(bench_.services.programFolder));
    showToolkitTextsIn(QString::fromStdString(bench_.words.toolkit));
    bench_.acts.changes().language = true;
}

void LanguageCommands::takeWords(const std::filesystem::path& file) {
    for (const LanguageText& each : languageTexts("frmMain", file)) {
        if (each.line->use != LineUse::Message) continue;
        const QString text = QString::fromStdString(each.text).left(LongestWord);
        bench_.words.set(each.line->target, text.toStdString());
        for (const AnswerWord& row : AnswerWords)
            if (std::string_view(each.line->target) == row.message)
                bench_.services.boxes.buttonTexts[row.answer] = text;
    }
}

void LanguageCommands::languageApplied() {
    const Act act(bench_.acts, "lstLanguages_DblClick");
    LoadLanguage();
    bench_.tracks.showTrackPanel();
    bench_.editor.SetDebugLabel();
}

std::optional<QString> LanguageCommands::ApplyLanguagePatch(const QString& name) const {
    if (!isEntryName(name.toStdU16String())) return std::nullopt;
    const auto file = installedLanguages(bench_.services.programFolder) / pathOf(name);
    const std::vector<std::string> lines = readTextLines(file, 1);
    if (lines.empty()) return std::nullopt;
    return QString::fromStdString(lines.front());
}

} // namespace tabrova
