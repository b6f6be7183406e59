// A slow plain restatement of the notation pass: its steps one after the other, cell by cell.
#pragma once

#include "core/document/document.h"
#include "tabview/notation_layout.h"

#include <string>

namespace tabrova::testing {

class PlainNotation {
  public:
    PlainNotation(const Document& document, int noteTop) : document_(document), noteTop_(noteTop) {}

    NotationLayout run() {
        if (!document_.isGuitarTrack(document_.CurrentTrack)) return out_;
        int value = 0;
        int r = (document_.CurrentStaff - document_.TopStaff - 1) * 100;
        for (int c = 0; c <= 31; ++c) {
            for (int s = 0; s <= 5; ++s) {
                const int a = (document_.CurrentStaff - 1) * 32 + c;
                if (note(a, s) != "") {
                    getTopToPut(c, s);
                    if (noteTop_ > 0) noteTops_[c][s] = noteTop_;
                    value = lookAhead(a);
                    head(c, value);
                    const std::size_t before = out_.page.size();
                    rhythm(c, a, r, value);
                    if (empty(a, a, s))
                        pageOnce_.insert(pageOnce_.end(), out_.page.begin() + static_cast<long>(before),
                                         out_.page.end());
                }
                int span = 0;
                if (value == 16) span = 1;
                if (value == 8) span = 2;
                if (value == 4) span = 4;
                if (value == 3) span = 3;
                if (value == 2) span = 8;
                if (value == 1) span = 16;
                technique(c, std::string(document_.technique(a, document_.CurrentTrack * 6 + s - 6)), span);
            }
            columnValue_[c] = value;
        }
        stems();
        return out_;
    }
    int noteTop() const { return noteTop_; }
    // The page's copies with those of each column's first note alone: the others draw the same over them.
    const std::vector<SpriteCopy>& pageOnce() const { return pageOnce_; }

  private:
    std::string note(int column, int s) const {
        return std::string(document_.note(column, document_.CurrentTrack * 6 + s - 6));
    }
    int cw() const { return document_.ColumnWidth; }

    void getTopToPut(int column, int s) {
        const int base[] = {51, 46, 42, 37, 32, 27};
        const std::string cell = note(document_.CurrentStaff * 32 + column - 32, s);
        if (cell == "x" || cell == ">") {
            noteTop_ = -1000;
            return;
        }
        const auto fret = toNumber(cell);
        const int row = document_.CurrentTrack * 6 + s - 6;
        if (!fret || row >= static_cast<int>(document_.TuningTable.size())) return;
        const auto p = toInteger16(*fret + document_.TuningTable[static_cast<std::size_t>(row)] + base[s]);
        if (!p) return;
        bool sharp = false;
        int y = noteTop_;
        if (*p >= 0 && *p <= 110) {
            const int o = *p / 12;
            const int d[] = {0, 0, 1, 1, 2, 3, 3, 4, 4, 5, 5, 6};
            const int m = *p % 12;
            y = 159 - 3 * (7 * o + d[m]);
            sharp = m == 1 || m == 3 || m == 6 || m == 8 || m == 10;
            if (*p == 106) y = -25;
            if (*p == 107) y = -28;
            if (*p == 108) y = -31;
            if (*p == 109) y = -31;
            if (*p == 110) y = -34;
        }
        if (y + 41 <= 32767) noteTop_ = y + 41;
        if (sharp)
            out_.strip.push_back({{cw() * column + 28, noteTop_ - 3, 8, 9}, {470, 35, 8, 9}, Raster::SrcAnd});
    }

    bool empty(int first, int last, int strings = 6) const {
        for (int column = first; column <= last; ++column)
            for (int s = 0; s < strings; ++s)
                if (note(column, s) != "") return false;
        return true;
    }

    int lookAhead(int a) const {
        const int capacity = document_.ColumnCapacity;
        int value = 16;
        if (!(a < capacity - 2) || !empty(a + 1, a + 1)) return value;
        value = 8;
        if (!(a < capacity - 3) || !empty(a + 1, a + 2)) return value;
        value = 3;
        if (!(a < capacity - 4) || !empty(a + 1, a + 3)) return value;
        value = 4;
        if (!(a < capacity - 8) || !empty(a + 1, a + 7)) return value;
        value = 2;
        if (!(a < capacity - 16) || !empty(a + 1, a + 15)) return value;
        return 1;
    }

