// Strumming, the chord into the document, and the window by keyboard alone; the creator of types.
#include "tests/tools/chord_manager/chord_window.h"
#include "tools/chord_manager/frmChordTypeCreator.h"

#include <QMouseEvent>
#include <QPushButton>

namespace tabrova::testing {
namespace {

class ChordAddition : public ChordWindow {
  protected:
    void openWith(const QString& key) {
        open();
        click("lstKeys", key);
        click("lstTypes", "Maj");
        choose("lstView", 1);
        QApplication::processEvents();
        sent();
        log.clear();
    }
    std::string column(int number) {
        std::string all;
        for (int row = 0; row < 6; ++row)
            all += bench.document.note(number, row).empty() ? "-" : bench.document.note(number, row);
        return all;
    }
    void strum(QEvent::Type type, int y, Qt::MouseButtons held = {}) {
        QWidget& strip = control("Image3");
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, QPointF(20, y), strip.mapToGlobal(QPointF(20, y)), button, held, {});
        QApplication::sendEvent(&strip, &event);
    }
    QString highlighted() {
        QString all;
        for (int string = 0; string < 6; ++string)
            all += shown(QString("shpStrum(%1)").arg(string)) ? '|' : '.';
        return all;
    }
};

TEST_F(ChordAddition, TheStripIsSixtyPixelsHighAndLightsTheStringUnderThePointer) {
    openWith("C");
    EXPECT_EQ(control("Image3").height(), 60);
    const std::map<int, QString> rows = {{0, "......"},  {1, "|....."},  {10, "|....."}, {11, "......"},
                                         {12, ".|...."}, {21, "......"}, {22, "..|..."}, {31, "......"},
                                         {32, "...|.."}, {41, "......"}, {42, "....|."}, {51, "......"},
                                         {52, ".....|"}, {59, ".....|"}, {60, "......"}, {-5, "......"}};
    for (const auto& [y, lines] : rows) {
        strum(QEvent::MouseMove, y);
        EXPECT_EQ(highlighted(), lines) << y;
    }
    EXPECT_TRUE(sent().empty());
    strum(QEvent::MouseMove, 5);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&control("Image3"), &leave);
    EXPECT_EQ(highlighted(), "......");
}

TEST_F(ChordAddition, AStrokeOverTheStripSoundsItsStrings) {
    openWith("C");
    strum(QEvent::MouseButtonPress, 5, Qt::LeftButton);
    EXPECT_TRUE(sent().empty());
    for (int y = 0; y <= 59; ++y)
        strum(QEvent::MouseMove, y, Qt::LeftButton);
    EXPECT_EQ(sent(), (Log{"On 64", "On 60", "On 55", "On 52", "On 48", "On 40"}));
    EXPECT_TRUE(enabled("tmrChordStopper"));
    strum(QEvent::MouseButtonRelease, 59);
    EXPECT_EQ(sent(), Log{"On 40"});
}

TEST_F(ChordAddition, TheSignsAddRemoveAndMove) {
    openWith("C");
    click("Image10");
    EXPECT_EQ(column(0), "010230");
    click("Image9");
    EXPECT_EQ(bench.document.CurrentColumn, 1);
    click("Image10");
    EXPECT_EQ(column(1), "010230");
    click("Image8");
    EXPECT_EQ(bench.document.CurrentString, 1);
    click("Image5");
    EXPECT_EQ(bench.document.CurrentString, 0);
    click("Image7");
    EXPECT_EQ(bench.document.CurrentColumn, 0);
    click("Image6");
    EXPECT_EQ(column(0), "------");
    EXPECT_EQ(column(1), "010230");
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(ChordAddition, AUsersChordLeavesItsSilentStringsEmpty) {
    file("chords/D", "xx0232\r\n");
    openWith("C");
    control<QTabWidget>("SSTab1").setCurrentIndex(1);
    QApplication::processEvents();
    click("lst_Chords", "D");
    click("Image10");
    EXPECT_EQ(column(0), "2320--");
}

TEST_F(ChordAddition, OnAPercussionTrackItOnlyTellsSo) {
    openWith("C");
    bench.document.GuitarTrackFlags[0] = False16;
    click("Image10");
    click("Image6");
    EXPECT_EQ(column(0), "------");
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 2);
    for (const auto& each : asked) {
        EXPECT_EQ(each.box.title, "Tabrova for Windows");
        EXPECT_EQ(each.box.text, "Chords cannot be written into a percussion track.");
        EXPECT_EQ(each.box.icon, BoxIcon::Information);
    }
}

