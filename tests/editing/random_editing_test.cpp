// Keys, clicks, scrolls and new page sizes at random: after every step the document, the cursor and the
// scroll bar are those of a plain model, and now and then the page shows what a fresh page would.
#include "editing/key_codes.h"
#include "tests/editing/fake_window.h"
#include "tests/editing/plain_editor.h"
#include "tests/tabview/plain_layout.h"
#include "tests/tabview/plain_notation.h"

#include <random>
#include <sstream>

namespace tabrova::testing {
namespace {

constexpr int MostStavesOfTheWalk = 12;
constexpr int StepsBetweenImages = 400;

class RandomEditing : public EditorTest, public ::testing::WithParamInterface<unsigned> {
  protected:
    void SetUp() override {
        makeThreeTracks();
        model.guitar = {{1, true}, {2, true}, {3, false}};
        resizeBoth(700, 330);
    }

    int choose(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random); }

    void resizeBoth(int width, int height) {
        resizePage(width, height);
        model.resize(width, height);
    }

    void key(int code, int shift) {
        const bool growing = code == key::Right || editor.modes.intelligent;
        const bool atEnd = document.CurrentStaff == MostStavesOfTheWalk && document.ColumnInStaff == 31;
        if (growing && atEnd) code = key::Left;
        said << "key " << code << " shift " << shift;
        editor.picDocument_KeyDown(code, shift);
        model.key(code, shift);
    }

    void click() {
        const int buttons[] = {1, 1, 2, 4, 23};
        const int button = buttons[choose(0, 4)];
        const int x = choose(-5, model.pageWidth + 20), y = choose(-5, model.pageHeight + 20);
        said << "button " << button << " at " << x << ',' << y;
        editor.picDocument_MouseDown(static_cast<MouseButton>(button), x, y);
        model.mouse(button, x, y);
    }

    void scroll() {
        const int value = choose(-1, model.scrollMaximum + 2);
        said << "scroll to " << value;
        editor.VScroll1_Change(value);
        model.scroll(value);
    }

    void internalCode() {
        switch (choose(0, 2)) {
        case 0: {
            const int code = choose(1000, 1016);
            said << "note code " << code;
            editor.DrawAndStoreNote(code);
            model.storeNote(code);
            break;
        }
        case 1: {
            const int code = choose(1199, 1212);
            said << "technique code " << code;
            editor.StoreTechnique(code);
            model.storeTechnique(code);
            break;
        }
        default: {
            const int drum = choose(35, 81);
            said << "drum " << drum;
            editor.DrawAndStorePercussionNote(drum);
            model.storeDrum(drum);
        }
        }
    }

    void changeSetting() {
        const int track = choose(1, 3);
        document.CurrentTrack = static_cast<std::int16_t>(track);
        model.track = track;
        editor.modes.powerChord = model.powerChord = choose(0, 1) == 1;
        editor.modes.intelligent = model.intelligent = choose(0, 1) == 1;
        said << "track " << track << " chords " << model.powerChord << " intelligent " << model.intelligent;
        editor.refreshdrawing();
        model.redraw();
    }

    void step() {
        said.str("");
        const int kind = choose(0, 999);
        if (kind < 400) {
            const int arrows[] = {key::Right, key::Right, key::Right, key::Left,
                                  key::Left,  key::Up,    key::Down};
            key(arrows[choose(0, 6)], choose(0, 7));
        } else if (kind < 800) {
            const int others[] = {8, 13, 32, 46, 81, 27, 112, 48, 49, 50};
            key(choose(0, 2) ? choose('0', 'Z') : others[choose(0, 9)], choose(0, 7));
        } else if (kind < 880) {
            click();
        } else if (kind < 930) {
            scroll();
        } else if (kind < 980) {
            internalCode();
        } else if (kind < 995) {
            changeSetting();
        } else {
            // Narrower than its margins a page has no columns that a click could hit.
            const int width = choose(0, 3) == 0 ? choose(20, 90) : choose(300, 1100);
            const int height = choose(20, 620);
            said << "page of " << width << " by " << height;
            resizeBoth(width, height);
        }
    }

