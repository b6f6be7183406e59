// The percussion editor's window: its list, its pictures, its places, and the mark of the cursor's drum.
#include "core/document/document_operations.h"
#include "core/document/track_table.h"
#include "tests/tools/sent_bytes.h"
#include "tests/workbench/tool_bench.h"
#include "tools/percussion_editor/drum_list.h"
#include "tools/percussion_editor/frmPercussion.h"
#include "tools/percussion_editor/percussion_layout.h"

#include <QCheckBox>
#include <QLabel>
#include <QTest>

namespace tabrova::testing {
namespace {

TEST(PercussionPlaces, FollowTheClientArea) {
    for (const auto& [width, height] : {std::pair{560, 350}, {109, 200}, {110, 111}, {0, 0}, {1000, 900}}) {
        const PercussionLayout layout = percussionLayout(width, height);
        EXPECT_EQ(layout.listHeight, std::max(height - 110, 0));
        EXPECT_EQ(layout.listColumns, std::max(width / 110, 1));
        EXPECT_EQ(layout.upTop, height - 81);
        EXPECT_EQ(layout.sideTop, height - 55);
        EXPECT_EQ(layout.downTop, height - 30);
        EXPECT_EQ(layout.deleteTop, height - 54);
        EXPECT_EQ(layout.labelTop, height - 80);
    }
}

class PercussionWindow : public ToolBench {
  protected:
    void open(bool percussion = true) {
        if (percussion) document().GuitarTrackFlags[0] = False16;
        form = std::make_unique<frmPercussion>(context, nullptr);
        form->Form_Load();
        form->show();
        QApplication::processEvents();
        list = form->findChild<DrumList*>("List1");
    }
    QWidget& control(const char* name) { return *form->findChild<QWidget*>(name); }
    void clickDrum(int drum) {
        list->scrollToItem(list->item(drum));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(drum)).center());
    }
    void press(const char* picture) { QTest::mouseClick(&control(picture), Qt::LeftButton); }
    std::string cell(int column, int row) { return std::string(document().note(column, row)); }
    std::pair<int, int> cursor() { return {document().ColumnInStaff, document().CurrentString}; }
    QRect place(const char* name) { return control(name).geometry(); }

    std::unique_ptr<frmPercussion> form;
    DrumList* list = nullptr;
};

TEST_F(PercussionWindow, OpensWithTheNumberedDrums) {
    open();
    const char* const rows[] = {
        "1. Acoustic Bass Drum", "2. Bass Drum 1",     "3. Side Stick",      "4. Acoustic Snare",
        "5. Hand Clap",          "6. Electric Snare",  "7. Low Floor Tom",   "8. Closed High-Hat",
        "9. High Floor Tom",     "10. Pedal High-Hat", "11. Low Tom",        "12. Open High-Hat",
        "13. Low-Mid Tom",       "14. High-Mid Tom",   "15. Crash Cymbal 2", "16. High Tom",
        "17. Ride Cymbal 2",     "18. Chinese Cymbal", "19. Ride Bell",      "20. Tambourine",
        "21. Crash Cymbal 1",    "22. Cowbell",        "23. Splash Cymbal",  "24. Vibraslap",
        "25. Ride Cymbal 1",     "26. High Bongo",     "27. Low Bongo",      "28. Mute High Conga",
        "29. Open High Conga",   "30. Low Conga",      "31. High Timbale",   "32. Low Timbale",
        "33. High Agogo",        "34. Cabasa",         "35. Maracas",        "36. Short Whistle",
        "37. Long Whistle",      "38. Short Guiro",    "39. Long Guiro",     "40. Claves",
        "41. High Wood Block",   "42. Low Wood Block", "43. Mute Cuica",     "44. Open Cuica",
        "45. Mute Triangle",     "46. Open Triangle"};
    ASSERT_EQ(list->count(), 46);
    for (int row = 0; row < 46; ++row)
        EXPECT_EQ(list->item(row)->text().toStdString(), rows[row]);
    EXPECT_EQ(list->chosenRow(), -1);
    EXPECT_EQ(form->windowTitle(), "Percussion Editor");
    EXPECT_EQ(form->findChild<QCheckBox*>("chkAuto")->text(), "Automatically move to the next beat");
    EXPECT_EQ(form->findChild<QLabel*>("Label1")->text(),
              "Position this window so that you can see your document beneath it. Then use the arrow buttons "
              " on the left to navigate around the document, and click a drum to write it to the document.");
    const std::pair<const char*, const char*> hints[] = {{"Image1", "Move Right"},
                                                         {"Image2", "Move Down"},
                                                         {"Image3", "Move Left"},
                                                         {"Image4", "Move Up"},
                                                         {"Image6", "Delete Note"}};
    for (const auto& [picture, hint] : hints)
        EXPECT_EQ(control(picture).toolTip(), hint);
    EXPECT_TRUE(midi.take().empty());
}

