// The active language file under the program's own folder, the installed ones, and the texts of a form in it.
#pragma once

#include "core/language/language_lines.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tabrova {

std::filesystem::path activeLanguageFile(const std::filesystem::path& programFolder);
// A folder with a folder for each language.
std::filesystem::path installedLanguages(const std::filesystem::path& programFolder);
// The name of the installed language that the active file is a copy of, or at least calls itself by in its
// second line; empty if there is none.
std::filesystem::path languageInUse(const std::filesystem::path& programFolder);

struct LanguageText {
    const LanguageLine* line;
    std::string text; // UTF-8
};

// The form's lines with the texts that are to stand: the file's as far as it goes, the built-in ones behind.
// A file that is not there leaves the built-in ones.
std::vector<LanguageText> languageTexts(std::string_view form, const std::filesystem::path& file);

} // namespace tabrova
