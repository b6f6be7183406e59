// The bank of the user's own chords: finding, loading, entering, saving and deleting.
#include "tests/tools/chord_manager/chord_window.h"

#include <sys/stat.h>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class ChordBank : public ChordWindow {
  protected:
    void save(const QString& name) {
        control<QLineEdit>("txt_NewChordName").setText(name);
        click("Command2");
    }
    QString entry(std::size_t string) { return control<QLineEdit>(ChordStringTable[string].entry).text(); }
    QString entries() {
        QString all;
        for (std::size_t string = 0; string < ChordStrings; ++string)
            all += entry(string).isEmpty() ? "-" : entry(string);
        return all;
    }
    void openOnBank() {
        open();
        control<QTabWidget>("SSTab1").setCurrentIndex(1);
        QApplication::processEvents();
        boxes.take();
    }
};

TEST_F(ChordBank, AChordIsSavedAsSixCharacters) {
    openOnBank();
    EXPECT_EQ(entries(), "000000");
    enter("x32010");
    save("F#m7 (barre)");
    EXPECT_EQ(bytesOf("chords/F#m7 (barre)"), "x32010\r\n");
    EXPECT_EQ(rows("lst_Chords"), QStringList("F#m7 (barre)"));
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.text, "The chord 'F#m7 (barre)' has been saved.");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Information);
    EXPECT_EQ(control<QLineEdit>("txt_NewChordName").text(), "(new chord)");
    EXPECT_EQ(entries(), "-32010");
}

TEST_F(ChordBank, BlankBoxesAreSilentStrings) {
    openOnBank();
    enter("      ");
    save("none");
    EXPECT_EQ(bytesOf("chords/none"), "xxxxxx\r\n");
    EXPECT_EQ(entries(), "------");
}

TEST_F(ChordBank, AChordOfTheSameNameIsReplacedWithoutAQuestion) {
    file("chords/C", "x32010\r\n");
    openOnBank();
    enter("332013");
    save("C");
    EXPECT_EQ(bytesOf("chords/C"), "332013\r\n");
    EXPECT_EQ(boxes.take().size(), 1);
}

TEST_F(ChordBank, ABadNameIsToldAndTheFilledBoxesStay) {
    openOnBank();
    for (const char* name : {"", ".", "..", "C/G", "../x", "/tmp/x", "C\\G"}) {
        enter("3 2010");
        save(name);
        const auto asked = boxes.take();
        ASSERT_EQ(asked.size(), 1) << name;
        EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
        EXPECT_EQ(asked.first().box.text,
                  "The chord cannot be saved. Please check its name and the numbers of its frets.");
        EXPECT_EQ(asked.first().box.icon, BoxIcon::Exclamation);
        EXPECT_EQ(entries(), "3x2010") << name;
    }
    EXPECT_TRUE(rows("lst_Chords").isEmpty());
    EXPECT_FALSE(fs::exists(folder() / "x"));
}

TEST_F(ChordBank, WhatCannotBeWrittenIsTold) {
    fs::create_directories(folder() / "chords" / "folder");
    ASSERT_EQ(mkfifo((folder() / "chords" / "pipe").c_str(), 0600), 0);
    openOnBank();
    save("folder");
    save("pipe");
    EXPECT_EQ(boxes.take().size(), 2);
    fs::remove_all(folder() / "chords");
    save("C");
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Exclamation);
}

TEST_F(ChordBank, TheNameTakesFifteenCharacters) {
    openOnBank();
    QTest::keyClicks(&control("txt_NewChordName"), "1234567890123456");
    EXPECT_EQ(control<QLineEdit>("txt_NewChordName").text().size(), 15);
    EXPECT_EQ(control<QLineEdit>("txt_NewChordName").maxLength(), 15);
    for (std::size_t string = 0; string < ChordStrings; ++string)
        EXPECT_EQ(control<QLineEdit>(ChordStringTable[string].entry).maxLength(), 1);
}