TEST_F(PercussionWindow, EachDrumIsWrittenAndSoundsWhateverTheModeOfEntry) {
    open();
    for (int drum = 0; drum < 46; ++drum) {
        document().RealtimeMode = static_cast<std::int16_t>(drum % 3);
        clickDrum(drum);
        EXPECT_EQ(cell(0, 0), std::to_string(drum + 35));
        const std::vector<ShortMessage> expected = {{0x99, static_cast<std::uint8_t>(drum + 35), 127}};
        EXPECT_EQ(midi.take(), expected);
        EXPECT_EQ(cursor(), std::pair(0, 0));
        EXPECT_EQ(list->markedDrum(), drum);
    }
    clickDrum(45);
    EXPECT_EQ(sentBytes(midi), Sent{"99 50 7f"});
}

TEST_F(PercussionWindow, MovesOnByItselfIfItIsToldTo) {
    open();
    form->findChild<QCheckBox*>("chkAuto")->setChecked(true);
    clickDrum(3);
    EXPECT_EQ(cursor(), std::pair(1, 0));
    clickDrum(3);
    clickDrum(1);
    EXPECT_EQ(cursor(), std::pair(3, 0));
    EXPECT_EQ(cell(0, 0), "38");
    EXPECT_EQ(cell(1, 0), "38");
    EXPECT_EQ(cell(2, 0), "36");
    EXPECT_EQ(list->markedDrum(), std::nullopt);
}

TEST_F(PercussionWindow, ThePicturesMoveTheCursorAsTheMouseGoesDown) {
    open();
    press("Image1");
    press("Image1");
    press("Image2");
    EXPECT_EQ(cursor(), std::pair(2, 1));
    press("Image3");
    press("Image4");
    EXPECT_EQ(cursor(), std::pair(1, 0));
    QTest::mousePress(&control("Image1"), Qt::LeftButton);
    EXPECT_EQ(cursor(), std::pair(2, 0));
    QTest::mouseRelease(&control("Image1"), Qt::LeftButton);
    EXPECT_EQ(cursor(), std::pair(2, 0));
    QTest::keyClick(&control("Image1"), Qt::Key_Space);
    QTest::keyClick(&control("Image1"), Qt::Key_Return);
    EXPECT_EQ(cursor(), std::pair(4, 0));
    QTest::mouseClick(&control("Image1"), Qt::RightButton);
    EXPECT_EQ(cursor(), std::pair(5, 0));
}

TEST_F(PercussionWindow, TheBinEmptiesTheNote) {
    open();
    clickDrum(7);
    press("Image6");
    EXPECT_EQ(cell(0, 0), "");
    EXPECT_EQ(list->markedDrum(), std::nullopt);
    EXPECT_EQ(list->chosenRow(), 7);
}

TEST_F(PercussionWindow, WritesNumbersIntoAGuitarTrackToo) {
    open(false);
    clickDrum(3);
    EXPECT_EQ(cell(0, 0), "38");
    EXPECT_EQ(sentBytes(midi), Sent{"99 26 7f"});
    EXPECT_EQ(list->markedDrum(), std::nullopt);
    press("Image2");
    EXPECT_EQ(cursor(), std::pair(0, 1));
    press("Image4");
    press("Image6");
    EXPECT_EQ(cell(0, 0), "");
}

