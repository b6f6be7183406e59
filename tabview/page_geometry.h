// The tab page's geometry in logical pixels, and the state of the objects that float above the page.
#pragma once

#include "core/document/document.h"
#include "tabview/surface.h"

namespace tabrova {

constexpr int SlotHeight = 100; // one staff on the page
constexpr int StringSpacing = 10;
constexpr int CellLeft = 24; // note cell of column 0
constexpr int CellTop = 26;  // note cell of string 0 in its slot
constexpr int CellWidth = 9;
constexpr int CellHeight = 7;
constexpr int CursorLeft = 22;
constexpr int CursorTop = 25;
constexpr int CursorWidth = 13;
constexpr int CursorHeight = 10;
constexpr int StripHeight = 168;      // the notation strip's
constexpr int LineSpacingMargin = 60; // pixels of the page's width that are margins

constexpr QRgb PaperColor = 0xFFFFFEF2;
constexpr QRgb WhitePaper = 0xFFFFFFFF;
constexpr QRgb CursorColor = 0xFF1A57BD;

// Whole staves that a page of this height shows; at least 1.
std::int16_t visibleStaves(int pageHeight);
// Pixels between two columns on a page of this width.
std::int16_t columnWidth(int pageWidth);

// Retained objects over the page and the strip: moving them needs no redraw.
struct PageObjects {
    Rect nCursor = {CursorLeft, CursorTop, CursorWidth, CursorHeight};
    Line vLine1;                            // on the page, from its top to the cursor
    Line NoteLine = {0, 0, 0, StripHeight}; // on the strip, 8 to the right of vLine1
    bool vLine1Visible = true;
    QRgb color = CursorColor; // border of nCursor and vLine1
    QRgb noteLineColor = CursorColor;
    int borderWidth = 1;

    // Both lines follow the cursor.
    void placeLines();
};

} // namespace tabrova
