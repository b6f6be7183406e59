// The band manager's gigs: adding, showing and deleting them.
#include "tests/organisers/band_manager/band_window.h"

#include <QDate>

#include <sys/stat.h>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class GigLog : public BandWindow {
  protected:
    void openLog() {
        open();
        choose(1);
        QApplication::processEvents();
    }
    void expectToday() {
        const QDate today = QDate::currentDate();
        EXPECT_EQ(text("txtmonth"), today.toString("MM").toStdString());
        EXPECT_EQ(text("txtday"), today.toString("dd").toStdString());
        EXPECT_EQ(text("txtyear"), today.toString("yyyy").toStdString());
    }
    void expectBadGig() {
        const auto asked = boxes.take();
        ASSERT_EQ(asked.size(), 1);
        EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
        EXPECT_EQ(asked.first().box.text, "This gig cannot be added. Please check its date and its title.");
        EXPECT_EQ(asked.first().box.icon, BoxIcon::Exclamation);
    }
    void expectShown(const char* heading, const char* memo) {
        const auto asked = boxes.take();
        ASSERT_EQ(asked.size(), 1);
        EXPECT_EQ(asked.first().box.title, heading);
        EXPECT_EQ(asked.first().box.text, memo);
    }
};

TEST_F(GigLog, OpensAtThePresentDayAndMakesItsFolder) {
    openLog();
    expectToday();
    EXPECT_TRUE(fs::is_directory(folder() / "gigs"));
    EXPECT_EQ(text("txtname"), "");
    EXPECT_EQ(text("txtmemo"), "");
    EXPECT_EQ(control<QLabel>("Label14").text(), "(Format = MM DD YYYY)");
    EXPECT_EQ(control<QPushButton>("Command1").text(), "Delete Selected Gig");
    EXPECT_EQ(control<QPushButton>("Command6").text(), "Add Gig");
}

