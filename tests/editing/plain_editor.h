// A slow plain model of the editor over maps of cells: the rules of keys, cursor, mouse, scrolling and page
// size as they are told, without a page, a pool or a grid. It does not take the editor's steps: scroll bar
// and marker follow from where the cursor stands and which staff is the page's first.
#pragma once

#include <cmath>
#include <map>
#include <string>
#include <utility>

namespace tabrova::testing {

class PlainEditor {
  public:
    using Cells = std::map<std::pair<int, int>, std::string>; // by (column, row); "" is not there

    Cells notes, techniques;
    std::map<int, std::string> marks;
    int staffCount = 1, staff = 1, column = 0, string = 0, track = 1;
    int topStaff = 0, scrollValue = 1, scrollMaximum = 1;
    int visibleStaves = 1, columnWidth = 0;
    int markerLeft = 22, markerTop = 25;
    int pageWidth = 0, pageHeight = 0;
    std::map<int, bool> guitar; // by track
    bool powerChord = false, intelligent = false;
    int bendPanels = 0, repeatPanels = 0, palettes = 0;

    int here() const { return (staff - 1) * 32 + column; }
    int row() const { return (track - 1) * 6 + string; }
    std::string note() const { return text(notes, here(), row()); }

    void redraw() {
        visibleStaves = pageHeight / 100 < 1 ? 1 : pageHeight / 100;
        columnWidth = static_cast<int>(std::nearbyint((pageWidth - 60) / 32.0));
        scrollMaximum = visibleStaves >= staffCount ? 1 : staffCount - visibleStaves + 1;
        // A scroll bar cannot hold a value over its end.
        if (topStaff + 1 > scrollMaximum) showFromStaff(scrollMaximum);
        placeObjects();
    }

    void key(int code, int shiftState) {
        const bool shift = shiftState % 2 != 0;
        const bool arrow = code >= 37 && code <= 40;
        if (arrow) move(code);
        if (!guitar[track]) {
            const bool plain =
                code == 13 || code == 32 || code == 46 || code == 'U' || code == 'G' || code == 'K';
            const bool shifted = code == 32 || code == 46;
            if (shift ? !shifted : !plain) return;
        }
        if (code == 'U' && !shift) {
            const std::string mark = marks.count(here()) ? marks[here()] : "";
            if (!mark.empty() && (mark[0] == '.' || mark[0] == 'r')) marks.erase(here());
        }
        if ((code >= '0' && code <= '9') || code == 'X' || code == 'J') storeNote(code);
        if (code == 13 && !shift) storeNote(13);
        if (code == 32) storeNote(shift ? 4000 : 3000);
        if (code == 46 && !shift) storeNote(46);
        if (code == 46 && shift) storeTechnique(46);
        const std::string anyShift = "BHSVWDMFTLORZ";
        if (code == 8 || (code < 128 && code > 64 && anyShift.find(static_cast<char>(code)) != anyShift.npos))
            storeTechnique(code);
        if ((code == 'G' || code == 'K') && !shift) storeTechnique(code);
        if (!arrow) redraw();
    }

    void storeNote(int code) {
        if (code == 13) return putMark(".");
        if (code == 3000) return putMark("r");
        if (code >= 1001 && code <= 1015) return putMark("r" + std::to_string(code - 1000));
        if (code == 4000) {
            ++repeatPanels;
            return putMark("");
        }
        std::string stored;
        if (code >= '0' && code <= '9') {
            stored = std::string(1, static_cast<char>(code));
            if (note() == "1" || note() == "2") stored = note() + stored;
        }
        if (code == 'X') stored = "x";
        if (code == 'J') stored = ">";
        put(notes, here(), row(), stored);
        chord();
    }

    void storeDrum(int drum) {
        put(notes, here(), row(), std::to_string(drum));
        redraw();
    }

