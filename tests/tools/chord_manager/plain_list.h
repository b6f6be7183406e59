// The plain model of a list that shows a folder's files: what it has read, not what lies there now.
#pragma once

#include "tests/tools/chord_manager/plain_desk.h"

#include <algorithm>
#include <optional>

namespace tabrova::testing {

inline char plainSmall(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character;
}

inline std::string plainSmall(std::string text) {
    for (char& character : text)
        character = plainSmall(character);
    return text;
}

// "*" stands for any characters, "?" for one, capitals for small letters too.
inline bool plainFits(const std::string& name, const std::string& pattern) {
    if (pattern.empty()) return name.empty();
    if (pattern[0] == '*')
        return plainFits(name, pattern.substr(1)) || (!name.empty() && plainFits(name.substr(1), pattern));
    if (name.empty()) return false;
    const bool same = pattern[0] == '?' || plainSmall(pattern[0]) == plainSmall(name[0]);
    return same && plainFits(name.substr(1), pattern.substr(1));
}

struct PlainList {
    std::string pattern = "*";
    std::vector<std::string> rows;
    std::optional<std::string> chosen;

    void readAgain(const PlainFolder& folder) {
        rows.clear();
        for (const auto& [name, bytes] : folder)
            if (plainFits(name, pattern)) rows.push_back(name);
        std::ranges::sort(rows, {}, [](const std::string& name) { return plainSmall(name); });
        if (chosen && std::ranges::find(rows, *chosen) == rows.end()) chosen.reset();
    }
    void choose(std::size_t row) {
        if (row < rows.size()) chosen = rows[row];
    }
    int row() const {
        if (!chosen) return -1;
        return static_cast<int>(std::ranges::find(rows, *chosen) - rows.begin());
    }
    std::string text() const { return chosen.value_or(""); }
};

} // namespace tabrova::testing
