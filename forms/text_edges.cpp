#include "forms/text_edges.h"

#include <QTabWidget>

namespace tabrova {

namespace {

const QString Mark = QStringLiteral("[*]");
const QString EscapedMark = QStringLiteral("[*][*]");
const QString Ampersand = QStringLiteral("&");
const QString EscapedAmpersand = QStringLiteral("&&");
constexpr QChar ThreeDots(0x2026);

} // namespace

void setTitleOf(QWidget& window, const QString& title) {
    window.setWindowTitle(QString(title).replace(Mark, EscapedMark));
}

QString titleOf(const QWidget& window) { return window.windowTitle().replace(EscapedMark, Mark); }

void setTabTextOf(QTabWidget& tabs, int tab, const QString& text) {
    tabs.setTabText(tab, QString(text).replace(Ampersand, EscapedAmpersand));
}

QString tabTextOf(const QTabWidget& tabs, int tab) {
    return tabs.tabText(tab).replace(EscapedAmpersand, Ampersand);
}

QString shortened(const QString& text, qsizetype most) {
    if (text.size() <= most) return text;
    const bool inPair = text[most - 1].isHighSurrogate();
    return text.left(inPair ? most - 1 : most) + ThreeDots;
}

QString inOneLine(QString text) {
    text.replace("\r\n", " ");
    return text.replace('\r', ' ').replace('\n', ' ');
}

} // namespace tabrova