    void storeTechnique(int code) {
        static const std::map<int, std::string> letters = {
            {'H', "h"}, {'S', "s"}, {'V', "v"}, {'W', "w"}, {'D', "d"}, {'G', "g"}, {'M', "m"},
            {'F', "f"}, {'T', "t"}, {'L', "l"}, {'O', "o"}, {'R', "r"}, {'Z', "."}, {'K', "\xB2"}};
        std::string stored = letters.count(code) ? letters.at(code) : "";
        if (code >= 1200 && code <= 1211) {
            const int half = (code - 1200) % 6 + 1; // in half steps of the bend's height
            stored = (code < 1206 ? "p" : "b") + std::to_string(half / 2) + (half % 2 ? ".5" : ".0");
        }
        if (code == 'B') ++bendPanels;
        put(techniques, here(), row(), stored);
        if (intelligent && (code == 'H' || code == 'T')) key(39, 0);
    }

    void mouse(int button, int x, int y) {
        if (x < 22 || y < 25) return;
        // On a page without room for columns there is nothing to hit.
        const int c = columnWidth < 1 ? 32 : (x - 22) / columnWidth;
        const int r = (y - 25) / 100;
        if (c <= 31 && r + 1 <= visibleStaves && topStaff + r + 1 <= staffCount) {
            column = c;
            string = static_cast<int>(std::nearbyint((y - 25 - 100 * r) / 10.0));
            if (string > 5) string = 5;
            staff = topStaff + r + 1;
            redraw();
        }
        if (button == 2 && guitar[track]) ++palettes;
    }

    void scroll(int value) {
        if (value < 1) value = 1;
        if (value > scrollMaximum) value = scrollMaximum;
        showFromStaff(value);
        redraw();
    }

    void resize(int width, int height) {
        pageWidth = width;
        pageHeight = height;
        redraw();
        // A cursor that fell below the page is pulled up to the last staff that is shown.
        if (staff > topStaff + visibleStaves) staff = topStaff + visibleStaves;
        redraw();
    }

  private:
    static std::string text(const Cells& cells, int atColumn, int atRow) {
        const auto found = cells.find({atColumn, atRow});
        return found == cells.end() ? "" : found->second;
    }

    static void put(Cells& cells, int atColumn, int atRow, const std::string& stored) {
        cells.erase({atColumn, atRow});
        if (!stored.empty()) cells[{atColumn, atRow}] = stored;
    }

    // A bar mark's code grows a chord from what stands in the cell, like any other.
    void putMark(const std::string& mark) {
        marks.erase(here());
        if (!mark.empty()) marks[here()] = mark;
        chord();
    }

    void chord() {
        if (!powerChord || string < 4) return;
        const std::string root = note();
        if (root.empty() || root.find_first_not_of("0123456789") != root.npos || std::stoi(root) >= 28)
            return;
        put(notes, here(), row() - 1, std::to_string(std::stoi(root) + 2));
        put(notes, here(), row() - 2, std::to_string(std::stoi(root) + 2));
    }

    // The cursor stays where it is on the screen: as many staves as the page goes on, it goes on.
    void showFromStaff(int first) {
        const int staves = first - (topStaff + 1);
        topStaff += staves;
        staff += staves;
    }

    void placeObjects() {
        scrollValue = topStaff + 1;
        markerLeft = column * columnWidth + 22;
        markerTop = 100 * (staff - topStaff - 1) + 10 * string + 25;
    }

    void move(int code) {
        if (code == 38 && string > 0) --string;
        if (code == 40 && string < 5) ++string;
        if (code == 39) right();
        if (code == 37) left();
        placeObjects();
    }

    // Behind a staff's last column comes the first of the next staff; the document grows by one where there
    // is none. A cursor that steps off the page takes the page along by that one staff.
    void right() {
        if (column < 31) {
            ++column;
            return;
        }
        column = 0;
        ++staff;
        if (staff > staffCount) staffCount = staff;
        if (staff > topStaff + visibleStaves) ++topStaff;
        redraw();
    }

    void left() {
        if (column > 0) {
            --column;
            return;
        }
        if (staff > 1) {
            column = 31;
            --staff;
            if (staff <= topStaff) --topStaff;
        }
        redraw();
    }
};

} // namespace tabrova::testing
