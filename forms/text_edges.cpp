#include "forms/text_edges.h"

namespace tabrova {

namespace {

const QString Mark = QStringLiteral("[*]");
const QString EscapedMark = QStringLiteral("[*][*]");

} // namespace

void setTitleOf(QWidget& window, const QString& title) {
    window.setWindowTitle(QString(title).replace(Mark, EscapedMark));
}

QString titleOf(const QWidget& window) { return window.windowTitle().replace(EscapedMark, Mark); }

} // namespace tabrova
