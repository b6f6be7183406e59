// How a text is shared out over the pages of a print, and how a page is drawn.
#pragma once

#include <QFont>
#include <QPainter>
#include <QStringList>

namespace tabrova {

struct PageSize {
    int characters; // of a line, at least 1
    int lines;      // of a page, at least 1
};

// Blocks of lines, which end in blank ones, are not broken unless they are longer than a page, and no page
// but the first begins with the blank lines that end a block. Lines that are too long go on in the next one.
// A text has at least one page.
QList<QStringList> pagesOf(const QString& text, const PageSize& size);

// How large the characters of the font are on the painter's device, in its pixels.
QSizeF characterSize(const QFont& font, const QPaintDevice& device);

// From the painter's origin on. Each character stands in a place of its own, so that columns align even if
// the machine has no font of fixed width.
void paintPage(QPainter& painter, const QStringList& lines, const QFont& font);

} // namespace tabrova