    // All filled cells of one grid, and no others, are the model's.
    bool sameCells(const CellGrid& grid, const PlainEditor::Cells& cells) const {
        std::size_t filled = 0;
        for (int column = 0; column < grid.columns(); ++column)
            for (int row = 0; row < grid.rows(); ++row) {
                const TextId id = grid.at(column, row);
                if (id == EmptyText) continue;
                ++filled;
                const auto found = cells.find({column, row});
                if (found == cells.end() || found->second != document.pool.text(id)) return false;
            }
        return filled == cells.size();
    }

    bool sameMarks() const {
        std::size_t filled = 0;
        for (int column = 0; column < document.ColumnCapacity; ++column) {
            const std::string_view mark = document.barMark(column);
            if (mark.empty()) continue;
            ++filled;
            const auto found = model.marks.find(column);
            if (found == model.marks.end() || found->second != mark) return false;
        }
        return filled == model.marks.size();
    }

    void expectSame() {
        ASSERT_TRUE(sameCells(document.NoteGrid, model.notes));
        ASSERT_TRUE(sameCells(document.TechniqueGrid, model.techniques));
        ASSERT_TRUE(sameMarks());
        ASSERT_EQ(document.StaffCount, model.staffCount);
        ASSERT_EQ(document.ColumnCapacity, model.staffCount * 32);
        ASSERT_EQ(document.RowCapacity, 18);
        ASSERT_EQ(document.CurrentStaff, model.staff);
        ASSERT_EQ(document.ColumnInStaff, model.column);
        ASSERT_EQ(document.CurrentString, model.string);
        ASSERT_EQ(document.CurrentTrack, model.track);
        ASSERT_EQ(document.TopStaff, model.topStaff);
        ASSERT_EQ(document.VisibleStaves, model.visibleStaves);
        ASSERT_EQ(document.ColumnWidth, model.columnWidth);
        ASSERT_EQ(editor.scroll().value, model.scrollValue);
        ASSERT_EQ(editor.scroll().maximum, model.scrollMaximum);
        ASSERT_EQ(editor.page().nCursor, (Rect{model.markerLeft, model.markerTop, 13, 10}));
        ASSERT_EQ(window.selectorsOpened, model.palettes);
    }

    void expectInvariants() {
        const int slot = document.CurrentStaff - document.TopStaff - 1;
        ASSERT_GE(slot, 0);
        ASSERT_LT(slot, document.VisibleStaves);
        ASSERT_GE(document.CurrentStaff, 1);
        ASSERT_LE(document.CurrentStaff, document.StaffCount);
        ASSERT_EQ(document.TopStaff + 1, editor.scroll().value);
        ASSERT_LE(editor.scroll().value, editor.scroll().maximum);
        expectAt(document.CurrentStaff, document.ColumnInStaff, document.CurrentString, document.TopStaff);
    }

    // After a redraw the page is nothing but its copies and the rhythm's, whatever was drawn before.
    void expectFreshPage() {
        editor.refreshdrawing();
        model.redraw();
        QImage expected(view.picDocument.image().size(), QImage::Format_RGB32);
        expected.fill(0xFFFFFEF2);
        for (const SpriteCopy& copy : PlainLayout(document, view.picDocument.width()).run())
            carryOut(expected, view.picSource().image(), copy);
        for (const SpriteCopy& copy : PlainNotation(document, 0).run().page)
            carryOut(expected, copy.from == CopyFrom::Page ? QImage(expected) : view.picSource().image(),
                     copy);
        ASSERT_TRUE(sameImage(view.picDocument.image(), expected, "walk"));
    }

    std::mt19937 random{GetParam()};
    PlainEditor model;
    std::ostringstream said;
};

TEST_P(RandomEditing, AgreesWithThePlainModelAfterEveryStep) {
    for (int each = 0; each < 5000; ++each) {
        step();
        SCOPED_TRACE(::testing::Message() << "step " << each << ": " << said.str());
        ASSERT_NO_FATAL_FAILURE(expectSame());
        ASSERT_NO_FATAL_FAILURE(expectInvariants());
        if (each % StepsBetweenImages == 0) {
            ASSERT_NO_FATAL_FAILURE(expectFreshPage());
        }
        if (HasFailure()) return;
        device.take();
    }
    EXPECT_GT(model.notes.size(), 20u);
    EXPECT_GT(model.staffCount, 4);
}

INSTANTIATE_TEST_SUITE_P(FourWalks, RandomEditing, ::testing::Values(1u, 2u, 3u, 4u));

} // namespace
} // namespace tabrova::testing
