// The document and the page's objects as JSON.
#pragma once

#include "core/document/document.h"

#include <QJsonObject>

namespace tabrova {

class frmMain;

QJsonObject documentJson(const Document& document);
QJsonObject pageJson(frmMain& window);

} // namespace tabrova
