// The bar marks of a column: "" none, "." a separator, "r" an opened repeat, "r1" to "r15" a closed one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tabrova {

constexpr int MostRepeats = 15;

// The number of "r1" to "r15", which is how many times the passage is played again; nothing for any other
// text.
std::optional<int> closedRepeatCount(std::string_view mark);
std::string closedRepeatMark(int count);

} // namespace tabrova
