// The name that a file chooser proposes for an export: that of the document, with the export's extension.
#pragma once

#include <QString>

namespace tabrova {

// In the document's folder. Nothing for a document without a name. `extension` is without a dot.
QString proposedName(const QString& documentFile, const QString& extension);

} // namespace tabrova
