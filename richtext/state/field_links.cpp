// The links and the single characters that fields of a rich text are.
#include "richtext/state/rtf_state.h"

#include <utility>

namespace tabrova {

namespace {

constexpr qsizetype LongestLink = 2000; // characters

// The next word of an instruction: what stands in double quotes, or up to a blank.
QString takeWord(QStringView& rest) {
    rest = rest.trimmed();
    const bool quoted = rest.startsWith('"');
    if (quoted) rest = rest.mid(1);
    const qsizetype end = rest.indexOf(quoted ? '"' : ' ');
    const QString word = (end < 0 ? rest : rest.left(end)).toString();
    rest = end < 0 ? QStringView() : rest.mid(end + 1);
    return word;
}

} // namespace

QString linkOfInstruction(const QString& instruction) {
    QStringView rest = instruction;
    if (takeWord(rest).compare("HYPERLINK", Qt::CaseInsensitive) != 0) return {};
    QString address, place;
    while (!(rest = rest.trimmed()).isEmpty()) {
        const bool quoted = rest.startsWith('"');
        const QString word = takeWord(rest);
        if (!quoted && word == "\\l")
            place = takeWord(rest);
        else if (!quoted && (word == "\\o" || word == "\\t"))
            takeWord(rest);
        else if (!(word.startsWith('\\') && !quoted) && address.isEmpty())
            address = word;
    }
    const QString link = place.isEmpty() ? address : address + '#' + place;
    return link.size() > LongestLink ? QString() : link;
}

QString symbolOfInstruction(const QString& instruction, int textCodePage) {
    QStringView rest = instruction;
    if (takeWord(rest).compare("SYMBOL", Qt::CaseInsensitive) != 0) return {};
    bool isNumber = false;
    const uint number = takeWord(rest).toUInt(&isNumber, 0);
    if (!isNumber || number < 0x20 || number > 0xFFFF) return {};
    QString font;
    bool isUnicode = number > 0xFF;
    while (!(rest = rest.trimmed()).isEmpty()) {
        const QString word = takeWord(rest);
        if (word == "\\f") font = takeWord(rest);
        if (word == "\\u") isUnicode = true;
    }
    if (isUnicode) return QChar(static_cast<char16_t>(number));
    const auto byte = static_cast<unsigned char>(number);
    if (isPictureFont(font)) return symbolCharacter(font, byte);
    const char place = static_cast<char>(byte);
    CodePageText text;
    text.add({&place, 1}, textCodePage);
    return text.take();
}

} // namespace tabrova
