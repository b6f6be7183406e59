// The file of a gig. Its name carries the date and the title, "MM-DD-YYYY -- title", and is read back by
// position alone; its one line is the memo.
#pragma once

#include <QDate>
#include <QString>

#include <filesystem>
#include <optional>

namespace tabrova {

struct Gig {
    QString month, day, year, title;
};

// Of the texts as they stand: nothing checks the date.
QString gigName(const Gig& gig);

// Month at 0, day at 3 (two characters each), year at 6 (four), and the title from 13 to the end, which is
// the blank before it. A name of another form gives whatever stands there.
Gig gigOf(const QString& name);

// MONTH/DAY/YEAR: TITLE
QString gigHeading(const Gig& gig);

// The date in decimal digits, the title empty.
Gig gigOn(QDate date);
// A day or a month of one character gets a zero in front, a year of one to three as many as it lacks. Other
// texts stay as they are.
Gig padded(Gig gig);

// Makes or replaces the file; line ends inside the memo become blanks. False if that fails.
bool writeGig(const std::filesystem::path& file, const QString& memo);
// The memo up to its first comma. Nothing if the file cannot be read or has no bytes.
std::optional<QString> readMemo(const std::filesystem::path& file);

} // namespace tabrova
