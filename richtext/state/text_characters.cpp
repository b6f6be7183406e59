#include "richtext/state/text_characters.h"

namespace tabrova {

namespace {

bool isText(QChar character) {
    const char16_t unit = character.unicode();
    if (unit == u'\t' || unit == u'\u2028') return true;
    if (unit < 0x20 || (unit >= 0x7F && unit < 0xA0)) return false;
    return unit != 0x2029 && unit != 0xFFFC && unit != 0xFDD0 && unit != 0xFDD1 && unit < 0xFFFE;
}

} // namespace

QString onlyText(QString text) {
    text.removeIf([](QChar character) { return !isText(character); });
    return text;
}

} // namespace tabrova
