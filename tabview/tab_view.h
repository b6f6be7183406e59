// The editor's surfaces and what draws on them. A redraw starts from empty surfaces; nothing about the page
// is remembered between two redraws but its image and, to tell where it came out different, its tiles.
#pragma once

#include "tabview/fretboard_painter.h"
#include "tabview/notation_layout.h"
#include "tabview/page_geometry.h"
#include "tabview/page_layout.h"
#include "tabview/page_tiles.h"
#include "tabview/surface.h"

#include <optional>

namespace tabrova {

// There is a sheet for each scale from 1 to this one.
constexpr int FinestScale = 4;

// What a surface is made of now, and at the start of its redraw.
class Redrawing {
  public:
    void start(Surface& surface);
    void add(const SpriteCopy& copy) { now_.add(copy); }
    void end(Surface& surface);

  private:
    PageTiles now_;
    PageTiles before_;
    std::optional<Rect> changedBefore_; // while it is drawn: the changes that the surface told of before
};

class TabView {
  public:
    TabView();

    Surface picDocument;
    Surface picStandardNotation;
    Surface picFretboard;
    const Surface& picSource() const { return sheet_; }

    // Image pixels a logical pixel, 1 to FinestScale, for all surfaces and the sheet. Clears the surfaces.
    void setScale(int scale);

    // A redraw of page and strip starts with the first and ends with the second: their surfaces then tell, of
    // all that was drawn between, only where they look different now. The strip takes no copies of the page.
    void startRedraw();
    void endRedraw();

    // The visible staves over a cleared page. Returns PageRow, the number of staves drawn.
    int drawStaves(const Document& document);
    void drawStripBackground();
    // The notation of the cursor's staff on the strip and its rhythm under the tab, unless the track is a
    // percussion track; the beat ruler's ticks come first.
    void DrawNotationAndRhythm(const Document& document);
    // The neck and its notes, which are those of CurrentColumn.
    void DrawFretBoard(const Document& document, const FretboardColors& colors);

    // One copy onto the page, as the path of a typed note makes it.
    void copyToPage(const SpriteCopy& copy);

    const std::vector<RulerTick>& ruler() const { return ruler_; }

  private:
    void paint(Surface& surface, Redrawing& redrawing, const std::vector<SpriteCopy>& copies);

    Surface sheet_;
    std::vector<SpriteCopy> copies_;
    Redrawing page_;
    Redrawing strip_;
    std::vector<RulerTick> ruler_;
    NotationLayout notation_;
    std::int16_t NoteTop = 0;
};

// The sprite sheet at 1 to FinestScale image pixels a logical pixel.
Surface loadSheet(int scale);

} // namespace tabrova
