// A slow plain model of the editor's document: maps of cells and a cursor, with no page and no surfaces.
#pragma once

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <utility>

namespace tabrova::testing {

struct PlainModel {
    static constexpr int Staves = 4; // whole staves on the page
    using Cell = std::pair<int, int>;

    std::map<Cell, std::string> notes, techniques;
    std::map<int, std::string> marks;
    int staffCount = 1, topStaff = 0, staff = 1, column = 0, string = 0;
    bool powerChord = false, intelligent = false;
    int columnWidth = 29;

    int at() const { return (staff - 1) * 32 + column; }
    Cell here() const { return {at(), string}; }

    template <class Key>
    static void put(std::map<Key, std::string>& cells, const Key& key, const std::string& text) {
        if (text.empty()) {
            cells.erase(key);
        } else {
            cells[key] = text;
        }
    }

    void right() {
        if (column < 31) {
            ++column;
            return;
        }
        if (staff == staffCount) ++staffCount;
        column = 0;
        ++staff;
        if (staff > topStaff + Staves) ++topStaff;
    }

    void left() {
        if (column > 0) {
            --column;
        } else if (staff > 1) {
            column = 31;
            --staff;
            topStaff = std::min(topStaff, staff - 1);
        }
    }

    void growChord() {
        if (!powerChord || string < 4) return;
        const std::string root = notes.count(here()) ? notes[here()] : "";
        if (root.empty() || root == "x" || root == ">" || std::stoi(root) >= 28) return;
        for (int up = 1; up <= 2; ++up)
            notes[{at(), string - up}] = std::to_string(std::stoi(root) + 2);
    }

    void digit(char key) {
        const std::string old = notes.count(here()) ? notes[here()] : "";
        notes[here()] = (old == "1" || old == "2" ? old : "") + key;
    }

    // Every key but those that open a panel.
    void key(int code, int shift) {
        const bool shifted = shift & 1;
        static const std::map<int, std::string> letters = {{'H', "h"}, {'S', "s"}, {'V', "v"}, {'W', "w"},
                                                           {'D', "d"}, {'M', "m"}, {'F', "f"}, {'T', "t"},
                                                           {'L', "l"}, {'O', "o"}, {'R', "r"}, {'Z', "."}};
        if (code == 39) right();
        if (code == 37) left();
        if (code == 38 && string > 0) --string;
        if (code == 40 && string < 5) ++string;
        if (code >= 48 && code <= 57) {
            digit(static_cast<char>(code));
            growChord();
        }
        if (code == 'X' || code == 'J' || (code == 46 && !shifted)) {
            put(notes, here(), code == 'X' ? "x" : code == 'J' ? ">" : "");
            growChord();
        }
        if ((code == 13 || code == 32) && !shifted) {
            marks[at()] = code == 13 ? "." : "r";
            growChord();
        }
        if ((code == 46 && shifted) || code == 8) put(techniques, here(), "");
        if (code == 'U' && !shifted) marks.erase(at());
        if (code == 'G' && !shifted) techniques[here()] = "g";
        if (code == 'K' && !shifted) techniques[here()] = "\u00B2";
        if (letters.count(code)) techniques[here()] = letters.at(code);
        if (intelligent && (code == 'H' || code == 'T')) right();
    }

    void closedRepeat(int times) {
        growChord(); // the panel's opening is a note command like any other
        put(marks, at(), "r" + std::to_string(times));
        growChord();
    }

    void bend(int index) {
        static const char* const sizes[] = {"0.5", "1.0", "1.5", "2.0", "2.5", "3.0"};
        techniques[here()] = std::string(index < 6 ? "p" : "b") + sizes[index % 6];
    }

    void scrollTo(int value) {
        const int maximum = Staves >= staffCount ? 1 : staffCount - Staves + 1;
        const int row = staff - topStaff;
        topStaff = std::clamp(value, 1, maximum) - 1;
        staff = topStaff + row;
    }

    void click(int x, int y) {
        if (x < 22 || y < 25) return;
        const int clicked = (x - 22) / columnWidth;
        const int slot = (y - 25) / 100;
        if (clicked > 31 || slot >= Staves || topStaff + slot + 1 > staffCount) return;
        column = clicked;
        staff = topStaff + slot + 1;
        string = std::min(5, static_cast<int>(std::nearbyint((y - 25 - 100 * slot) / 10.0)));
    }
};

} // namespace tabrova::testing
