#include "platform/text_printer.h"

#include <QApplication>
#include <QFont>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace tabrova {

void DesktopTextPrinter::print(const PrintJob& job) {
    QPrinter printer;
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return;
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Point);
    layout.setMargins(layout.margins() + QMarginsF(job.left, job.top, 0, 0));
    printer.setPageLayout(layout);
    QTextDocument document;
    document.setDefaultFont(QFont(job.fontFamily, job.pointSize));
    document.setPlainText(job.text);
    document.print(&printer);
}

} // namespace tabrova
