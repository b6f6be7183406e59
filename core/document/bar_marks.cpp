#include "core/document/bar_marks.h"

namespace tabrova {

std::optional<int> closedRepeatCount(std::string_view mark) {
    if (mark.size() < 2 || mark.size() > 3 || mark.front() != 'r' || mark[1] == '0') return std::nullopt;
    int count = 0;
    for (const char digit : mark.substr(1)) {
        if (digit < '0' || digit > '9') return std::nullopt;
        count = count * 10 + (digit - '0');
    }
    return count <= MostRepeats ? std::optional<int>(count) : std::nullopt;
}

std::string closedRepeatMark(int count) { return "r" + std::to_string(count); }

} // namespace tabrova
