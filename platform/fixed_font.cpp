#include "platform/fixed_font.h"

#include <QFontDatabase>
#include <QFontInfo>

namespace tabrova {

bool isFixed(const QFont& font) { return QFontInfo(font).fixedPitch(); }

QFont fixedFont(const QString& family, int pointSize) {
    QFont font(family, pointSize);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    if (isFixed(font)) return font;
    QFont systems = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    systems.setPointSize(pointSize);
    return isFixed(systems) ? systems : font;
}

} // namespace tabrova
