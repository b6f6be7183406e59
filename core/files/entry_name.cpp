#include "core/files/entry_name.h"

namespace tabrova {

namespace {

bool isControl(char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); }
bool isLineSeparator(char16_t unit) { return unit == 0x2028 || unit == 0x2029; }
bool isFirstHalf(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isSecondHalf(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

} // namespace

bool isEntryName(std::u16string_view name) {
    constexpr std::u16string_view Separators(u"/\\\0", 3);
    return !name.empty() && name != u"." && name != u".." &&
           name.find_first_of(Separators) == std::u16string_view::npos;
}

bool isNewEntryName(std::u16string_view name) {
    for (std::size_t at = 0; at < name.size(); ++at) {
        const char16_t unit = name[at];
        if (isControl(unit) || isLineSeparator(unit) || isSecondHalf(unit)) return false;
        if (!isFirstHalf(unit)) continue;
        if (++at == name.size() || !isSecondHalf(name[at])) return false;
    }
    return isEntryName(name);
}

} // namespace tabrova
