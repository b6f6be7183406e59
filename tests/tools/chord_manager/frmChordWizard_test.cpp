// The chord manager's window: how it opens and closes, what the calculator's controls do, and what they send.
#include "tests/tools/chord_manager/chord_window.h"

#include <QScrollBar>
#include <QSlider>
#include <QTabWidget>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class ChordCalculatorWindow : public ChordWindow {};

const Log CMajorSounds = {"On 40", "On 48", "On 52", "On 55", "On 60", "On 64"};

TEST_F(ChordCalculatorWindow, OpensWithItsInstrumentItsFoldersAndNoChord) {
    open();
    EXPECT_EQ(sent(), (Log{"190 0 128", "206 24 0"}));
    EXPECT_TRUE(fs::is_directory(folder() / "chords"));
    EXPECT_TRUE(fs::is_directory(folder() / "chordtypes"));
    EXPECT_EQ(form->windowTitle(), "Tabrova - Chord Manager");
    EXPECT_EQ(title(), "<no chord>");
    EXPECT_EQ(frets(), "------");
    EXPECT_EQ(rows("lstTypes").size(), 33);
    EXPECT_EQ(rows("lstKeys"),
              QStringList({"A", "A#", "B", "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#"}));
    EXPECT_TRUE(rows("lst_Chords").isEmpty());
    for (const char* name : {"shpLowe(0)", "shpE(6)", "mnA", "mnGs", "picAdder"})
        EXPECT_FALSE(shown(name)) << name;
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(ChordCalculatorWindow, WritesAllBuiltInTypesAgainAndKeepsTheUsersOwn) {
    file("chordtypes/Maj", "000");
    file("chordtypes/Mine", "1010000000000000000000\r\n");
    open();
    EXPECT_EQ(bytesOf("chordtypes/Maj"), "1000100100000000000000\r\n");
    EXPECT_EQ(bytesOf("chordtypes/m maj7"), "1001000100010000000000\r\n");
    EXPECT_EQ(bytesOf("chordtypes/Mine"), "1010000000000000000000\r\n");
    EXPECT_EQ(rows("lstTypes").size(), 34);
}

TEST_F(ChordCalculatorWindow, ABuiltInTypeThatIsDeletedIsBackAtTheNextOpening) {
    open();
    click("lstTypes", "Maj");
    boxes.queueAnswer(BoxAnswer::Yes);
    click("Command3");
    EXPECT_FALSE(rows("lstTypes").contains("Maj"));
    EXPECT_FALSE(fs::exists(folder() / "chordtypes/Maj"));
    close();
    open();
    EXPECT_TRUE(rows("lstTypes").contains("Maj"));
}

TEST_F(ChordCalculatorWindow, TheTypeThatCannotBeWrittenIsTold) {
    fs::create_directories(folder() / "chordtypes" / "Maj");
    open();
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.text,
              "This chord type cannot be saved, as its name contains invalid characters.");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(rows("lstTypes").size(), 32);
}

TEST_F(ChordCalculatorWindow, AFileInThePlaceOfTheFoldersLeavesTheListsEmptyAndTheWindowAlive) {
    file("chordtypes", "x");
    file("chords", "x");
    open();
    EXPECT_EQ(boxes.take().size(), 33);
    EXPECT_TRUE(rows("lstTypes").isEmpty());
    click("lstKeys", "C");
    EXPECT_EQ(title(), "C  (Open)");
    EXPECT_EQ(frets(), "030010");
}

TEST_F(ChordCalculatorWindow, AKeyAndATypeGiveTheChord) {
    open();
    click("lstKeys", "C");
    click("lstTypes", "Maj");
    EXPECT_EQ(title(), "C Maj (Open)");
    EXPECT_EQ(frets(), "032010");
    for (const char* name :
         {"shpLowe(0)", "shpA(3)", "shpD(2)", "shpG(0)", "shpB(1)", "shpE(0)", "mnC", "mnE", "mnG"})
        EXPECT_TRUE(shown(name)) << name;
    for (const char* name : {"shpLowe(3)", "shpA(0)", "mnCs", "mnA"})
        EXPECT_FALSE(shown(name)) << name;
    EXPECT_EQ(control("shpA(3)").palette().color(QPalette::Window), QColor(255, 0, 0));
    EXPECT_EQ(control("shpD(2)").palette().color(QPalette::Window), QColor(0x54, 0x9B, 0xF1));
    EXPECT_TRUE(control<QCheckBox>("chkKey(3)").isChecked());
    EXPECT_EQ(control("chkKey(3)").palette().color(QPalette::WindowText), QColor(255, 0, 0));
    EXPECT_EQ(control("chkKey(7)").palette().color(QPalette::WindowText), QColor(0, 0, 0));
    EXPECT_TRUE(control<QCheckBox>("cCheck(0)").isChecked());
    EXPECT_TRUE(control<QCheckBox>("cCheck(7)").isChecked());
    EXPECT_FALSE(control<QCheckBox>("cCheck(8)").isChecked());
}

