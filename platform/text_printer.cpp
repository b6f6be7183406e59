#include "platform/text_printer.h"

#include <QApplication>
#include <QFont>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace tabrova {

QPageLayout layoutFor(const PrintJob& job, QPageLayout printersOwn) {
    printersOwn.setUnits(QPageLayout::Point);
    printersOwn.setMargins(printersOwn.margins() + QMarginsF(job.left, job.top, 0, 0));
    return printersOwn;
}

void DesktopTextPrinter::print(const PrintJob& job) {
    QPrinter printer;
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return;
    printer.setPageLayout(layoutFor(job, printer.pageLayout()));
    QTextDocument document;
    document.setDefaultFont(QFont(job.fontFamily, job.pointSize));
    document.setPlainText(job.text);
    document.print(&printer);
}

} // namespace tabrova
