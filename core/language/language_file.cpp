#include "core/language/language_file.h"

#include "core/files/text_lines.h"

namespace tabrova {

std::filesystem::path activeLanguageFile(const std::filesystem::path& programFolder) {
    return programFolder / "lang.trl";
}

std::filesystem::path installedLanguages(const std::filesystem::path& programFolder) {
    return programFolder / "languages";
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
