// What is dropped on the window, as a document to open.
#pragma once

#include <QString>

class QMimeData;

namespace tabrova {

// The file of the one document among the dropped things, whatever bytes its name holds; "" for anything else.
QString droppedDocument(const QMimeData& dropped);

} // namespace tabrova
