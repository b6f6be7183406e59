// The editor: keys, cursor, note entry, redraw and scrolling over one document. It is the only code that
// changes cells. It asks nobody back: what it needs to know stands in `Surroundings`, and what is to be shown
// is told at the end of each act. The given names are the commands' own.
#pragma once

#include "core/document/document.h"
#include "core/language/language_words.h"
#include "editing/acts.h"
#include "editing/cursor.h"
#include "editing/structure_edits.h"
#include "editing/surroundings.h"
#include "sound/sound_stopper.h"
#include "tabview/tab_view.h"

namespace tabrova {

enum class Direction { Right, Left, Up, Down, Nowhere };
enum class MouseButton { Left = 1, Right = 2, Middle = 4, None = 23 };

// Plain entry and power chords exclude each other; Intelligent is independent.
struct EditingModes {
    bool powerChord = false;  // mnuCCP
    bool intelligent = false; // mnuIntelligent
};

// What all editing works on and reports to.
struct EditingParts {
    Document& document;
    TabView& view;
    MidiOutput& sound;
    SoundStopper& stopper;
    const LanguageWords& words;
    Acts& acts;
    ShownTexts& texts;
    const Surroundings& surroundings;
};

class Editor {
  public:
    explicit Editor(EditingParts parts);

    // Keys and internal codes. Of `shift` only bit 1 is looked at.
    void picDocument_KeyDown(int keyCode, int shift);
    void DrawAndStoreNote(int code);
    void DrawAndStorePercussionNote(int drumKey);
    void StoreTechnique(int code);

    // What the bend panel and the repeat panel (1 to 15 times) were closed with.
    void takeBend(int code);
    void takeRepeat(int times);
    // A panel was closed without a choice: a key that does nothing but redraw.
    void panelClosed();
    // A choice in the fret palette, by the place of its highlight: the old note goes first.
    void chooseFromPalette(const Rect& highlight);

    void MoveCursor(Direction direction);
    // To this column, from 0, of this staff, from 1, on the same string; the page scrolls as far as it must.
    // What the document does not have is brought to its nearest.
    void goTo(int staff, int columnInStaff);
    void picDocument_MouseDown(MouseButton button, int x, int y);
    // The fretboard takes and removes notes; the cursor stays and nothing sounds.
    void picFretboard_MouseDown(MouseButton button, int x, int y);
    // The scroll bar was moved to `value`, which is brought into its range.
    void VScroll1_Change(int value);

    // Commands that change the shape of the grid. Each redraws.
    void clearCurrentStaff(const StaffClear& what);
    void mnuEditNewBarAfterCurrentBar();
    void mnuEditNewBarBeforeCurrent();
    void mnuEditnewBarAtEndofDocument();
    // The document's only staff cannot go: it is cleared.
    void mnuDeleteBar();
    void InsertColumnAllTracks();
    void InsertColumnOnTrack();
    void RemoveColumnAllTracks();
    void RemoveColumnOnTrack();
    // The note at the cursor takes this many columns: 1 is a sixteenth, 16 a whole note, 3 the "triplet".
    void SetNoteLength(int columns);
    void copyStaff();
    void copyColumns(int columns); // 1 to 8, from the cursor on
    void pasteColumns(Rows rows);

    void refreshdrawing();
    // The page has a new size: the cursor is pulled back onto it.
    void pageResized();
    void SetDebugLabel();
    void focusPage();

    void MakeNewDocument();
    // False if the document cannot grow any more.
    bool AppendStaff();

    Cursor& cursor() { return cursor_; }
    const PageObjects& page() const { return cursor_.objects; }
    const ScrollState& scroll() const { return cursor_.scroll; }
    // Of the objects above the page.
    void setCursorColor(QRgb color);
    void setCursorBorderWidth(int pixels);
    void setNoteLineColor(QRgb color) { cursor_.objects.noteLineColor = color; }
    void showPageLine(bool shown);
    // White paper under the tab instead of the tinted one.
    bool tabOneColor() const { return parts_.view.picDocument.background() == WhitePaper; }
    void setTabOneColor(bool oneColor);

    EditingModes modes;

  private:
    void clearOnlyStaff();
    void moveRight();
    void moveLeft();
    void stepStaffForward();
    void stepStaffBack();

    void storeNoteText(int code, CellPlace cell);
    void CreateAndStorePChord();
    void openPanel(Panel panel);
    void drawTypedCell();
    void drawTypedBarMark();
    void blankTechniquePlace();
    void soundColumn();
    void removeBarMark();
    void runKey(int keyCode, int shift);

    void DrawFretBoard();
    void DrawNotationAndRhythm();
    bool VScroll1_Moved(int value);
    void drawPage();
    void showWhatWasDrawn();
    void placeCursorAt(int x, int y);
    Changes& changes() { return parts_.acts.changes(); }

    EditingParts parts_;
    Document& document_;
    TabView& view_;
    Cursor cursor_;
};

} // namespace tabrova
