// Patterns of names, as a list of files takes them to show some of its entries.
#pragma once

#include <QStringView>

namespace tabrova {

// Without regard to case; "*" stands for any characters, "?" for any one, and nothing else has a meaning of
// its own. Takes time by the product of both lengths at the most.
bool fitsPattern(QStringView name, QStringView pattern);

} // namespace tabrova
