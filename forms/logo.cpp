#include "forms/logo.h"

#include <QFontMetrics>
#include <QPainter>

namespace tabrova {

namespace {

constexpr int LogoHeight = 46;
constexpr int LetterHeight = 26;
constexpr int SmallestLetters = 12;
constexpr int Strings = 6;
constexpr int FirstString = 8;
constexpr int StringGap = 6;
constexpr int LettersLeft = 14;

// The letters' width, which are smaller where there is little room.
int fitToWidth(QFont& letters, const QString& name, int room) {
    for (int height = LetterHeight;; --height) {
        letters.setPixelSize(height);
        const int width = QFontMetrics(letters).horizontalAdvance(name);
        if (width <= room || height <= SmallestLetters) return width;
    }
}

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
    letters.setBold(true);
    const QString name = QStringLiteral("Tabrova");
    const int nameWidth = fitToWidth(letters, name, width() - LettersLeft - 6);
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
