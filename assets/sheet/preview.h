// A mock page put together from a sheet as the program does it, to judge the drawings by eye.
#pragma once

#include <QImage>

namespace sheet {

// The sheet must have the given scale; the result has it too. The column width is in logical pixels.
QImage previewPage(const QImage& sheetImage, int scale, int columnWidth);

} // namespace sheet
