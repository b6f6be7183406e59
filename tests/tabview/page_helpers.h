// Documents for the page's tests.
#pragma once

#include "core/document/document_operations.h"
#include "tabview/page_geometry.h"
#include "tabview/page_layout.h"

#include <random>

namespace tabrova::testing {

inline void makePage(Document& document, int tracks, int staves, int pageWidth, int pageHeight) {
    resetToNewDocument(document);
    document.TrackCount = static_cast<std::int16_t>(tracks);
    document.StaffCount = static_cast<std::int16_t>(staves);
    document.GuitarTrackFlags.assign(static_cast<std::size_t>(tracks), True16);
    ResizeGrids(document, staves * 32, tracks * 6);
    document.ColumnWidth = columnWidth(pageWidth);
    document.VisibleStaves = visibleStaves(pageHeight);
}

inline std::vector<SpriteCopy> layout(const Document& document, int pageWidth) {
    std::vector<SpriteCopy> copies;
    layoutPage(copies, document, pageWidth);
    return copies;
}

// Everything but the three copies of the one staff itself.
inline std::vector<SpriteCopy> marksOf(const Document& document, int pageWidth) {
    std::vector<SpriteCopy> copies = layout(document, pageWidth);
    copies.erase(copies.begin(), copies.begin() + 2);
    copies.pop_back();
    return copies;
}

inline const char* const TechniqueCodes[] = {"h",    "s",    "v",    "w",    "d",    ".",    "g",    "m",
                                             "f",    "t",    "l",    "o",    "r",    "\xB2", "p0.5", "p1.0",
                                             "p1.5", "p2.0", "p2.5", "p3.0", "b0.5", "b1.0", "b1.5", "b2.0",
                                             "b2.5", "b3.0", "?",    "p4.0", "hh"};

// Notes, drums, techniques and marks of all kinds, known and unknown.
inline void fillAtRandom(Document& document, std::mt19937& random, int filledOf100) {
    const auto choose = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    const char* const others[] = {"x", ">", "30", "34", "35", "64", "81", "82", "007", "1.5", "no"};
    for (int column = 0; column < document.ColumnCapacity; ++column) {
        if (choose(7) == 0)
            document.setBarMark(column, choose(3) ? "r" + std::to_string(choose(17)) : choose(1) ? "." : "r");
        for (int row = 0; row < document.RowCapacity; ++row) {
            if (choose(99) < filledOf100)
                document.setNote(column, row, choose(5) ? std::to_string(choose(85)) : others[choose(10)]);
            if (choose(99) < filledOf100) document.setTechnique(column, row, TechniqueCodes[choose(28)]);
        }
    }
}

} // namespace tabrova::testing
