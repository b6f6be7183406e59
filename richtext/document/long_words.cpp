#include "richtext/document/long_words.h"

namespace tabrova {

namespace {

constexpr QChar ZeroWidthSpace(0x200B);

} // namespace

QString LongWords::breakable(const QString& text) {
    QString broken;
    broken.reserve(text.size() + text.size() / LongestWord + 1);
    for (const QChar character : text) {
        if (character.isSpace()) {
            length_ = 0;
        } else if (++length_ > LongestWord && !character.isLowSurrogate()) {
            broken += ZeroWidthSpace;
            length_ = 1;
        }
        broken += character;
    }
    return broken;
}

} // namespace tabrova
