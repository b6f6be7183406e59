// Splits a command line into words as a shell does: blanks part, double quotes hold blanks, a backslash
// inside them takes the next character as it stands, but `n`, which is then a line end.
#pragma once

#include <QStringList>

namespace tabrova {

QStringList splitWords(const QString& line);

} // namespace tabrova
