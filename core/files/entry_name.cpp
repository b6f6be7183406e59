#include "core/files/entry_name.h"

namespace tabrova {

bool isEntryName(std::u16string_view name) {
    constexpr std::u16string_view Separators(u"/\\\0", 3);
    return !name.empty() && name != u"." && name != u".." &&
           name.find_first_of(Separators) == std::u16string_view::npos;
}

} // namespace tabrova