TEST_F(ChordAddition, WhileTheDocumentPlaysTheSignsRest) {
    openWith("C");
    commands.playback.play(PlayFrom::Start);
    EXPECT_TRUE(bench.player.playing);
    EXPECT_FALSE(control("Image10").isEnabled());
    QTest::keyClick(form.get(), Qt::Key_Insert);
    EXPECT_EQ(column(0), "------");
    commands.playback.mnuPlaybackStop();
    EXPECT_TRUE(control("Image10").isEnabled());
}

TEST_F(ChordAddition, IsWholeByKeyboard) {
    open();
    QTest::keyClick(form.get(), Qt::Key_Down); // nothing: the focus is on the keys
    QTest::keyClick(&control("lstKeys"), Qt::Key_C);
    EXPECT_EQ(title(), "C + (Open)");
    QTest::keyClick(&control("lstTypes"), Qt::Key_End);
    EXPECT_EQ(title(), "C sus4 (Open)");
    sent();
    QTest::keyClick(&control("lstTypes"), Qt::Key_F7);
    EXPECT_EQ(sent().size(), 6u);
    QTest::keyClick(&control("lstTypes"), Qt::Key_Insert);
    EXPECT_EQ(column(0), "110331");
    QTest::keyClick(&control("lstTypes"), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(bench.document.CurrentColumn, 1);
    QTest::keyClick(&control("lstTypes"), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(bench.document.CurrentString, 1);
    QTest::keyClick(&control("lstTypes"), Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(&control("lstTypes"), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(bench.document.CurrentColumn, 0);
    EXPECT_EQ(bench.document.CurrentString, 0);
    bool closed = false;
    form->closed = [&closed] { closed = true; };
    QTest::keyClick(&control("lstTypes"), Qt::Key_Escape);
    EXPECT_TRUE(closed);
}

TEST_F(ChordAddition, ItsSignsHaveTheirHints) {
    open();
    EXPECT_EQ(control("Image10").toolTip(), "Add Chord to Document (Insert)");
    EXPECT_EQ(control("Image6").toolTip(), "Delete Chord from Document");
    EXPECT_EQ(control("Image5").toolTip(), "Move Up");
    EXPECT_EQ(control("Image7").toolTip(), "Move Left");
    EXPECT_EQ(control("Image8").toolTip(), "Move Down");
    EXPECT_EQ(control("Image9").toolTip(), "Move Right");
    EXPECT_EQ(control("cmdPlay").toolTip(), "Play Chord (F7)");
}

// The creator of types

class ChordTypeCreator : public ChordWindow {
  protected:
    void openCreator() {
        open();
        creator = std::make_unique<frmChordTypeCreator>(context, nullptr);
        creator->Form_Load();
        creator->Form_Opened({form.get(), 0});
        creator->show();
        creator->closed = [this] { ++closings; };
    }
    template <class Control>
    Control& part(const QString& name) {
        return *creator->findChild<Control*>(name);
    }

    std::unique_ptr<frmChordTypeCreator> creator;
    int closings = 0;
};

TEST_F(ChordTypeCreator, SavesThePatternOfItsBoxes) {
    openCreator();
    EXPECT_EQ(creator->windowTitle(), "New Chord Type");
    EXPECT_TRUE(creator->isModal());
    EXPECT_EQ(part<QLineEdit>("txtName").text(), "New Type");
    for (const int interval : {0, 5, 21})
        part<QCheckBox>(QString("cCheck(%1)").arg(interval)).click();
    QTest::mouseClick(&part<QPushButton>("Command1"), Qt::LeftButton);
    EXPECT_EQ(bytesOf("chordtypes/New Type"), "1000010000000000000001\r\n");
    EXPECT_TRUE(rows("lstTypes").contains("New Type"));
    EXPECT_EQ(closings, 1);
}

TEST_F(ChordTypeCreator, AGreyedBoxAddsNothing) {
    openCreator();
    part<QCheckBox>("cCheck(0)").setCheckState(Qt::PartiallyChecked);
    part<QCheckBox>("cCheck(1)").setChecked(true);
    QTest::mouseClick(&part<QPushButton>("Command1"), Qt::LeftButton);
    EXPECT_EQ(bytesOf("chordtypes/New Type"), "1" + std::string(20, '0') + "\r\n");
}

TEST_F(ChordTypeCreator, OverwritesAndTellsWhatCannotBeSaved) {
    openCreator();
    part<QLineEdit>("txtName").setText("m7");
    QTest::mouseClick(&part<QPushButton>("Command1"), Qt::LeftButton);
    EXPECT_EQ(bytesOf("chordtypes/m7"), std::string(22, '0') + "\r\n");
    EXPECT_TRUE(boxes.take().isEmpty());
    for (const QString& name : {QString(""), QString(".."), QString("C/G"), QString(300, 'n')}) {
        openCreator();
        part<QLineEdit>("txtName").setText(name);
        QTest::mouseClick(&part<QPushButton>("Command1"), Qt::LeftButton);
        const auto asked = boxes.take();
        ASSERT_EQ(asked.size(), 1);
        EXPECT_EQ(asked.first().box.icon, BoxIcon::Exclamation);
    }
    EXPECT_EQ(rows("lstTypes").size(), 33);
}

TEST_F(ChordTypeCreator, CancelSavesNothing) {
    openCreator();
    QTest::mouseClick(&part<QPushButton>("Command2"), Qt::LeftButton);
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(rows("lstTypes").size(), 33);
}

TEST_F(ChordTypeCreator, OutlivesItsOpener) {
    openCreator();
    form.reset();
    QTest::mouseClick(&part<QPushButton>("Command1"), Qt::LeftButton);
    EXPECT_EQ(closings, 1);
    EXPECT_FALSE(std::filesystem::exists(folder() / "chordtypes/New Type"));
}

TEST_F(ChordTypeCreator, ItsCaptionsAreItsOwn) {
    openCreator();
    EXPECT_EQ(part<QCheckBox>("cCheck(6)").text(), "Augmented 4th / Diminished 5th");
    EXPECT_EQ(part<QCheckBox>("cCheck(8)").text(), "Augmented 5th / Minor 6th");
    EXPECT_EQ(part<QCheckBox>("cCheck(9)").text(), "Major 6th / Diminshed 7th");
    EXPECT_EQ(control<QCheckBox>("cCheck(6)").text(), "Aug 4th / Dim 5th");
    EXPECT_EQ(control<QCheckBox>("cCheck(8)").text(), "Aug 5th / Minor 6th");
    EXPECT_EQ(control<QCheckBox>("cCheck(9)").text(), "Major 6th / Dim 7th");
    const char* same[] = {"Root",
                          "Minor 2nd",
                          "Major 2nd",
                          "Minor 3rd",
                          "Major 3rd",
                          "Perfect 4th",
                          "",
                          "Perfect 5th",
                          "",
                          "",
                          "Minor 7th",
                          "Major 7th",
                          "1st",
                          "Minor 9th",
                          "Major 9th",
                          "Augmented 9th",
                          "Minor 11th",
                          "Major 11th",
                          "Augmented 11th",
                          "Perfect 5th",
                          "Minor 13th",
                          "Major 13th"};
    for (int interval = 0; interval < 22; ++interval) {
        const QString name = QString("cCheck(%1)").arg(interval);
        if (*same[interval] == '\0') continue;
        EXPECT_EQ(part<QCheckBox>(name).text(), same[interval]);
        EXPECT_EQ(control<QCheckBox>(name).text(), same[interval]);
    }
}

} // namespace
} // namespace tabrova::testing
