#include "platform/printed_pages.h"

#include "platform/fixed_font.h"

#include <QFontMetricsF>

#include <algorithm>

namespace tabrova {

namespace {

bool isBlank(const QString& line) { return line.trimmed().isEmpty(); }

QStringList fittedLines(const QString& text, int characters) {
    QStringList lines;
    for (QString line : text.split('\n')) {
        // Blanks behind a line need no room.
        while (line.size() > characters && !isBlank(line.mid(characters))) {
            lines.append(line.left(characters));
            line.remove(0, characters);
        }
        lines.append(line.left(characters));
    }
    while (!lines.isEmpty() && isBlank(lines.last()))
        lines.removeLast();
    return lines;
}

// Lines from `at` on up to the next blank one.
qsizetype blockLength(const QStringList& lines, qsizetype at) {
    const auto first = lines.begin() + at;
    return std::find_if(first, lines.end(), isBlank) - first;
}

} // namespace

QList<QStringList> pagesOf(const QString& text, const PageSize& size) {
    const QStringList lines = fittedLines(text, size.characters);
    QList<QStringList> pages{QStringList()};
    bool newBlock = true;
    for (qsizetype at = 0; at < lines.size(); ++at) {
        const bool blank = isBlank(lines[at]);
        const qsizetype used = pages.last().size();
        const bool full = used >= size.lines;
        if (!blank && used > 0 && (full || (newBlock && used + blockLength(lines, at) > size.lines)))
            pages.append(QStringList());
        newBlock = blank;
        if (!blank || !full) pages.last().append(lines[at]);
    }
    return pages;
}

QSizeF characterSize(const QFont& font, const QPaintDevice& device) {
    const QFontMetricsF metrics(font, &device);
    const double width = isFixed(font) ? metrics.horizontalAdvance('0') : metrics.maxWidth();
    return {width, metrics.lineSpacing()};
}

void paintPage(QPainter& painter, const QStringList& lines, const QFont& font) {
    painter.setFont(font);
    const QSizeF size = characterSize(font, *painter.device());
    const double ascent = QFontMetricsF(font, painter.device()).ascent();
    for (qsizetype row = 0; row < lines.size(); ++row) {
        const double baseline = ascent + size.height() * static_cast<double>(row);
        if (isFixed(font)) {
            painter.drawText(QPointF(0, baseline), lines[row]);
            continue;
        }
        for (qsizetype place = 0; place < lines[row].size(); ++place)
            painter.drawText(QPointF(size.width() * static_cast<double>(place), baseline),
                             QString(lines[row][place]));
    }
}

} // namespace tabrova
