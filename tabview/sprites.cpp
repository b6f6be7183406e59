#include "tabview/sprites.h"

namespace tabrova {

namespace {

constexpr int CellPitch = 10;
constexpr int HighestFret = 29;
constexpr int FirstDrum = 35;
constexpr int FirstDrumOfSecondRow = 64;
constexpr int LastDrum = 81;
constexpr int RepeatsInFirstRow = 8;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Plain decimal of one or two digits without padding.
std::optional<int> shortNumber(std::string_view text) {
    if (text.size() == 1 && isDigit(text[0])) return text[0] - '0';
    if (text.size() == 2 && isDigit(text[0]) && text[0] != '0' && isDigit(text[1]))
        return (text[0] - '0') * 10 + (text[1] - '0');
    return std::nullopt;
}

constexpr Rect cell(int left, int top) { return {left, top, 9, 7}; }

} // namespace

std::optional<int> fretOfText(std::string_view text) {
    const auto fret = shortNumber(text);
    return fret && *fret <= HighestFret ? fret : std::nullopt;
}

std::optional<Rect> noteGlyph(std::string_view text) {
    if (text == "x") return sprite::DeadNote;
    if (text == ">") return sprite::JumpMark;
    const auto fret = fretOfText(text);
    if (!fret) return std::nullopt;
    return cell(1 + CellPitch * *fret, 1);
}

std::optional<Rect> percussionGlyph(std::string_view text) {
    const auto drum = shortNumber(text);
    if (!drum || *drum < FirstDrum || *drum > LastDrum) return std::nullopt;
    if (*drum < FirstDrumOfSecondRow) return cell(11 + CellPitch * (*drum - FirstDrum), 1);
    // The last of them is deliberately the jump mark's cell.
    return cell(1 + CellPitch * (*drum - FirstDrumOfSecondRow), 9);
}

Rect repeatCountGlyph(int count) {
    return count <= RepeatsInFirstRow ? cell(188 + CellPitch * (count - 1), 54)
                                      : cell(188 + CellPitch * (count - RepeatsInFirstRow - 1), 62);
}

} // namespace tabrova
