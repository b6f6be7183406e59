#include "forms/name_pattern.h"

namespace tabrova {

namespace {

bool fitsCharacter(QChar character, QChar wanted) {
    return wanted == '?' || character.toCaseFolded() == wanted.toCaseFolded();
}

} // namespace

// Of several stars only the last one is ever tried again with a longer stretch.
bool fitsPattern(QStringView name, QStringView pattern) {
    qsizetype at = 0, wanted = 0;
    qsizetype star = -1, stretchEnd = 0;
    while (at < name.size()) {
        if (wanted < pattern.size() && pattern[wanted] == '*') {
            star = wanted++;
            stretchEnd = at;
        } else if (wanted < pattern.size() && fitsCharacter(name[at], pattern[wanted])) {
            ++at;
            ++wanted;
        } else if (star >= 0) {
            wanted = star + 1;
            at = ++stretchEnd;
        } else {
            return false;
        }
    }
    while (wanted < pattern.size() && pattern[wanted] == '*')
        ++wanted;
    return wanted == pattern.size();
}

} // namespace tabrova
