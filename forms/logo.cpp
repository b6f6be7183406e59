#include "forms/logo.h"

#include <QFontMetrics>
#include <QPainter>

namespace tabrova {

namespace {

constexpr int LogoHeight = 46;
constexpr int LetterHeight = 26;
constexpr int Strings = 6;
constexpr int FirstString = 8;
constexpr int StringGap = 6;
constexpr int LettersLeft = 14;

} // namespace

Logo::Logo(QWidget* parent) : QWidget(parent) {
    setObjectName("imgLogo");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Logo::sizeHint() const { return {200, LogoHeight}; }

// The name stands on the strings as a note does: the strings stop before it and go on behind it.
void Logo::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont letters = font();
    letters.setPixelSize(LetterHeight);
    letters.setBold(true);
    const QString name = QStringLiteral("Tabrova");
    const int nameWidth = QFontMetrics(letters).horizontalAdvance(name);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.35F);
    for (int string = 0; string < Strings; ++string) {
        const int y = FirstString + string * StringGap;
        painter.fillRect(0, y, LettersLeft - 6, 1, line);
        painter.fillRect(LettersLeft + nameWidth + 6, y, width() - LettersLeft - nameWidth - 6, 1, line);
    }
    painter.setFont(letters);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(LettersLeft, 0, nameWidth + 4, LogoHeight), Qt::AlignVCenter, name);
}

} // namespace tabrova
