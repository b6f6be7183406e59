#include "organisers/options/options_rules.h"

namespace tabrova {

QRgb cursorColor(const CursorColorRow& row, QRgb highlight) {
    if (!row.color) return highlight | 0xFF000000u;
    const std::uint32_t bgr = *row.color;
    return qRgb(static_cast<int>(bgr & 0xFF), static_cast<int>(bgr >> 8 & 0xFF),
                static_cast<int>(bgr >> 16 & 0xFF));
}

std::optional<int> storedPosition(const QString& text, int count) {
    bool number = false;
    const int position = text.trimmed().toInt(&number);
    return number && position >= 0 && position < count ? std::optional<int>(position) : std::nullopt;
}

} // namespace tabrova
