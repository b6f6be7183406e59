// A slow plain restatement of a page redraw: the tables as text, the loops as they are told, one copy after
// the other.
#pragma once

#include "core/document/document.h"
#include "tabview/sprites.h"

#include <string>
#include <vector>

namespace tabrova::testing {

struct PlainTechnique {
    const char* code;
    int left, top;
    int kind; // 0 own width, 1 to the next column, 2 reach of "h", 3 reach of "t"
    int width, height, sheetX, sheetY;
    bool opaque;
};

// left is counted from the column's x, with the cursor's width of 13 already added where it belongs.
inline const std::vector<PlainTechnique>& plainTechniques() {
    static const std::vector<PlainTechnique> rows = {
        {"h", 24 + 13, 23, 2, 26, 12, 29, 107, true},      {"s", 24 + 13, 23, 1, 26, 12, 57, 107, true},
        {"v", 24 + 13, 23, 1, 26, 12, 85, 107, true},      {"w", 24 + 13, 23, 1, 26, 12, 113, 107, true},
        {"d", 24 + 13, 23, 1, 26, 12, 141, 107, true},     {".", 24 + 13, 29, 0, 4, 4, 30, 85, false},
        {"g", 21, 25, 0, 3, 10, 212, 19, false},           {"g", 20 + 13, 25, 0, 3, 10, 220, 19, false},
        {"m", 19 + 13, 23, 0, 26, 12, 197, 107, false},    {"f", 22 + 13, 23, 1, 26, 12, 225, 107, false},
        {"t", 22 + 13, 23, 3, 26, 12, 253, 107, false},    {"l", 19 + 13, 23, 0, 26, 12, 281, 107, false},
        {"o", 19 + 13, 23, 0, 26, 12, 309, 107, false},    {"r", 19 + 13, 23, 1, 26, 12, 337, 107, false},
        {"\xB2", 19 + 13, 23, 0, 10, 12, 448, 126, false}, {"p0.5", 22 + 13, 27, 0, 10, 17, 425, 58, false},
        {"p1.0", 22 + 13, 27, 0, 12, 28, 437, 58, false},  {"p1.5", 22 + 13, 27, 0, 13, 32, 451, 57, false},
        {"p2.0", 22 + 13, 27, 0, 14, 32, 464, 57, false},  {"p2.5", 22 + 13, 27, 0, 14, 32, 480, 57, false},
        {"p3.0", 22 + 13, 27, 0, 14, 32, 493, 57, false},  {"b0.5", 22 + 13, 13, 0, 10, 17, 423, 101, false},
        {"b1.0", 22 + 13, 1, 0, 12, 28, 435, 90, false},   {"b1.5", 22 + 13, -3, 0, 13, 32, 448, 86, false},
        {"b2.0", 22 + 13, -3, 0, 14, 32, 461, 86, false},  {"b2.5", 22 + 13, -3, 0, 14, 32, 476, 86, false},
        {"b3.0", 22 + 13, -3, 0, 14, 32, 490, 86, false},
    };
    return rows;
}

class PlainLayout {
  public:
    PlainLayout(const Document& document, int pageWidth) : document_(document), width_(pageWidth) {}

    std::vector<SpriteCopy> run() {
        int row = 0;
        for (int staff = document_.TopStaff;
             staff != document_.VisibleStaves + document_.TopStaff && staff != document_.StaffCount;
             ++staff) {
            copy(12, 100 * row + 30, 20, 51, 3, 24, true);
            stretch(22, 100 * row + 30, width_ - 34, 51, 33, 24, 30, 51, true);
            for (int c = 0; c < 32; ++c)
                for (int s = 0; s < 6; ++s)
                    cell(staff, row, c, s);
            copy(width_ - 14, 100 * row + 30, 2, 51, 3, 24, true);
            ++row;
        }
        return copies_;
    }

  private:
    void copy(int x, int y, int w, int h, int sx, int sy, bool opaque) {
        stretch(x, y, w, h, sx, sy, w, h, opaque);
    }
    void stretch(int x, int y, int w, int h, int sx, int sy, int sw, int sh, bool opaque) {
        copies_.push_back({{x, y, w, h}, {sx, sy, sw, sh}, opaque ? Raster::SrcCopy : Raster::SrcAnd});
    }

    void cell(int staff, int row, int c, int s) {
        const int column = staff * 32 + c;
        const int gridRow = (document_.CurrentTrack - 1) * 6 + s;
        const std::string text(document_.note(column, gridRow));
        const int x = document_.ColumnWidth * c + 24;
        const int y = 100 * row + 10 * s + 26;
        for (int fret = 0; fret <= 29; ++fret)
            if (text == std::to_string(fret)) copy(x, y, 9, 7, 1 + 10 * fret, 1, true);
        if (text == "x") copy(x, y, 9, 7, 301, 1, true);
        if (text == ">") copy(x, y, 9, 7, 171, 9, true);
        if (!document_.isGuitarTrack(document_.CurrentTrack)) {
            for (int n = 35; n <= 63; ++n)
                if (text == std::to_string(n)) copy(x, y, 9, 7, 11 + 10 * (n - 35), 1, true);
            for (int n = 64; n <= 81; ++n)
                if (text == std::to_string(n)) copy(x, y, 9, 7, 1 + 10 * (n - 64), 9, true);
        }
        barMark(std::string(document_.barMark(column)), row, c);
        technique(std::string(document_.technique(column, gridRow)), row, c, s, column, gridRow);
    }

    void barMark(const std::string& mark, int row, int c) {
        const int x = document_.ColumnWidth * c;
        const int top = 100 * row;
        if (mark == ".") copy(x + 16, top + 25, 12, 59, 3, 19, false);
        if (mark == "r") copy(x + 8, top + 25, 12, 59, 323, 25, false);
        for (int n = 1; n <= 15; ++n) {
            if (mark != "r" + std::to_string(n)) continue;
            copy(x + 12, top + 25, 12, 59, 340, 25, false);
            copy(x + 6, top + 17, 9, 7, 258, 62, false);
            copy(x + 14, top + 17, 9, 7, 188 + 10 * (n <= 8 ? n - 1 : n - 9), n <= 8 ? 54 : 62, false);
        }
    }

    bool filled(int column, int row) const { return !document_.note(column, row).empty(); }

    int reach(int kind, int column, int row) const {
        int d = 1;
        for (;;) {
            if (filled(column + d, row)) return d;
            if (d == 9) return d;
            if (kind == 2) {
                ++d;
                if (column + d >= document_.ColumnCapacity) return d;
            } else {
                if (column + d >= document_.ColumnCapacity) return d;
                ++d;
            }
        }
    }

    void technique(const std::string& code, int row, int c, int s, int column, int gridRow) {
        for (const PlainTechnique& mark : plainTechniques()) {
            if (code != mark.code) continue;
            const int pitch = document_.ColumnWidth;
            int w = mark.width;
            if (mark.kind == 1) w = pitch - 13;
            if (mark.kind >= 2) w = pitch * reach(mark.kind, column, gridRow) - 13;
            if (w <= 0) continue;
            stretch(pitch * c + mark.left, 100 * row + 10 * s + mark.top, w, mark.height, mark.sheetX,
                    mark.sheetY, mark.width, mark.height, mark.opaque);
        }
    }

    const Document& document_;
    int width_;
    std::vector<SpriteCopy> copies_;
};

} // namespace tabrova::testing
