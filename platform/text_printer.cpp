#include "platform/text_printer.h"

#include "platform/fixed_font.h"
#include "platform/printed_pages.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace tabrova {

namespace {

PageSize pageSizeOf(const QPrinter& printer, const QFont& font) {
    const QSizeF character = characterSize(font, printer);
    const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
    return {std::max(1, static_cast<int>(page.width() / character.width())),
            std::max(1, static_cast<int>(page.height() / character.height()))};
}

} // namespace

QPageLayout layoutFor(const PrintJob& job, QPageLayout printersOwn) {
    printersOwn.setUnits(QPageLayout::Millimeter);
    const QMarginsF least = printersOwn.minimumMargins();
    QMarginsF margins = printersOwn.margins();
    margins.setLeft(least.left() + job.left);
    margins.setTop(least.top() + job.top);
    printersOwn.setMargins(margins);
    return printersOwn;
}

void printOn(QPrinter& printer, const PrintJob& job) {
    printer.setDocName(job.name);
    printer.setPageLayout(layoutFor(job, printer.pageLayout()));
    const QFont font = fixedFont(job.fontFamily, job.pointSize);
    const QList<QStringList> pages = pagesOf(job.text, pageSizeOf(printer, font));
    const int count = static_cast<int>(pages.size());
    const bool range = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = range ? std::min(printer.fromPage(), count) : 1;
    const int last = range ? std::clamp(printer.toPage(), first, count) : count;
    QPainter painter;
    if (!painter.begin(&printer)) return;
    for (int page = first; page <= last; ++page) {
        if (page > first && !printer.newPage()) return;
        paintPage(painter, pages[page - 1], font);
    }
}

void DesktopTextPrinter::print(const PrintJob& job) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() == QDialog::Accepted) printOn(printer, job);
}

} // namespace tabrova