TEST_F(ChordCalculatorWindow, TheStyleComputesTheChordAgain) {
    open();
    click("lstKeys", "C");
    click("lstTypes", "maj7");
    sent();
    choose("Combo1", 1);
    EXPECT_EQ(title(), "C maj7 (Barre)");
    EXPECT_EQ(sent(), (Log{"AllOff", "Off14"}));
    choose("Combo1", 2);
    EXPECT_EQ(title(), "C maj7 (All Notes)");
}

// The chord is computed for the missing key in the middle of computing it: all of its sounds come twice.
TEST_F(ChordCalculatorWindow, ATypeWithoutAKeyIsThatOfA) {
    open();
    check("chkPlayNow");
    sent();
    click("lstTypes", "m");
    EXPECT_EQ(title(), "A m (Open)");
    EXPECT_EQ(control<QListWidget>("lstKeys").currentRow(), 0);
    Log once = {"Off14", "On 40", "On 45", "On 52", "On 57", "On 60", "On 64"};
    Log expected = {"AllOff", "AllOff"};
    for (int time = 0; time < 2; ++time)
        expected.insert(expected.end(), once.begin(), once.end());
    EXPECT_EQ(sent(), expected);
}

TEST_F(ChordCalculatorWindow, AKeyWithoutATypeTakesTheFirstOne) {
    open();
    sent();
    click("lstKeys", "D");
    EXPECT_EQ(title(), "D + (Open)");
    EXPECT_EQ(control<QListWidget>("lstTypes").currentRow(), 0);
    EXPECT_EQ(sent(), (Log{"AllOff", "Off14"}));
}

TEST_F(ChordCalculatorWindow, AStyleWithoutKeyAndTypeTakesTheFirstOfBoth) {
    open();
    sent();
    choose("Combo1", 1);
    EXPECT_EQ(title(), "A + (Barre)");
    EXPECT_EQ(sent(), (Log{"AllOff", "AllOff", "Off14", "Off14"}));
}

TEST_F(ChordCalculatorWindow, PlaysTheChordAsSoonAsItIsLoadedIfItIsTo) {
    open();
    click("lstKeys", "C");
    click("lstTypes", "Maj");
    check("chkPlayNow");
    sent();
    click("lstTypes", "Maj");
    Log expected = {"AllOff", "Off14"};
    expected.insert(expected.end(), CMajorSounds.begin(), CMajorSounds.end());
    EXPECT_EQ(sent(), expected);
    EXPECT_TRUE(enabled("tmrChordStopper"));
}

TEST_F(ChordCalculatorWindow, PlaysNoteByNoteIfItIsTo) {
    open();
    check("chkPlayNow");
    check("chkNotebyNote");
    click("lstKeys", "C");
    EXPECT_TRUE(enabled("tmrChordPlayer"));
    EXPECT_FALSE(enabled("tmrChordStopper"));
}

TEST_F(ChordCalculatorWindow, TypeFilesAreReadAsFarAsTheyGo) {
    file("chordtypes/Bad", "1x2,1111111");
    file("chordtypes/Long", std::string(3000, '1'));
    file("chordtypes/Binary", std::string("\0\xFF\x80", 3));
    open();
    click("lstKeys", "C");
    click("lstTypes", "Bad");
    EXPECT_TRUE(control<QCheckBox>("cCheck(0)").isChecked());
    EXPECT_EQ(control<QCheckBox>("cCheck(2)").checkState(), Qt::PartiallyChecked);
    EXPECT_FALSE(control<QCheckBox>("cCheck(3)").isChecked());
    click("lstTypes", "Long");
    EXPECT_TRUE(control<QCheckBox>("chkKey(11)").isChecked());
    click("lstTypes", "Binary");
    EXPECT_EQ(frets(), "030010");
    fs::remove(folder() / "chordtypes/Long");
    click("lstTypes", "Binary");
    EXPECT_EQ(frets(), "030010");
}

TEST_F(ChordCalculatorWindow, ABoxTakesNoValueAboveTwoAndStaysAsItWas) {
    file("chordtypes/Odd", "3333333333333333333333");
    open();
    click("lstTypes", "Maj");
    click("lstTypes", "Odd");
    EXPECT_TRUE(control<QCheckBox>("cCheck(4)").isChecked());
    EXPECT_FALSE(control<QCheckBox>("cCheck(5)").isChecked());
    EXPECT_FALSE(control<QCheckBox>("chkKey(4)").isChecked());
}

