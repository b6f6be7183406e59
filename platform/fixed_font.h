// Fonts whose characters are all of one width, so that columns align whatever fonts the machine has.
#pragma once

#include <QFont>

namespace tabrova {

// The family, or a fixed font in its place if the machine does not have it. Not fixed only if no font is.
QFont fixedFont(const QString& family, int pointSize);

bool isFixed(const QFont& font);

} // namespace tabrova
