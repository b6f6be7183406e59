// The main window's commands, each by its menu item, its key, its button or its panel.
#include "shell/key_mapping.h"
#include "tests/shell/main_window.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

namespace tabrova {
namespace {

class Commands : public testing::MainWindowTest {
  protected:
    Commands() { load(); }
    Document& document() { return window->document(); }
    QWidget& at(const char* name) { return *window->findChild<QWidget*>(name); }
    void press(const char* word) {
        QTest::mouseClick(&at((std::string("Toolbar1(") + word + ")").c_str()), Qt::LeftButton);
    }
    void grow(int staves) {
        while (document().StaffCount < staves)
            window->editor().AppendStaff();
    }
    void fillStaff() {
        for (int column = 0; column < 32; ++column)
            for (int row = 0; row < document().RowCapacity; ++row) {
                document().setNote(column, row, "5");
                document().setTechnique(column, row, "v");
                document().setBarMark(column, ".");
            }
    }
    void addGuitarTrack() {
        boxes.queueAnswer(BoxAnswer::No);
        trigger("mnuAddTrack");
    }
};

TEST_F(Commands, PageKeysScrollByThePage) {
    grow(12);
    const int visible = document().VisibleStaves;
    ASSERT_EQ(visible, 4);
    QTest::keyClick(&at("picDocument"), Qt::Key_PageDown);
    EXPECT_EQ(document().TopStaff, 4);
    QTest::keyClick(&at("picDocument"), Qt::Key_PageDown);
    EXPECT_EQ(document().TopStaff, 8);
    QTest::keyClick(&at("picDocument"), Qt::Key_PageUp);
    EXPECT_EQ(document().TopStaff, 4);
    EXPECT_EQ(window->findChild<QScrollBar*>("VScroll1")->value(), 5);
    EXPECT_EQ(window->findChild<QScrollBar*>("VScroll1")->pageStep(), 4);
    window->findChild<QScrollBar*>("VScroll1")->setValue(2);
    EXPECT_EQ(document().TopStaff, 1);
}

TEST_F(Commands, FineWheelsAddUp) {
    grow(12);
    QWidget& page = at("picDocument");
    const auto turn = [&page](int angle) {
        QWheelEvent event({50, 50}, page.mapToGlobal(QPointF(50, 50)), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&page, &event);
    };
    for (const auto& [angle, top] :
         {std::pair{-60, 0}, {-59, 0}, {-1, 1}, {-360, 4}, {119, 4}, {1, 3}, {120, 2}}) {
        turn(angle);
        EXPECT_EQ(document().TopStaff, top) << angle;
    }
}

TEST_F(Commands, AModifierAloneIsNoKeyOfThePage) {
    QWidget& page = at("picDocument");
    window->setWindowTitle("stale");
    for (const int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta,
                          Qt::Key_CapsLock, Qt::Key_NumLock}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        EXPECT_TRUE(isModifierAlone(event)) << key;
        QApplication::sendEvent(&page, &event);
        EXPECT_EQ(window->windowTitle(), "stale") << key;
    }
    QTest::keyClick(&page, Qt::Key_F2);
    EXPECT_NE(window->windowTitle(), "stale");
}

TEST_F(Commands, TheButtonsOfTheMouse) {
    EXPECT_EQ(mouseButtonOf(Qt::LeftButton), MouseButton::Left);
    EXPECT_EQ(mouseButtonOf(Qt::RightButton), MouseButton::Right);
    for (const int other : {int(Qt::MiddleButton), int(Qt::BackButton), 0})
        EXPECT_EQ(mouseButtonOf(other), MouseButton::Middle);
}

TEST_F(Commands, TheStaffMenuClearsWhatItsItemsSay) {
    addGuitarTrack();
    struct Row {
        const char* item;
        bool all, notes, techniques, marks;
    };
    for (const Row& row : {Row{"ClearStaffallall", true, true, true, true},
                           {"clearstaffallnorepeats", true, true, true, false},
                           {"clearstaffallnotes", true, true, false, false},
                           {"clearstaffalltech", true, false, true, false},
                           {"clearstaffcurrentall", false, true, true, true},
                           {"clearstaffcurrentnorepeats", false, true, true, false},
                           {"clearstaffcurrentnotes", false, true, false, false},
                           {"clearstaffcurrenttech", false, false, true, false}}) {
        fillStaff();
        trigger(row.item);
        for (int line = 0; line < 12; ++line) {
            const bool here = row.all || line >= 6; // the second track is the current one
            EXPECT_EQ(document().note(3, line), here && row.notes ? "" : "5") << row.item;
            EXPECT_EQ(document().technique(3, line), here && row.techniques ? "" : "v") << row.item;
        }
        EXPECT_EQ(document().barMark(3), row.marks ? "" : ".") << row.item;
    }
}

TEST_F(Commands, TheStaffMenuAddsAndDeletesStaves) {
    document().setNote(0, 0, "1");
    trigger("mnuEditNewBarBeforeCurrent");
    EXPECT_EQ(document().note(32, 0), "1");
    trigger("mnuEditNewBarAfterCurrentBar");
    EXPECT_EQ(document().note(64, 0), "1");
    trigger("mnuEditnewBarAtEndofDocument");
    EXPECT_EQ(document().StaffCount, 4);
    trigger("mnuDeleteBar");
    EXPECT_EQ(document().note(32, 0), "1");
    EXPECT_EQ(document().StaffCount, 3);
}

TEST_F(Commands, TheNoteMenuSendsItsKeys) {
    document().setNote(0, 0, "5");
    document().setTechnique(0, 0, "v");
    trigger("mnuNoteDeleteNote");
    EXPECT_EQ(document().note(0, 0), "");
    EXPECT_EQ(document().technique(0, 0), "v");
    trigger("mnuNoteDeleteTechnique");
    EXPECT_EQ(document().technique(0, 0), "");
    trigger("mnuInsertSeparator");
    EXPECT_EQ(document().barMark(0), ".");
    trigger("mnuInsertOpenRepeat");
    EXPECT_EQ(document().barMark(0), "r");
    trigger("mnuNoteRemoveBar");
    EXPECT_EQ(document().barMark(0), "");
    trigger("mnuInsertClosedRepeat");
    EXPECT_TRUE(at("picRepeat").isVisible());
    EXPECT_FALSE(at("picDocument").isEnabled());
    QTest::keyClick(&at("RepeatScroller"), Qt::Key_Right);
    QTest::keyClick(&at("RepeatScroller"), Qt::Key_Return);
    EXPECT_FALSE(at("picRepeat").isVisible());
    EXPECT_TRUE(at("picDocument").isEnabled());
    EXPECT_EQ(document().barMark(0), "r2");
}

TEST_F(Commands, TheNoteMenuMovesColumns) {
    addGuitarTrack();
    document().setNote(0, 0, "1");
    document().setNote(0, 6, "2");
    trigger("mnuEditInsertNoteOnAllTracks");
    EXPECT_EQ(document().note(1, 0), "1");
    EXPECT_EQ(document().note(1, 6), "2");
    trigger("mnuEditInsertNoteOnCurrentTrack");
    EXPECT_EQ(document().note(1, 0), "1");
    EXPECT_EQ(document().note(2, 6), "2");
    trigger("mnuEditRemoveNoteonCurrentTrack");
    EXPECT_EQ(document().note(1, 0), "1");
    EXPECT_EQ(document().note(1, 6), "2");
    trigger("mnuEditRemoveNoteonAllTracks");
    EXPECT_EQ(document().note(0, 0), "1");
    EXPECT_EQ(document().note(0, 6), "2");
}

TEST_F(Commands, TheEditMenuCopiesAsManyColumnsAsItsItemSays) {
    for (int index = 0; index < 8; ++index) {
        trigger(("mnuCopyNextBeat(" + std::to_string(index) + ")").c_str());
        EXPECT_EQ(document().ClipboardLength, index + 1);
    }
    trigger("mnuCopyStaff");
    EXPECT_EQ(document().ClipboardLength, 32);
}

TEST_F(Commands, TheEditMenuPastesOnAllTracksOrOnOne) {
    addGuitarTrack();
    document().setNote(0, 0, "1");
    document().setNote(0, 6, "2");
    trigger("mnuCopyNextBeat(0)");
    trigger("mnuEditPaste(1)");
    EXPECT_EQ(document().note(1, 0), "");
    EXPECT_EQ(document().note(1, 6), "2");
    trigger("mnuEditPaste(0)");
    EXPECT_EQ(document().note(1, 0), "1");
    EXPECT_EQ(document().note(2, 6), "2");
}

TEST_F(Commands, TheBendPanelStoresItsChoiceAndGivesThePageBack) {
    press("bend");
    EXPECT_TRUE(at("picBend").isVisible());
    EXPECT_FALSE(at("picDocument").isEnabled());
    EXPECT_EQ(at("picBend").pos(), QPoint(22 + 13 + 2, 204 + 25 + 10 + 2));
    QTest::keyClick(&at("picBend"), Qt::Key_Right);
    QTest::keyClick(&at("picBend"), Qt::Key_Return);
    EXPECT_FALSE(at("picBend").isVisible());
    EXPECT_TRUE(at("picDocument").isEnabled());
    EXPECT_EQ(document().technique(0, 0), "p1.0");
    EXPECT_EQ(window->focusWidget(), &at("picDocument"));
}

TEST_F(Commands, OneOfTheTwoPanelsIsOpen) {
    press("bend");
    trigger("mnuInsertClosedRepeat");
    EXPECT_FALSE(at("picBend").isVisible());
    EXPECT_TRUE(at("picRepeat").isVisible());
    press("bend");
    EXPECT_TRUE(at("picBend").isVisible());
    EXPECT_FALSE(at("picRepeat").isVisible());
}

TEST_F(Commands, TheToolbarSetsLengths) {
    for (const auto& [word, columns] : {std::pair{"sixteenthnote", 1},
                                        {"eighthnote", 2},
                                        {"triplet", 3},
                                        {"quarternote", 4},
                                        {"halfnote", 8},
                                        {"wholenote", 16}}) {
        for (int column = 0; column < 32; ++column)
            document().setNote(column, 0, "");
        document().setNote(0, 0, "1");
        document().setNote(5, 0, "2");
        press(word);
        EXPECT_EQ(document().note(columns, 0), "2") << word;
    }
}

TEST_F(Commands, TheTrackThatIsChosenIsShownAndItsProgramSent) {
    addGuitarTrack();
    document().TrackInstruments = {"30", "31"};
    midi.take();
    trigger("mnuChoose");
    EXPECT_TRUE(at("picTrackChooser").isVisible());
    auto& names = static_cast<ListBox&>(at("TrackNames"));
    EXPECT_EQ(names.currentRow(), 1);
    QTest::mouseClick(names.viewport(), Qt::LeftButton, {}, names.visualItemRect(names.item(0)).center());
    EXPECT_EQ(document().CurrentTrack, 1);
    EXPECT_FALSE(at("picTrackChooser").isVisible());
    EXPECT_EQ(window->focusWidget(), &at("picDocument"));
    EXPECT_EQ(midi.take(), (std::vector<ShortMessage>{{0xB0, 0, 0x80}, {0xC0, 30, 0}}));
    EXPECT_EQ(window->findChild<QLabel*>("StatusBar1(1)")->text(), "Track Untitled Track");
}

TEST_F(Commands, ATrackIsRemovedAfterAYesWithItsName) {
    addGuitarTrack();
    document().TrackNames = {"one", "two"};
    boxes.take();
    boxes.queueAnswer(BoxAnswer::No);
    trigger("mnuKillTrack");
    EXPECT_EQ(document().TrackCount, 2);
    EXPECT_TRUE(boxes.take().first().box.text.endsWith(" 'two' ?"));
    boxes.queueAnswer(BoxAnswer::Yes);
    trigger("mnuKillTrack");
    EXPECT_EQ(document().TrackNames, std::vector<std::string>{"one"});
    EXPECT_EQ(document().CurrentTrack, 1);
    boxes.take();
    trigger("mnuKillTrack");
    EXPECT_EQ(document().TrackCount, 1);
    EXPECT_EQ(boxes.take().size(), 1);
}

TEST_F(Commands, TheAddressesAreThoseOfTheInstallation) {
    trigger("mnuTechSupport");
    trigger("mnuNewVersionCheck");
    EXPECT_EQ(addresses.take(),
              QStringList({"mailto:support@tabrova.invalid", "https://tabrova.invalid/update"}));
    settings->SaveSetting("Installation", "UpdatePage", "https://elsewhere.invalid");
    press("tr3");
    EXPECT_EQ(addresses.take(), QStringList{"https://elsewhere.invalid"});
}

} // namespace
} // namespace tabrova
