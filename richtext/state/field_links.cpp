// The links that fields of a rich text are.
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

} // namespace tabrova