TEST_F(ChordCalculatorWindow, ATypeIsDeletedAfterAQuestion) {
    open();
    click("Command3");
    EXPECT_TRUE(boxes.take().isEmpty()); // nothing is chosen
    click("lstTypes", "m7");
    boxes.queueAnswer(BoxAnswer::No);
    click("Command3");
    EXPECT_TRUE(rows("lstTypes").contains("m7"));
    boxes.queueAnswer(BoxAnswer::Yes);
    click("Command3");
    EXPECT_FALSE(rows("lstTypes").contains("m7"));
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 2);
    EXPECT_EQ(asked.last().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.last().box.text, "Do you want to delete the chord type 'm7' ?");
    EXPECT_EQ(asked.last().box.icon, BoxIcon::Question);
    EXPECT_EQ(asked.last().box.buttons, (QList{BoxAnswer::Yes, BoxAnswer::No}));
}

TEST_F(ChordCalculatorWindow, TheSliderSetsTheSpeed) {
    open();
    auto& slider = control<QSlider>("nbnSlider");
    EXPECT_EQ(slider.minimum(), 50);
    EXPECT_EQ(slider.maximum(), 700);
    EXPECT_EQ(slider.value(), 630);
    EXPECT_EQ(slider.tickInterval(), 20);
    EXPECT_EQ(timers.timers()["tmrChordPlayer"]->timerInterval(), 120);
    slider.setValue(700);
    EXPECT_EQ(timers.timers()["tmrChordPlayer"]->timerInterval(), 50);
    slider.setValue(50);
    EXPECT_EQ(timers.timers()["tmrChordPlayer"]->timerInterval(), 700);
}

TEST_F(ChordCalculatorWindow, ItsListsHoldTheStylesAndTheViews) {
    open();
    const auto items = [this](const char* box) {
        QStringList texts;
        for (int row = 0; row < control<QComboBox>(box).count(); ++row)
            texts.append(control<QComboBox>(box).itemText(row));
        return texts;
    };
    EXPECT_EQ(items("Combo1"),
              QStringList({"Favor Open String Chords", "Favor Barre Chords", "Show All Notes"}));
    EXPECT_EQ(items("lstView"), QStringList({"Notation & Tab", "Addition Mode"}));
    EXPECT_EQ(control<QComboBox>("Combo1").currentIndex(), 0);
    EXPECT_EQ(control<QComboBox>("lstView").currentIndex(), 0);
    choose("lstView", 1);
    EXPECT_TRUE(shown("picAdder"));
    choose("lstView", 0);
    EXPECT_FALSE(shown("picAdder"));
}

// In twips 400 less 400 a step, of which 15 are a pixel.
TEST_F(ChordCalculatorWindow, TheConstructionSlidesByItsBar) {
    open();
    auto& bar = control<QScrollBar>("VScroll1");
    EXPECT_EQ(bar.minimum(), 0);
    EXPECT_GE(bar.maximum(), 3);
    const int tops[] = {27, 0, -27, -53};
    for (int value = 0; value < 4; ++value) {
        bar.setValue(value);
        EXPECT_EQ(control("Picture3").y(), tops[value]) << value;
    }
    bar.setValue(bar.maximum());
    const QWidget& last = control("cCheck(21)");
    EXPECT_LE(last.mapTo(last.window(), last.rect().bottomLeft()).y(),
              control("Picture2").mapTo(form.get(), control("Picture2").rect().bottomLeft()).y());
}

TEST_F(ChordCalculatorWindow, ClosingSilencesAndForgets) {
    open();
    check("chkPlayNow");
    check("chkNotebyNote");
    click("lstKeys", "C");
    sent();
    form->Form_Unload();
    EXPECT_EQ(sent(), Log{"AllOff"});
    EXPECT_FALSE(enabled("tmrChordPlayer"));
    EXPECT_FALSE(enabled("tmrChordStopper"));
    form.reset();
    open();
    EXPECT_FALSE(control<QCheckBox>("chkPlayNow").isChecked());
    EXPECT_TRUE(control<QListWidget>("lstKeys").selectedItems().isEmpty());
    EXPECT_EQ(title(), "<no chord>");
}

TEST_F(ChordCalculatorWindow, OpensTheCreatorOfTypesAboveItAndTakesItAlong) {
    open();
    click("Command1");
    EXPECT_EQ(log.back(), "open frmChordTypeCreator");
    form->Form_Unload();
    EXPECT_EQ(log.back(), "unload frmChordTypeCreator");
}

} // namespace
} // namespace tabrova::testing
