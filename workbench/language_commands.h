// The program's language: the words that the editing writes, the buttons of message boxes, and the change to
// another installed language. Captions are the windows' own.
#pragma once

#include "workbench/workbench.h"

namespace tabrova {

class LanguageCommands {
  public:
    // Begins with the built-in words.
    explicit LanguageCommands(Workbench& bench) : bench_(bench) { takeWords({}); }

    // The built-in words, then those of the active language file; every window is told.
    void LoadLanguage();
    // Another file is the active one.
    void languageApplied();
    // The first line of a file among the installed languages, which the File menu's caption becomes. Nothing
    // for a name that is no entry's.
    std::optional<QString> ApplyLanguagePatch(const QString& name) const;

  private:
    // The built-in words where there is no file.
    void takeWords(const std::filesystem::path& file);

    Workbench& bench_;
};

} // namespace tabrova