TEST_F(PercussionWindow, MarksTheDrumUnderTheCursorWhoeverMovesIt) {
    open();
    document().setNote(1, 2, "46");
    document().setNote(2, 2, "34");
    document().setNote(3, 2, "81");
    document().setNote(4, 2, "x");
    document().setNote(5, 2, "35");
    const std::optional<int> drums[] = {std::nullopt, 11, std::nullopt, std::nullopt, std::nullopt, 0};
    press("Image2");
    press("Image2");
    for (int column = 0; column < 6; ++column) {
        EXPECT_EQ(list->markedDrum(), drums[column]) << column;
        bench.editor.picDocument_KeyDown(39, 0);
    }
    bench.editor.picDocument_KeyDown(37, 0);
    EXPECT_EQ(list->markedDrum(), 0);
    document().CurrentTrack = 9; // one that is not there
    bench.editor.refreshdrawing();
    EXPECT_EQ(list->markedDrum(), std::nullopt);
}

TEST_F(PercussionWindow, TheMarkOfADocumentThatIsOpenIsThereAtOnce) {
    document().setNote(0, 0, "40");
    open();
    EXPECT_EQ(list->markedDrum(), 5);
}

TEST_F(PercussionWindow, TakesNothingWhileTheDocumentPlays) {
    open();
    const auto tellPlaying = [&](bool playing) {
        const Act act(bench.acts, "play");
        bench.player.playing = playing;
        bench.acts.changes().playing = true;
    };
    tellPlaying(true);
    for (const char* name : {"List1", "Image1", "Image2", "Image3", "Image4", "Image6"})
        EXPECT_FALSE(control(name).isEnabled()) << name;
    clickDrum(4);
    press("Image1");
    EXPECT_EQ(cell(0, 0), "");
    EXPECT_EQ(cursor(), std::pair(0, 0));
    EXPECT_TRUE(midi.take().empty());
    tellPlaying(false);
    for (const char* name : {"List1", "Image1", "Image2", "Image3", "Image4", "Image6"})
        EXPECT_TRUE(control(name).isEnabled()) << name;
}

TEST_F(PercussionWindow, LaysItsControlsOutByItsClientArea) {
    open();
    for (const QSize size : {QSize(560, 350), QSize(300, 240), QSize(900, 600), QSize(333, 444)}) {
        form->resize(size);
        QApplication::processEvents();
        const int h = size.height(), w = size.width();
        EXPECT_EQ(place("List1"), QRect(0, place("List1").top(), w, h - 110));
        EXPECT_EQ(place("List1").top(), 27);
        EXPECT_EQ(list->columns(), w / 110);
        EXPECT_EQ(place("Image4").top(), h - 81);
        EXPECT_EQ(place("Image1").top(), h - 55);
        EXPECT_EQ(place("Image3").top(), h - 55);
        EXPECT_EQ(place("Image2").top(), h - 30);
        EXPECT_EQ(place("Image6").top(), h - 54);
        EXPECT_EQ(place("Label1").top(), h - 80);
        EXPECT_LE(place("List1").bottom(), h - 81);
        EXPECT_LT(place("chkAuto").bottom(), place("List1").top());
        EXPECT_LE(place("Image2").bottom(), h);
        EXPECT_LE(place("Label1").right(), w);
    }
}

TEST_F(PercussionWindow, TheListHasAsManyColumnsAsItsWidthTells) {
    open();
    for (const int width : {260, 340, 560, 800}) {
        form->resize(width, 350);
        QApplication::processEvents();
        const int columns = width / 110;
        const int across = list->visualItemRect(list->item(45)).left();
        const int first = list->visualItemRect(list->item(0)).left();
        const int each = list->gridSize().width();
        EXPECT_EQ(each, list->viewport()->width() / columns) << width;
        EXPECT_EQ((across - first) % each, 0);
    }
}

TEST_F(PercussionWindow, ShowsWhereTheKeyboardIsBeforeADrumIsChosen) {
    open();
    form->activateWindow();
    const auto firstRow = [&] {
        return list->viewport()->grab(list->visualItemRect(list->item(0))).toImage();
    };
    list->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    ASSERT_EQ(list->currentRow(), 0);
    EXPECT_EQ(list->chosenRow(), -1);
    const QImage focused = firstRow();
    control("chkAuto").setFocus(Qt::TabFocusReason);
    EXPECT_NE(firstRow(), focused);
}

TEST_F(PercussionWindow, ArrowKeysInTheListWriteTheDrumTheyComeTo) {
    open();
    clickDrum(4);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(cell(0, 0), "40");
    EXPECT_EQ(list->chosenRow(), 5);
}

} // namespace
} // namespace tabrova::testing
