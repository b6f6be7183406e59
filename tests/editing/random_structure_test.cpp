// Edits of the grid's shape, copies and pastes at random: after every one the document is cell by cell that
// of a plain model, and so is the editor's cursor.
#include "editing/clipboard.h"
#include "editing/key_codes.h"
#include "tests/core/document_helpers.h"
#include "tests/editing/fake_host.h"
#include "tests/editing/plain_editor.h"
#include "tests/editing/plain_grid.h"

#include <random>
#include <sstream>

namespace tabrova::testing {
namespace {

constexpr int MostStavesOfTheWalk = 7;

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
        if (document.StaffCount == 1) return addStaff();
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
        const StaffClear what = {rows(), oneIn(2), oneIn(2), oneIn(2)};
        said << "clear" << name(what.rows) << what.notes << what.techniques << what.barMarks;
        clearStaff(document, what);
        model.clear(what.rows == Rows::AllTracks, what.notes, what.techniques, what.barMarks);
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
            EXPECT_TRUE(newStaffAfterCurrent(document));
            model.newStaffAfterCurrent();
        } else {
            said << "staff before";
            EXPECT_TRUE(newStaffBeforeCurrent(document));
            model.newStaffBeforeCurrent();
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

class RandomStructure : public ::testing::TestWithParam<unsigned> {
  protected:
    void step() {
        walk.said.str("");
        walk.edit();
        SCOPED_TRACE(walk.said.str());
        ASSERT_TRUE(sameGrid(document, walk.model));
    }

    Document document;
    Walk walk{GetParam(), document};
};

TEST_P(RandomStructure, ManyDocumentsAgreeWithThePlainModel) {
    for (int each = 0; each < 400; ++each) {
        SCOPED_TRACE(::testing::Message() << "document " << each);
        walk.start(walk.choose(1, 4), walk.choose(1, 4));
        for (int edits = walk.choose(1, 6); edits > 0; --edits) {
            ASSERT_NO_FATAL_FAILURE(step());
            if (walk.oneIn(2)) walk.place();
        }
        if (HasFailure()) return;
    }
}

TEST_P(RandomStructure, ALongSequenceOnOneDocumentAgreesWithThePlainModel) {
    walk.start(3, 2);
    int mostStaves = 0;
    for (int each = 0; each < 1500; ++each) {
        SCOPED_TRACE(::testing::Message() << "edit " << each);
        ASSERT_NO_FATAL_FAILURE(step());
        if (HasFailure()) return;
        mostStaves = std::max<int>(mostStaves, document.StaffCount);
        if (walk.oneIn(2)) walk.place();
        if (walk.oneIn(3)) walk.scatter(40);
    }
    EXPECT_GT(mostStaves, 6);
}

INSTANTIATE_TEST_SUITE_P(FourSeeds, RandomStructure, ::testing::Values(11u, 12u, 13u, 14u));

class RandomStructureCommands : public EditorTest, public ::testing::WithParamInterface<unsigned> {
  protected:
    void SetUp() override {
        makeThreeTracks();
        cursor.guitar = {{1, true}, {2, true}, {3, false}};
        resizePage(700, 330);
        cursor.resize(700, 330);
        walk.model = PlainGrid(document);
    }

    // The plain grid's size follows the plain cursor's, or the other way round.
    void cursorToGrid() {
        while (walk.model.staffCount < cursor.staffCount)
            walk.model.appendStaff();
        walk.model.staff = cursor.staff;
        walk.model.columnInStaff = cursor.column;
        walk.model.track = cursor.track;
    }
    void gridToCursor() {
        cursor.staffCount = walk.model.staffCount;
        cursor.redraw();
    }

    void move() {
        const int arrows[] = {key::Right, key::Right, key::Left, key::Up, key::Down};
        const int code = arrows[walk.choose(0, 4)];
        for (int times = walk.choose(1, 40); times > 0; --times) {
            editor.picDocument_KeyDown(code, 0);
            cursor.key(code, 0);
            if (document.StaffCount > MostStavesOfTheWalk) break;
        }
        walk.said << "key " << code;
        cursorToGrid();
    }

    void scroll() {
        const int value = walk.choose(1, cursor.scrollMaximum);
        walk.said << "scroll to " << value;
        editor.VScroll1_Change(value);
        cursor.scroll(value);
    }

    void changeTrack() {
        const int track = walk.choose(1, 3);
        walk.said << "track " << track;
        document.CurrentTrack = static_cast<std::int16_t>(track);
        cursor.track = track;
        editor.refreshdrawing();
        cursor.redraw();
    }

    // The page shows no staves behind the last one, and the cursor stays in its staff.
    void slidePageBack() {
        const int last = std::max(1, cursor.staffCount - cursor.visibleStaves + 1);
        while (cursor.scrollValue > last) {
            --cursor.scrollValue;
            --cursor.topStaff;
            cursor.markerTop += 100;
        }
    }

    void deleteStaff() {
        walk.said << "delete staff";
        host.allowClearing = walk.oneIn(2);
        const int questions = host.clearQuestions + (walk.model.staffCount == 1 ? 1 : 0);
        editor.mnuDeleteBar();
        EXPECT_EQ(host.clearQuestions, questions);
        if (walk.model.staffCount > 1) {
            walk.model.deleteStaff();
            cursor.staffCount = walk.model.staffCount;
            slidePageBack();
            while (cursor.staff > cursor.staffCount)
                cursor.key(key::Left, 0);
        } else if (host.allowClearing) {
            walk.model.clear(true, true, true, true);
        }
    }

    void command(int kind) {
        walk.said << "command " << kind;
        const int lengths[] = {1, 2, 3, 4, 8, 16};
        const int columns = lengths[walk.choose(0, 5)];
        PlainGrid& model = walk.model;
        switch (kind) {
        case 0:
            editor.InsertColumnAllTracks();
            model.insertColumn(true);
            return model.removeBarMark();
        case 1:
            editor.InsertColumnOnTrack();
            return model.insertColumn(false);
        case 2:
            editor.RemoveColumnAllTracks();
            return model.removeColumn(true);
        case 3:
            editor.RemoveColumnOnTrack();
            return model.removeColumn(false);
        case 4:
            editor.SetNoteLength(columns);
            return model.setNoteLength(columns);
        case 5:
            copyColumns(document, 1 + columns % 8);
            return model.copyColumns(1 + columns % 8);
        case 6:
            copyStaff(document);
            return model.copyStaff();
        case 7:
            editor.clearCurrentStaff({Rows::CurrentTrack, columns < 8, columns != 3, columns == 4});
            return model.clear(false, columns < 8, columns != 3, columns == 4);
        case 8:
            editor.mnuEditNewBarAfterCurrentBar();
            return model.newStaffAfterCurrent();
        case 9:
            editor.mnuEditNewBarBeforeCurrent();
            return model.newStaffBeforeCurrent();
        case 10:
            editor.mnuEditnewBarAtEndofDocument();
            return model.appendStaff();
        case 11:
            editor.pasteColumns(Rows::AllTracks);
            return model.paste(true);
        default:
            editor.pasteColumns(Rows::CurrentTrack);
            return model.paste(false);
        }
    }

    void step() {
        const int kind = walk.choose(0, 99);
        if (kind < 35) return move();
        if (kind < 40) return scroll();
        if (kind < 45) return changeTrack();
        if (kind < 55) return walk.scatter(30);
        if (kind < 67 || document.StaffCount > MostStavesOfTheWalk) return deleteStaff();
        command(walk.choose(0, 12));
    }

    void expectSame() {
        ASSERT_TRUE(sameGrid(document, walk.model));
        ASSERT_EQ(document.CurrentString, cursor.string);
        ASSERT_EQ(document.TopStaff, cursor.topStaff);
        ASSERT_EQ(editor.scroll().value, cursor.scrollValue);
        ASSERT_EQ(editor.scroll().maximum, cursor.scrollMaximum);
        ASSERT_EQ(editor.page().nCursor, (Rect{cursor.markerLeft, cursor.markerTop, 13, 10}));
        ASSERT_LE(document.CurrentStaff, document.StaffCount);
        ASSERT_GE(document.CurrentStaff, 1);
        GetCurrentXPosition(document);
        expectAt(document.CurrentStaff, document.ColumnInStaff, document.CurrentString, document.TopStaff);
    }

    Walk walk{GetParam(), document};
    PlainEditor cursor;
};

TEST_P(RandomStructureCommands, AgreeWithThePlainModelAfterEveryStep) {
    for (int each = 0; each < 2500; ++each) {
        walk.said.str("");
        step();
        gridToCursor();
        cursorToGrid();
        SCOPED_TRACE(::testing::Message() << "step " << each << ": " << walk.said.str());
        ASSERT_NO_FATAL_FAILURE(expectSame());
        if (HasFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(FourSeeds, RandomStructureCommands, ::testing::Values(21u, 22u, 23u, 24u));

} // namespace
} // namespace tabrova::testing
