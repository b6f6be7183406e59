#include "platform/text_printer.h"

#include "platform/fixed_font.h"
#include "platform/printed_pages.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace tabrova {

namespace {

constexpr double MillimetresOfInch = 25.4;

PageSize sizeOf(const QSizeF& area, const QSizeF& character) {
    return {std::max(1, static_cast<int>(area.width() / character.width())),
            std::max(1, static_cast<int>(area.height() / character.height()))};
}

struct PageRange {
    int first; // from 0
    int last;
};

PageRange rangeOf(const QPrinter& printer, int pages) {
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() < 1) return {0, pages - 1};
    const int first = std::min(printer.fromPage(), pages);
    return {first - 1, std::clamp(printer.toPage(), first, pages) - 1};
}

} // namespace

QRectF textArea(const PrintJob& job, const QPageLayout& sheet) {
    QPageLayout layout = sheet;
    layout.setUnits(QPageLayout::Millimeter);
    const QMarginsF least = layout.minimumMargins();
    const QMarginsF own = layout.margins();
    return layout.fullRect().adjusted(least.left() + job.left, least.top() + job.top, -own.right(),
                                      -own.bottom());
}

// The painter's origin is the sheet's corner, since the toolkit's margins are whole points.
void printOn(QPrinter& printer, const PrintJob& job) {
    printer.setDocName(job.name);
    printer.setFullPage(true);
    const double scale = printer.resolution() / MillimetresOfInch;
    const QRectF area = textArea(job, printer.pageLayout());
    const QFont font = fixedFont(job.fontFamily, job.pointSize);
    const QList<QStringList> pages =
        pagesOf(job.text, sizeOf(area.size() * scale, characterSize(font, printer)));
    const PageRange range = rangeOf(printer, static_cast<int>(pages.size()));
    QPainter painter;
    if (!painter.begin(&printer)) return;
    painter.translate(area.topLeft() * scale);
    for (int page = range.first; page <= range.last; ++page) {
        if (page > range.first && !printer.newPage()) return;
        paintPage(painter, pages[page], font);
    }
}

void DesktopTextPrinter::print(const PrintJob& job) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() == QDialog::Accepted) printOn(printer, job);
}

} // namespace tabrova
