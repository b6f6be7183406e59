// Edits of the grid's shape, copies and pastes at random: after every one the document is cell by cell that
// of a plain model, and so is the editor's cursor.
#include "editing/key_codes.h"
#include "tests/editing/fake_window.h"
#include "tests/editing/plain_editor.h"
#include "tests/editing/structure_walk.h"

namespace tabrova::testing {
namespace {

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
        editor.mnuDeleteBar();
        if (walk.model.staffCount > 1) {
            walk.model.deleteStaff();
            cursor.staffCount = walk.model.staffCount;
            slidePageBack();
            while (cursor.staff > cursor.staffCount)
                cursor.key(key::Left, 0);
        } else {
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
            model.newStaffAfterCurrent();
            return;
        case 9:
            editor.mnuEditNewBarBeforeCurrent();
            model.newStaffBeforeCurrent();
            return;
        case 10:
            editor.mnuEditnewBarAtEndofDocument();
            model.appendStaff();
            return;
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
