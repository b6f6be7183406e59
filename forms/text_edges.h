// Texts of the user as they are, at the edge of the toolkit.
#pragma once

#include <QString>
#include <QWidget>

class QTabWidget;

namespace tabrova {

// The toolkit would take "[*]" in a title for a mark of its own.
void setTitleOf(QWidget& window, const QString& title);
QString titleOf(const QWidget& window);

// A tab's caption that is no line of a language file: "&" in it is a letter.
void setTabTextOf(QTabWidget& tabs, int tab, const QString& text);
QString tabTextOf(const QTabWidget& tabs, int tab);

// The beginning of a text of more than `most` characters, with three dots behind it.
QString shortened(const QString& text, qsizetype most);

// The text with blanks in place of its line ends, as it can stand in one line of a file.
QString inOneLine(QString text);

} // namespace tabrova
