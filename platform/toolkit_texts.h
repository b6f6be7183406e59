// The toolkit's own texts, such as those of its file chooser, in a language.
#pragma once

#include <QString>

namespace tabrova {

// "de", or "pt_BR" for a language as a country speaks it. A language that the toolkit does not have leaves
// its English. Needs the application object.
void showToolkitTextsIn(const QString& language);

} // namespace tabrova
