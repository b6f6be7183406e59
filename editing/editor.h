// The editor: keys, cursor, note entry, redraw and scrolling over one document. It is the only code that
// changes cells. The given names are the commands' own.
#pragma once

#include "core/document/document.h"
#include "core/language/language_words.h"
#include "editing/editor_host.h"
#include "editing/structure_edits.h"
#include "sound/midi_output.h"
#include "tabview/tab_view.h"

namespace tabrova {

enum class Direction { Right, Left, Up, Down, Nowhere };
enum class MouseButton { Left = 1, Right = 2, Middle = 4, None = 23 };

// Plain entry and power chords exclude each other; Intelligent is independent.
struct EditingModes {
    bool powerChord = false;  // mnuCCP
    bool intelligent = false; // mnuIntelligent
};

struct ScrollState {
    int minimum = 1;
    int maximum = 1;
    int value = 1; // TopStaff + 1
};

struct EditorParts {
    Document& document;
    TabView& view;
    MidiOutput& sound;
    EditorHost& host;
    const LanguageWords& words;
};

class Editor {
  public:
    explicit Editor(EditorParts parts);

    // Keys and internal codes. Of `shift` only bit 1 is looked at.
    void picDocument_KeyDown(int keyCode, int shift);
    void DrawAndStoreNote(int code);
    void DrawAndStorePercussionNote(int drumKey);
    void StoreTechnique(int code);

    // A choice in the fret palette, by the place of its highlight: the old note goes first.
    void chooseFromPalette(const Rect& highlight);

    void MoveCursor(Direction direction);
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
    void mnuDeleteBar();
    void InsertColumnAllTracks();
    void InsertColumnOnTrack();
    void RemoveColumnAllTracks();
    void RemoveColumnOnTrack();
    // The note at the cursor takes this many columns: 1 is a sixteenth, 16 a whole note, 3 the "triplet".
    void SetNoteLength(int columns);
    void pasteColumns(Rows rows);

    void refreshdrawing();
    // The page has a new size: the cursor is pulled back onto it.
    void pageResized();
    void SetDebugLabel();

    void MakeNewDocument();
    // False if the document cannot grow any more.
    bool AppendStaff();

    const PageObjects& page() const { return page_; }
    PageObjects& page() { return page_; }
    const ScrollState& scroll() const { return scroll_; }
    EditingModes modes;

  private:
    void moveRight();
    void moveLeft();
    void stepStaffForward();
    void stepStaffBack();

    void storeNoteText(int code);
    void CreateAndStorePChord();
    void openPanel(Panel panel);
    void drawTypedCell();
    void drawTypedBarMark();
    void blankTechniquePlace();
    void soundColumn();
    void removeBarMark();
    void runKey(int keyCode, int shift);

    void finishStructureEdit();
    void pullPageIntoDocument();

    void DrawFretBoard();
    void DrawNotationAndRhythm();
    void placeCursorAt(int x, int y);
    void updateScrollRange();
    int scrollMaximum() const;
    void keepCursorOnPage();

    Document& document_;
    TabView& view_;
    MidiOutput& sound_;
    EditorHost& host_;
    const LanguageWords& words_;
    PageObjects page_;
    ScrollState scroll_;
};

} // namespace tabrova
