// The main window's language: its captions, its words, and the change to another installed language.
#include "core/files/entry_name.h"
#include "core/files/text_lines.h"
#include "forms/captions.h"
#include "platform/paths.h"
#include "shell/frmMain.h"

namespace tabrova {

namespace {

constexpr BoxAnswer Answers[] = {BoxAnswer::Ok, BoxAnswer::Cancel, BoxAnswer::Yes, BoxAnswer::No};
constexpr const char* AnswerNames[] = {"box.ok", "box.cancel", "box.yes", "box.no"};

} // namespace

MessageSink frmMain::messageSink() {
    return [this](std::string_view name, const QString& text) {
        words_.set(name, text.toStdString());
        for (std::size_t answer = 0; answer < std::size(Answers); ++answer)
            if (name == AnswerNames[answer]) services_.boxes.buttonTexts[Answers[answer]] = text;
    };
}

void frmMain::showBuiltInLanguage() { showBuiltInCaptions(*this, messageSink()); }

void frmMain::LoadLanguage() { loadLanguage(*this, services_.programFolder, messageSink()); }

void frmMain::ApplyLanguagePatch(const QString& name) {
    if (!isEntryName(name.toStdU16String())) return;
    const auto file = installedLanguages(services_.programFolder) / pathOf(name);
    const std::vector<std::string> lines = readTextLines(file, 1);
    if (!lines.empty()) menu_->action("mnuFile")->setText(QString::fromStdString(lines.front()));
}

void frmMain::languageApplied() {
    LoadLanguage();
    setTrackPanel(words_.track + " " + currentTrackName());
    editor_.SetDebugLabel();
}

} // namespace tabrova