TEST_F(ChordBank, AChordIsLoadedWithItsTitleItsMarksAndItsSound) {
    file("chords/C open", "x32010\r\n");
    openOnBank();
    check("chkPlayNow");
    sent();
    click("lst_Chords", "C open");
    EXPECT_EQ(title(), "C open (User)");
    EXPECT_EQ(frets(), " 32010");
    EXPECT_TRUE(shown("shpA(3)"));
    EXPECT_FALSE(shown("shpLowe(0)"));
    EXPECT_EQ(sent(), (Log{"On 48", "On 52", "On 55", "On 60", "On 64"}));
    EXPECT_TRUE(enabled("tmrChordStopper"));
}

TEST_F(ChordBank, ChordFilesAreReadAsFarAsTheyGo) {
    file("chords/comma", "32,010\r\n");
    file("chords/letters", "3a2-1X");
    file("chords/long", "3210123456789");
    file("chords/high", "789999");
    file("chords/none", "");
    file("chords/binary", std::string("\0\x93\xFF\r\n", 5));
    openOnBank();
    const std::map<QString, QString> expected = {{"comma", "32----"},
                                                 {"letters", "3a2-1X"},
                                                 {"long", "321012"},
                                                 {"high", "789999"},
                                                 {"none", "------"}};
    for (const auto& [name, texts] : expected) {
        click("lst_Chords", name);
        EXPECT_EQ(frets(), texts) << name.toStdString();
        EXPECT_EQ(title(), name + " (User)");
    }
    click("lst_Chords", "binary");
    EXPECT_EQ(text("tbA"), QString(QChar(0x201C)));
    EXPECT_EQ(text("tbD"), QString(QChar(0xFF)));
    sent();
    click("cmdPlay");
    EXPECT_TRUE(sent().empty());
}

TEST_F(ChordBank, AChordWhoseFileIsGoneIsSilent) {
    file("chords/C", "x32010\r\n");
    openOnBank();
    fs::rename(folder() / "chords", folder() / "elsewhere");
    click("lst_Chords", "C");
    EXPECT_EQ(frets(), "------");
    EXPECT_EQ(title(), "C (User)");
}

TEST_F(ChordBank, FindsByTheBeginningOfTheName) {
    for (const char* name : {"C", "C minor", "c small", "D", "Another C"})
        file(fs::path("chords") / name, "x32010\r\n");
    openOnBank();
    QTest::keyClicks(&control("txt_Find"), "C");
    EXPECT_EQ(rows("lst_Chords"), QStringList({"C", "C minor", "c small"}));
    QTest::keyClicks(&control("txt_Find"), " m");
    EXPECT_EQ(rows("lst_Chords"), QStringList({"C minor"}));
    control<QLineEdit>("txt_Find").clear();
    EXPECT_EQ(rows("lst_Chords").size(), 5);
    EXPECT_EQ(title(), "<no chord>");
}

TEST_F(ChordBank, AChordIsDeletedAfterAQuestion) {
    file("chords/C", "x32010\r\n");
    openOnBank();
    click("cmd_Delete");
    EXPECT_TRUE(boxes.take().isEmpty());
    click("lst_Chords", "C");
    boxes.queueAnswer(BoxAnswer::No);
    click("cmd_Delete");
    EXPECT_TRUE(fs::exists(folder() / "chords/C"));
    boxes.queueAnswer(BoxAnswer::Yes);
    click("cmd_Delete");
    EXPECT_FALSE(fs::exists(folder() / "chords/C"));
    EXPECT_TRUE(rows("lst_Chords").isEmpty());
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 2);
    EXPECT_EQ(asked.last().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.last().box.text, "Do you want to delete the chord 'C' ?");
    EXPECT_EQ(asked.last().box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(asked.last().box.buttons, (QList{BoxAnswer::Yes, BoxAnswer::No}));
}

