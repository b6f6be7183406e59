// Files of the previous generation, put together from a plain struct, and the places of their fields.
#pragma once

#include <array>
#include <map>
#include <string>
#include <tuple>

namespace tabrova::testing {

constexpr std::size_t OldTempoAt = 3, OldStavesAt = 6, OldTuningAt = 11, OldCellsAt = 23;

// Where the two characters of a cell stand, all counted from 0.
constexpr std::size_t oldCellAt(int staff, int row, int column) {
    return OldCellsAt + static_cast<std::size_t>(staff * 577 + row * 96 + column * 3);
}

// The length of the author, behind so many staves.
constexpr std::size_t oldAuthorAt(int staves) { return oldCellAt(staves, 0, 0); }

// Of the width at least, with blanks before it.
inline std::string oldField(int number, std::size_t width) {
    std::string text = std::to_string(number);
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

struct OldFile {
    int instrument = 24;
    int tempo = 300;
    int staves = 1;
    std::array<int, 6> tuning = {12, 12, 12, 12, 12, 12}; // from the lowest string
    // Of staff, row and column. The others are empty, the one half as ">>", the other as blanks.
    std::map<std::tuple<int, int, int>, std::string> cells;
    std::string author = "Ann";
    std::string title = "Old song";
    char filler = '|';

    std::string cell(int staff, int row, int column) const {
        const auto found = cells.find({staff, row, column});
        if (found != cells.end()) return found->second;
        return (row + column) % 2 == 0 ? ">>" : "  ";
    }

    std::string bytes() const {
        std::string text = oldField(instrument, 3) + oldField(tempo, 3) + oldField(staves, 5);
        for (const int field : tuning)
            text += oldField(field, 2);
        for (int staff = 0; staff < staves; ++staff) {
            for (int row = 0; row < 6; ++row)
                for (int column = 0; column < 32; ++column)
                    text += cell(staff, row, column) + filler;
            text += filler;
        }
        text += oldField(static_cast<int>(author.size()), 2) + author;
        return text + oldField(static_cast<int>(title.size()), 2) + title;
    }
};

// The bytes with this text in the place of as many of them.
inline std::string withText(std::string bytes, std::size_t at, const std::string& text) {
    return bytes.replace(at, text.size(), text);
}

} // namespace tabrova::testing
