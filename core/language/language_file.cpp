#include "core/language/language_file.h"

#include "core/files/folder_entries.h"
#include "core/files/text_lines.h"

namespace tabrova {

std::filesystem::path activeLanguageFile(const std::filesystem::path& programFolder) {
    return programFolder / "lang.trl";
}

std::filesystem::path installedLanguages(const std::filesystem::path& programFolder) {
    return programFolder / "languages";
}

std::filesystem::path languageInUse(const std::filesystem::path& programFolder) {
    constexpr std::size_t MostLines = 10000;
    const std::vector<std::string> active = readTextLines(activeLanguageFile(programFolder), MostLines);
    if (active.empty()) return {};
    std::filesystem::path sameName;
    const std::filesystem::path folder = installedLanguages(programFolder);
    for (const std::filesystem::path& name : listEntries(folder, EntryKind::Folders)) {
        const std::vector<std::string> lines = readTextLines(folder / name / "lang.trl", MostLines);
        if (lines == active) return name;
        const bool named = active.size() > 1 && lines.size() > 1 && !active[1].empty();
        if (named && sameName.empty() && lines[1] == active[1]) sameName = name;
    }
    return sameName;
}

std::vector<LanguageText> languageTexts(std::string_view form, const std::filesystem::path& file) {
    const auto last = static_cast<std::size_t>(lastLanguageLine());
    std::vector<std::string> read;
    if (!file.empty()) read = readTextLines(file, last);
    std::vector<LanguageText> texts;
    for (const LanguageLine& line : languageLinesOf(form)) {
        const auto index = static_cast<std::size_t>(line.number - 1);
        texts.push_back({&line, index < read.size() ? read[index] : std::string(line.text)});
    }
    return texts;
}

} // namespace tabrova