TEST_F(ChordBank, NamesThatAreNoTextAreListedLoadedAndDeleted) {
    file(fs::path("chords") / "C\xFF", "x32010\r\n");
    openOnBank();
    ASSERT_EQ(rows("lst_Chords").size(), 1);
    click("lst_Chords", rows("lst_Chords").first());
    EXPECT_EQ(frets(), " 32010");
    boxes.queueAnswer(BoxAnswer::Yes);
    click("cmd_Delete");
    EXPECT_TRUE(fs::is_empty(folder() / "chords"));
}

// Entering

TEST_F(ChordBank, AFretThatIsTooHighIsToldAndPutBack) {
    openOnBank();
    check("chkPlayNow");
    auto& box = control<QLineEdit>("txt_addcrdg");
    sent();
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_7);
    EXPECT_EQ(box.text(), "0");
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.text, "The fret on the G string must be a number from 0 to 6, or x.");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Information);
    // The "0" that is put back is a change of its own.
    EXPECT_EQ(sent().size(), 12u);
}

TEST_F(ChordBank, EachBoxIsToldByItsString) {
    openOnBank();
    for (const ChordStringRow& row : ChordStringTable) {
        control<QLineEdit>(row.entry).setText("a");
        const auto asked = boxes.take();
        ASSERT_EQ(asked.size(), 1);
        EXPECT_EQ(asked.first().box.text,
                  QString("The fret on the ") + row.name + " string must be a number from 0 to 6, or x.");
    }
}

TEST_F(ChordBank, ThePreviewShowsAndSoundsTheChordAtEachKey) {
    openOnBank();
    enter("x3201x");
    const std::map<QString, bool> marks = {{"shplowe2(7)", true}, {"shplowe2(0)", false}, {"shpA2(3)", true},
                                           {"shpd2(2)", true},    {"shpg2(0)", true},     {"shpb2(1)", true},
                                           {"shpe2(7)", true},    {"shpe2(6)", false}};
    for (const auto& [name, visible] : marks)
        EXPECT_EQ(shown(name), visible) << name.toStdString();
    EXPECT_TRUE(sent().empty() || !enabled("tmrChordStopper"));
    check("chkPlayNow");
    sent();
    auto& box = control<QLineEdit>("txt_addcrde");
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_6);
    EXPECT_EQ(sent(), (Log{"On 48", "On 52", "On 55", "On 60", "On 70"}));
    EXPECT_TRUE(enabled("tmrChordStopper"));
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(sent(), (Log{"On 48", "On 52", "On 55", "On 60"}));
}

TEST_F(ChordBank, SavingMakesNoSound) {
    openOnBank();
    check("chkPlayNow");
    enter("3 2  0");
    sent();
    save("quiet");
    EXPECT_EQ(entries(), "3-2--0");
    EXPECT_TRUE(sent().empty());
    enter("3 2  1");
    sent();
    save("C/G");
    EXPECT_TRUE(sent().empty());
    control<QLineEdit>("txt_addcrda").setText("1");
    EXPECT_FALSE(sent().empty());
}

TEST_F(ChordBank, EachKeyReplacesTheCharacterWhereverTheFocusCameFrom) {
    openOnBank();
    auto& box = control<QLineEdit>("txt_addcrdb");
    box.setFocus(Qt::OtherFocusReason);
    QTest::keyClick(&box, Qt::Key_3);
    EXPECT_EQ(box.text(), "3");
    QTest::keyClick(&box, Qt::Key_5);
    EXPECT_EQ(box.text(), "5");
    QTest::keyClick(&box, Qt::Key_7);
    EXPECT_EQ(box.text(), "0");
    EXPECT_EQ(boxes.take().size(), 1);
}

TEST_F(ChordBank, AClickInABoxChoosesItsCharacter) {
    openOnBank();
    auto& box = control<QLineEdit>("txt_addcrdD");
    QTest::mouseClick(&box, Qt::LeftButton);
    QTest::keyClick(&box, Qt::Key_3);
    QTest::mouseClick(&box, Qt::LeftButton);
    QTest::keyClick(&box, Qt::Key_5);
    EXPECT_EQ(box.text(), "5");
}

} // namespace
} // namespace tabrova::testing
