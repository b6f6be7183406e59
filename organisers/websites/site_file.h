// The file of a bookmarked site: the address in its first line, the description in its second one. The file's
// name is the entry's.
#pragma once

#include <QString>

#include <filesystem>
#include <optional>

namespace tabrova {

struct Site {
    QString address;
    QString description;
};

// Lines that the file does not have are empty. Nothing if it is not there, cannot be read or is no regular
// file.
std::optional<Site> readSite(const std::filesystem::path& file);

// Makes or replaces the file; line ends inside the texts become blanks. False if that fails.
bool writeSite(const std::filesystem::path& file, const Site& site);

// Longer descriptions are shown from their beginning.
constexpr qsizetype LongestShownDescription = 10'000; // characters
QString shownDescription(const QString& description);

} // namespace tabrova