TEST_F(GigLog, AGigIsAFileThatIsNamedAfterItsDateAndItsTitle) {
    openLog();
    enterGig("05", "07", "2002", "Blue Note", "bring strings, and picks");
    EXPECT_EQ(bytesOf("05-07-2002 -- Blue Note"), "bring strings, and picks\r\n");
    EXPECT_EQ(gigNames(), std::vector<std::string>{"05-07-2002 -- Blue Note"});
    expectToday();
    EXPECT_EQ(text("txtname"), "");
    EXPECT_EQ(text("txtmemo"), "");
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(GigLog, ADateIsKeptAsItWasTypedAndReadByPosition) {
    openLog();
    enterGig("5", "7", "02", "Blue Note", "memo");
    EXPECT_EQ(gigNames(), std::vector<std::string>{"5-7-02 -- Blue Note"});
    doubleClick(0);
    expectShown("5-/-0/ -- : e Note", "memo");
}

TEST_F(GigLog, TheSameDateAndTitleAreOneFile) {
    openLog();
    enterGig("05", "07", "2002", "Blue Note", "first");
    enterGig("05", "07", "2002", "Blue Note", "second");
    EXPECT_EQ(gigNames().size(), 1u);
    EXPECT_EQ(bytesOf("05-07-2002 -- Blue Note"), "second\r\n");
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(GigLog, EmptyBoxesAreAGigToo) {
    openLog();
    enterGig("", "", "", "", "");
    EXPECT_EQ(bytesOf("-- -- "), "\r\n");
}

TEST_F(GigLog, ABadGigIsToldAndTheBoxesKeepTheirTexts) {
    fs::create_directories(file("05-07-2002 -- folder"));
    openLog();
    for (const QString& title :
         {QString("a/b"), QString("a\\b"), QString("a\nb"), QString("folder"), QString(300, 'n')}) {
        enterGig("05", "07", "2002", title, "memo");
        expectBadGig();
        EXPECT_EQ(text("txtmonth"), "05");
        EXPECT_EQ(text("txtday"), "07");
        EXPECT_EQ(text("txtyear"), "2002");
        EXPECT_EQ(text("txtname"), title.toStdString());
        EXPECT_EQ(text("txtmemo"), "memo");
    }
    enterGig("05/06", "07", "2002", "x", "memo");
    expectBadGig();
    fs::remove_all(folder() / "gigs");
    enterGig("05", "07", "2002", "x", "memo");
    expectBadGig();
    EXPECT_TRUE(gigNames().empty());
}

TEST_F(GigLog, ADoubleClickOrReturnShowsTheMemoUpToItsComma) {
    bring("05-07-2002 -- Blue Note", "bring strings, and picks\r\n");
    bring("06-08-2003 -- Quoted", "\"strings, and picks\", more\r\n");
    openLog();
    doubleClick(0);
    expectShown("05/07/2002:  Blue Note", "bring strings");
    doubleClick(1);
    expectShown("06/08/2003:  Quoted", "strings, and picks");
    gigs().setFocus();
    QTest::keyClick(&gigs(), Qt::Key_Return);
    expectShown("06/08/2003:  Quoted", "strings, and picks");
    click(0);
    EXPECT_TRUE(boxes.take().isEmpty()); // one click shows nothing
}

TEST_F(GigLog, AnEmptyMemoIsShownAndAFileWithoutBytesIsNot) {
    bring("1", "\r\n");
    bring("2", "");
    openLog();
    doubleClick(0);
    expectShown("1//: ", "");
    doubleClick(1);
    EXPECT_TRUE(boxes.take().isEmpty());
    fs::remove(file("1"));
    doubleClick(0);
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(GigLog, AGigIsDeletedAtOnce) {
    bring("1", "x\r\n");
    bring("2", "x\r\n");
    openLog();
    press("Command1");
    EXPECT_EQ(gigNames().size(), 2u); // nothing is selected
    click(0);
    press("Command1");
    EXPECT_EQ(gigNames(), std::vector<std::string>{"2"});
    EXPECT_FALSE(fs::exists(file("1")));
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(GigLog, AFailedDeleteIsPassedOverAndTheListReadAgain) {
    bring("1", "x\r\n");
    openLog();
    click(0);
    fs::remove(file("1"));
    fs::create_directories(file("1"));
    bring("2", "x\r\n");
    press("Command1");
    EXPECT_TRUE(fs::exists(file("1")));
    EXPECT_EQ(gigNames(), std::vector<std::string>{"2"});
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(GigLog, TextsOfEveryLanguageComeBack) {
    openLog();
    enterGig("05", "07", "2002", QString::fromUtf8("Ночь 🎸"), QString::fromUtf8("Взять струны, и медиаторы"));
    EXPECT_EQ(gigNames(), std::vector<std::string>{"05-07-2002 -- Ночь 🎸"});
    doubleClick(0);
    expectShown("05/07/2002:  Ночь 🎸", "Взять струны");
    enterGig("05", "07", "2001", "Caf\u00E9", "caf\u00E9");
    EXPECT_EQ(bytesOf("05-07-2001 -- Café"), "caf\xE9\r\n");
}

TEST_F(GigLog, FilesFromElsewhereAreNoHazard) {
    bring("05-07-2002 -- raw \xFF\xFE", "raw\r\n");
    bring("06-07-2002 -- huge", std::string(3'000'000, 'h'));
    fs::create_directories(file("folder"));
    mkfifo(file("pipe").c_str(), 0600);
    openLog();
    ASSERT_EQ(gigNames().size(), 2u);
    doubleClick(0);
    const auto raw = boxes.take();
    ASSERT_EQ(raw.size(), 1);
    EXPECT_EQ(raw.first().box.title, QString::fromUtf8("05/07/2002:  raw ��"));
    EXPECT_EQ(raw.first().box.text, "raw");
    doubleClick(1);
    const auto huge = boxes.take();
    ASSERT_EQ(huge.size(), 1);
    EXPECT_EQ(huge.first().box.text.size(), 1001);
    click(0);
    press("Command1");
    EXPECT_FALSE(fs::exists(file("05-07-2002 -- raw \xFF\xFE")));
}

TEST_F(GigLog, AFileInThePlaceOfTheFolderIsBorneUntilAGigIsAdded) {
    std::ofstream(folder() / "gigs") << "x";
    openLog();
    EXPECT_TRUE(boxes.take().isEmpty());
    press("Command1");
    enterGig("05", "07", "2002", "x", "memo");
    expectBadGig();
}

} // namespace
} // namespace tabrova::testing
