#include "organisers/websites/site_file.h"

#include "core/files/entry_file.h"
#include "core/files/regular_file.h"
#include "core/files/text_lines.h"
#include "core/text/stored_text.h"
#include "forms/text_edges.h"

namespace tabrova {

std::optional<Site> readSite(const std::filesystem::path& file) {
    constexpr std::size_t Lines = 2;
    if (!RegularFile(file)) return std::nullopt;
    std::vector<std::string> lines = readTextLines(file, Lines);
    lines.resize(Lines);
    return Site{QString::fromStdString(lines[0]), QString::fromStdString(lines[1])};
}

bool writeSite(const std::filesystem::path& file, const Site& site) {
    const QString text = inOneLine(site.address) + "\r\n" + inOneLine(site.description);
    return writeEntryFile(file, storedText(text.toStdString()));
}

QString shownDescription(const QString& description) {
    return shortened(description, LongestShownDescription);
}

} // namespace tabrova
