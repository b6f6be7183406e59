// Window titles as they are, at the edge of the toolkit.
#pragma once

#include <QString>
#include <QWidget>

namespace tabrova {

// The toolkit would take "[*]" in a title for a mark of its own.
void setTitleOf(QWidget& window, const QString& title);
QString titleOf(const QWidget& window);

} // namespace tabrova
