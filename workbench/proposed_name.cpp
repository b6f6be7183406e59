#include "workbench/proposed_name.h"

namespace tabrova {

QString proposedName(const QString& documentFile, const QString& extension) {
    const qsizetype name = documentFile.lastIndexOf('/') + 1;
    if (name == documentFile.size()) return {};
    const qsizetype dot = documentFile.lastIndexOf('.');
    return documentFile.left(dot > name ? dot : documentFile.size()) + "." + extension;
}

} // namespace tabrova
