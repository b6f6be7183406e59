// The names of the small files that the user makes and chooses by name alone.
#pragma once

#include <string_view>

namespace tabrova {

// Whether the name can stand for a file in one folder: neither empty, "." nor "..", and without a path
// separator of any system. Other names are refused as a failing file system would refuse them.
bool isEntryName(std::u16string_view name);

// Whether a new file may be given the name: also without line ends and other control characters, and without
// lone halves of characters, which stand for bytes that are no text.
bool isNewEntryName(std::u16string_view name);

} // namespace tabrova
