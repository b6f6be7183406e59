// Edits of the grid's shape, copies and pastes chosen at random, made on a document and on the plain model of
// it.
#pragma once

#include "editing/clipboard.h"
#include "tests/core/document/document_helpers.h"
#include "tests/editing/plain_grid.h"

#include <random>
#include <sstream>

namespace tabrova::testing {

inline constexpr int MostStavesOfTheWalk = 7;

class Chooser {
  public:
    explicit Chooser(unsigned seed) : random_(seed) {}

    int choose(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }
    bool oneIn(int times) { return choose(1, times) == 1; }
    Rows rows() { return oneIn(2) ? Rows::AllTracks : Rows::CurrentTrack; }

    // Now and then a text of its own, so that cells of every width stand side by side.
    std::string noteText() {
        if (oneIn(30)) return "far " + std::to_string(choose(0, 99999));
        const char* others[] = {"x", ">", "", "0", "29"};
        return oneIn(4) ? others[choose(0, 4)] : std::to_string(choose(0, 81));
    }
    std::string techniqueText() {
        const char* codes[] = {"h", "s", "v", "g", "r", ".", "\xB2", "p0.5", "b3.0", ""};
        return codes[choose(0, 9)];
    }
    std::string markText() {
        const char* marks[] = {".", "r", "r1", "r15", "|", "x r", ""};
        return marks[choose(0, 6)];
    }

  private:
    std::mt19937 random_;
};

// A document and its model, and the edits that both make.
class Walk : public Chooser {
  public:
    Walk(unsigned seed, Document& itsDocument) : Chooser(seed), document(itsDocument) {}

    void start(int tracks, int staves) {
        makeDocument(document, tracks, staves);
        document.ClipboardLength = document.ClipboardStart = 0;
        document.ClipboardNotes.clear();
        document.ClipboardTechniques.clear();
        document.ClipboardBarMarks.assign(document.ClipboardBarMarks.size(), EmptyText);
        model = PlainGrid(document);
        // From nearly empty to nearly full.
        scatter(choose(0, document.ColumnCapacity * document.RowCapacity));
        place();
    }

    // The last column and the cursor's own are where edges are.
    void scatter(int cells) {
        for (int each = 0; each < cells; ++each) {
            const int column = oneIn(20) ? document.lastColumn() : choose(0, document.lastColumn());
            const int row = choose(0, document.RowCapacity - 1);
            const std::string note = noteText(), technique = techniqueText(), mark = markText();
            document.setNote(column, row, note);
            model.notes[at(column)][at(row)] = note;
            if (oneIn(2)) {
                document.setTechnique(column, row, technique);
                model.techniques[at(column)][at(row)] = technique;
            }
            if (oneIn(6)) {
                document.setBarMark(column, mark);
                model.marks[at(column)] = mark;
            }
        }
    }

    void place() {
        const int edges[] = {0, 1, 30, 31};
        document.CurrentStaff =
            oneIn(3) ? document.StaffCount : static_cast<std::int16_t>(choose(1, document.StaffCount));
        document.ColumnInStaff = oneIn(2) ? edges[choose(0, 3)] : choose(0, 31);
        document.CurrentTrack = static_cast<std::int16_t>(choose(1, document.TrackCount));
        model.staff = document.CurrentStaff;
        model.columnInStaff = document.ColumnInStaff;
        model.track = document.CurrentTrack;
        document.CurrentColumn = choose(-100, 1000);
    }

    // Counts and a cursor that the grids do not have, as a file can leave them whose reading failed.
    void breakCounts() {
        const int edges[] = {0, 1, 30, 31};
        const int staves = choose(-2, 9), tracks = choose(-2, 6);
        const int staff = choose(-3, 8), track = choose(-2, 7);
        document.StaffCount = static_cast<std::int16_t>(staves);
        document.TrackCount = static_cast<std::int16_t>(tracks);
        document.CurrentStaff = static_cast<std::int16_t>(staff);
        document.CurrentTrack = static_cast<std::int16_t>(track);
        document.ColumnInStaff = oneIn(2) ? edges[choose(0, 3)] : choose(0, 31);
        model.staffCount = staves;
        model.trackCount = tracks;
        model.staff = staff;
        model.track = track;
        model.columnInStaff = document.ColumnInStaff;
    }

