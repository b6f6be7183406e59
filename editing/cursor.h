// The cursor as one value: its staff, column and string in the document, its marker on the page, and how far
// the page is scrolled. A step moves number and marker together; whoever redraws is the editor.
#pragma once

#include "core/document/document.h"
#include "tabview/page_geometry.h"

namespace tabrova {

struct ScrollState {
    int minimum = 1;
    int maximum = 1;
    int value = 1; // TopStaff + 1
};

struct CellPlace {
    int column;
    int row;
};

class Cursor {
  public:
    explicit Cursor(Document& document) : document_(document) {}

    // The place in the grids. CurrentColumn is brought up to date with it, and by nothing else.
    CellPlace cell();
    int column() { return cell().column; }

    // False at the edge of the staff or of the strings, with nothing moved.
    bool stepColumn(int columns);
    bool stepString(int strings);
    // To this column of the staff before or behind. The marker goes to its column at the next redraw.
    void stepStaff(int staves, int column);
    // The staff under a place of the page that shows it.
    void moveTo(int staff, int columnInStaff, int string, int slotTop);
    // The beginning of a new document, and its page at the top.
    void goHome();

    // The marker alone: the page has slid under it.
    void slideMarker(int staves) { objects.nCursor.top += staves * SlotHeight; }
    // The staff alone, where the marker stands right already.
    void renumberStaff(int staves);
    void placeMarkerInColumn();
    void placeLines() { objects.placeLines(); }

    // The page shows the staves from `value` on. The marker stays where it is on the screen and so lands on
    // another staff. False if nothing is to be scrolled.
    bool scrollTo(int value);
    // The range for the document's staves; false if the value lies beyond it.
    bool takeScrollRange();
    // A page that is scrolled further than a shorter document reaches slides back under the cursor, which
    // stays in its staff.
    void pullPageIntoDocument();
    // A page that has got lower takes the marker along, staff by staff.
    void keepOnPage(int pageHeight);

    PageObjects objects;
    ScrollState scroll;

  private:
    int scrollMaximum() const;

    Document& document_;
};

} // namespace tabrova
