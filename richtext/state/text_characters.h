// The characters that a text may hold.
#pragma once

#include <QString>

namespace tabrova {

// Without control characters and those that the toolkit's documents keep for their own use. Tabs stay, and so
// does U+2028.
QString onlyText(QString text);

} // namespace tabrova