    void edit() {
        const bool large = document.StaffCount > MostStavesOfTheWalk;
        switch (choose(0, large ? 9 : 16)) {
        case 0:
        case 1:
        case 2:
            return removeStaff();
        case 3:
            return clear();
        case 4:
        case 5:
            return removeColumn();
        case 6:
            return afterCursor(false);
        case 7:
            return copy();
        case 8:
            return oneIn(8) ? otherDocument() : otherTracks();
        case 9:
        case 10:
            return noteLengths();
        case 11:
        case 12:
            return insertColumn();
        case 13:
            return afterCursor(true);
        case 14:
            return addStaff();
        default:
            return paste();
        }
    }

    Document& document;
    PlainGrid model;
    std::ostringstream said;

  private:
    static std::size_t at(int number) { return static_cast<std::size_t>(number); }
    const char* name(Rows rows) { return rows == Rows::AllTracks ? " all tracks" : " one track"; }

    void removeStaff() {
        if (document.StaffCount <= 1) return addStaff();
        said << "delete staff";
        deleteCurrentStaff(document);
        model.deleteStaff();
        if (document.CurrentStaff > document.StaffCount) {
            model.bringCursorBack();
            document.CurrentStaff = document.StaffCount;
            document.ColumnInStaff = 31;
        }
    }

    void clear() {
        const StaffClear what = {rows(), {oneIn(2), oneIn(2), oneIn(2)}};
        said << "clear" << name(what.rows) << what.parts.notes << what.parts.techniques
             << what.parts.barMarks;
        clearStaff(document, what);
        model.clear(what.rows == Rows::AllTracks, what.parts.notes, what.parts.techniques,
                    what.parts.barMarks);
    }

    void removeColumn() {
        const Rows which = rows();
        said << "remove column" << name(which);
        RemoveColumn(document, which);
        model.removeColumn(which == Rows::AllTracks);
    }

    void insertColumn() {
        const Rows which = rows();
        said << "insert column" << name(which);
        InsertColumn(document, which);
        model.insertColumn(which == Rows::AllTracks);
    }

    void afterCursor(bool insert) {
        said << (insert ? "insert" : "remove") << " after the cursor";
        GetCurrentXPosition(document);
        if (insert) {
            InsertColumnAfterCursor(document);
            model.insertColumnAfterCursor();
        } else {
            RemoveColumnAfterCursor(document);
            model.removeColumnAfterCursor();
        }
    }

    void noteLengths() {
        const int lengths[] = {1, 2, 3, 4, 8, 16};
        const int columns = lengths[choose(0, 5)];
        said << "note length " << columns;
        SetNoteLength(document, columns);
        model.setNoteLength(columns);
        EXPECT_EQ(noteLength(document), model.noteLength());
    }

    void copy() {
        if (oneIn(3)) {
            said << "copy staff";
            copyStaff(document);
            model.copyStaff();
        } else {
            const int columns = choose(1, 8);
            said << "copy " << columns;
            copyColumns(document, columns);
            model.copyColumns(columns);
        }
    }

    void paste() {
        const Rows which = rows();
        said << "paste" << name(which) << " of " << document.ClipboardLength;
        PasteProcedure(document, which);
        model.paste(which == Rows::AllTracks);
    }

    void addStaff() {
        if (oneIn(2)) {
            said << "staff after";
            EXPECT_EQ(newStaffAfterCurrent(document), model.newStaffAfterCurrent());
        } else {
            said << "staff before";
            EXPECT_EQ(newStaffBeforeCurrent(document), model.newStaffBeforeCurrent());
        }
    }

    void otherDocument() {
        said << "new";
        resetToNewDocument(document);
        model.newDocument();
    }

    void otherTracks() {
        const int tracks = choose(1, 4);
        said << tracks << " tracks";
        document.TrackCount = static_cast<std::int16_t>(tracks);
        if (document.CurrentTrack > tracks) document.CurrentTrack = static_cast<std::int16_t>(tracks);
        ResizeGrids(document, document.ColumnCapacity, tracks * 6);
        model.trackCount = tracks;
        model.track = document.CurrentTrack;
        model.resizeGrids(model.columnCapacity, tracks * 6);
    }
};

} // namespace tabrova::testing