    void head(int c, int value) {
        Rect sprite = {445, 2, 14, 18};
        if (value == 2) sprite.left = 459;
        if (value == 1) sprite.left = 482;
        out_.strip.push_back({{cw() * c + 37, noteTop_ - 13, 14, 18}, sprite, Raster::SrcAnd});
    }

    void page(int x, int y, int w, int h, const Rect& source, Raster raster,
              CopyFrom from = CopyFrom::Sheet) {
        out_.page.push_back({{x, y, w, h}, source, raster, from});
    }

    void rhythm(int c, int a, int r, int value) {
        int lowest = 0;
        for (int s = 5; s >= 0; --s)
            if (note(a, s) != "") {
                lowest = s;
                break;
            }
        const int n = 5 - lowest;
        const int x = cw() * c;
        const Rect stem = {346, 0, 1, 18};
        page(x + 27, r + 85 - 10 * n, 1, 10 * n + 18, stem, Raster::SrcCopy);
        if (document_.barMark(a + 1) != "") return;
        if (value == 16) {
            page(x + 28, r + 86, cw(), 17, {347, 1, 10, 17}, Raster::SrcAnd);
            page(x + cw() + 27, r + 85, 1, 18, stem, Raster::SrcAnd);
        }
        if (value == 8) {
            page(x + 28, r + 95, 2 * cw(), 8, {347, 10, 10, 8}, Raster::SrcAnd);
            page(x + 2 * cw() + 27, r + 85, 1, 18, stem, Raster::SrcAnd);
        }
        if (value == 4) {
            page(x + 28, r + 98, 4 * cw(), 5, {347, 10, 10, 5}, Raster::SrcAnd);
            page(x + 4 * cw() + 27, r + 85, 1, 18, stem, Raster::SrcAnd);
        }
        if (value == 2) {
            page(x + 28, r + 101, 8 * cw(), 2, {347, 10, 10, 2}, Raster::SrcAnd);
            page(x + 8 * cw() + 27, r + 85, 1, 18, stem, Raster::SrcAnd);
        }
        if (value == 3) page(x + 28, r + 110, 5, 5, {421, 35, 5, 5}, Raster::SrcCopy);
        if (value == 1)
            page(cw() * (c - 1) + 35, r + 85, cw() - 8, 18, {1, 1, 1, 1}, Raster::SrcCopy, CopyFrom::Page);
    }

    void technique(int c, const std::string& code, int span) {
        const std::string once = "svwdfrgmlo";
        const int lefts[] = {57, 85, 113, 141, 225, 337, 169, 197, 281, 309};
        const int x = cw() * c + 49;
        const auto add = [&](int left, double width) {
            const int w = static_cast<int>(roundHalfToEven(width));
            if (w > 0) out_.strip.push_back({{x, noteTop_ - 13, w, 12}, {left, 107, 26, 12}, Raster::SrcAnd});
        };
        if (code.size() == 1 && once.find(code) != std::string::npos) add(lefts[once.find(code)], cw() / 1.2);
        if (code == "h") add(29, cw() / 1.2 * span);
        if (code == "t") add(253, cw() / 1.2 * span);
        if (code == ".") out_.strip.push_back({{x, noteTop_ - 7, 4, 4}, {30, 85, 4, 4}, Raster::SrcAnd});
    }

    void stems() {
        int top = 1000;
        for (int c = 0; c <= 31; ++c)
            for (int s = 0; s <= 5; ++s)
                if (noteTops_[c][s] > 0 && noteTops_[c][s] < top) top = noteTops_[c][s];
        top -= 24;
        for (int c = 0; c <= 31; ++c) {
            int low = 0;
            for (int s = 0; s <= 5; ++s)
                if (noteTops_[c][s] > low) low = noteTops_[c][s];
            if (columnValue_[c] <= 1) continue;
            if (low > 0) out_.stems.push_back({cw() * c + 44, low, cw() * c + 44, top});
            if (columnValue_[c + 1] <= 1) continue;
            int height = 3;
            if (columnValue_[c] == 16) height = 11;
            if (columnValue_[c] == 8) height = 8;
            if (columnValue_[c] == 4) height = 5;
            out_.strip.push_back({{cw() * c + 44, top, cw(), height}, {365, 30, 1, height}, Raster::SrcAnd});
        }
    }

    const Document& document_;
    int noteTop_;
    NotationLayout out_;
    std::vector<SpriteCopy> pageOnce_;
    int columnValue_[33] = {};
    int noteTops_[33][6] = {};
};

} // namespace tabrova::testing
