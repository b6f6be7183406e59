// The rows of a folder's list stay where they are, and chosen, while the folder changes.
#include "tests/forms/folder_lists.h"

#include <QScrollBar>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

using FolderRows = testing::FolderListTest;

TEST_F(FolderRows, KeepTheChosenRowByItsNameWithoutAWord) {
    files({"b", "d", "f"});
    list.showFolder(folder());
    present();
    list.chooseName("d");
    signals_ = 0;
    file("a");
    file("c");
    EXPECT_TRUE(shows({"a", "b", "c", "d", "f"}));
    EXPECT_EQ(list.chosenName(), "d");
    EXPECT_EQ(list.currentRow(), 3);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(signals_, 0);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.chosenName(), "f");
    EXPECT_EQ(clicks, 1);
}

TEST_F(FolderRows, ChooseNothingWhenTheChosenEntryIsGoneAndLeaveTheKeyboardThere) {
    files({"a", "b", "c", "d"});
    list.showFolder(folder());
    present();
    list.chooseName("b");
    fs::remove(folder() / "b");
    EXPECT_TRUE(shows({"a", "c", "d"}));
    EXPECT_EQ(list.chosenRow(), -1);
    EXPECT_EQ(list.chosenName(), fs::path());
    EXPECT_EQ(list.currentRow(), 1);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.chosenName(), "c");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.chosenName(), "d");
    fs::remove(folder() / "d");
    EXPECT_TRUE(shows({"a", "c"}));
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(list.chosenRow(), -1);
    fs::remove(folder() / "a");
    fs::remove(folder() / "c");
    EXPECT_TRUE(shows({}));
    EXPECT_EQ(list.chosenRow(), -1);
    EXPECT_EQ(clicks, 2);
}

TEST_F(FolderRows, ChooseNothingWhereNothingWasChosen) {
    files({"b"});
    list.showFolder(folder());
    file("a");
    EXPECT_TRUE(shows({"a", "b"}));
    EXPECT_EQ(list.chosenRow(), -1);
    EXPECT_EQ(list.currentRow(), -1);
    present(); // which gives the first row the keyboard
    file("0");
    EXPECT_TRUE(shows({"0", "a", "b"}));
    EXPECT_EQ(list.chosenRow(), -1);
    EXPECT_EQ(list.currentRow(), 1);
}

TEST_F(FolderRows, DoNotTouchRowsThatAreTheSame) {
    files({"a", "b"});
    list.showFolder(folder());
    present();
    const QListWidgetItem* first = list.item(0);
    list.readAgain();
    std::ofstream(folder() / "a") << "other words";
    list.hide();
    list.show();
    QTest::qWait(250);
    EXPECT_EQ(list.item(0), first);
    EXPECT_EQ(fillings, 1);
}

class LongFolderRows : public FolderRows {
  protected:
    // Names "b000" to "b099".
    LongFolderRows() {
        fs::create_directory(folder());
        for (int number = 0; number < 100; ++number)
            file(QString("b%1").arg(number, 3, 10, QChar('0')).toStdString());
        list.showFolder(folder());
        present();
    }
    bool comesTo(int count) {
        return QTest::qWaitFor([this, count] { return list.count() == count; });
    }
};

TEST_F(LongFolderRows, KeepTheRowsWhereTheyAreOnTheScreen) {
    for (const auto mode : {QAbstractItemView::ScrollPerItem, QAbstractItemView::ScrollPerPixel}) {
        list.setVerticalScrollMode(mode);
        list.chooseName("b002"); // out of sight
        list.scrollToItem(list.item(50), QAbstractItemView::PositionAtTop);
        ASSERT_EQ(top(), "b050");
        file("a");
        EXPECT_TRUE(comesTo(101));
        EXPECT_EQ(top(), "b050");
        EXPECT_EQ(list.chosenName(), "b002");
        fs::remove(folder() / "a");
        EXPECT_TRUE(comesTo(100));
        EXPECT_EQ(top(), "b050");
    }
    fs::remove(folder() / "b050");
    EXPECT_TRUE(comesTo(99));
    EXPECT_EQ(top(), "b051");
}

TEST_F(LongFolderRows, ThatStandAtTheTopStayThere) {
    file("a");
    EXPECT_TRUE(comesTo(101));
    EXPECT_EQ(top(), "a");
}

TEST_F(LongFolderRows, ThatLoseTheirEndShowTheNewEnd) {
    list.scrollToBottom();
    for (int number = 50; number < 100; ++number)
        fs::remove(folder() / QString("b0%1").arg(number).toStdString());
    EXPECT_TRUE(comesTo(50));
    EXPECT_GT(top(), "b030");
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.item(49)).center()));
}

TEST_F(LongFolderRows, KeepTheirPlaceAcross) {
    list.setTextElideMode(Qt::ElideNone);
    file("b000" + std::string(150, 'x'));
    EXPECT_TRUE(comesTo(101));
    list.setUniformItemSizes(false);
    list.doItemsLayout();
    list.scrollToItem(list.item(50), QAbstractItemView::PositionAtTop);
    list.horizontalScrollBar()->setValue(30);
    ASSERT_EQ(list.horizontalScrollBar()->value(), 30);
    file("c");
    EXPECT_TRUE(comesTo(102));
    EXPECT_EQ(list.horizontalScrollBar()->value(), 30);
    EXPECT_EQ(top(), "b049"); // the long name is the first but one
}

TEST_F(LongFolderRows, KeepTheirPlaceWhileTheyAreHidden) {
    list.chooseName("b002");
    list.scrollToItem(list.item(50), QAbstractItemView::PositionAtTop);
    list.hide();
    file("a");
    EXPECT_TRUE(comesTo(101));
    list.show();
    EXPECT_EQ(top(), "b050");
}

TEST_F(LongFolderRows, ShowTheRowThatTheProgramChooses) {
    signals_ = 0;
    list.chooseName("b090");
    EXPECT_EQ(signals_, 0);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.currentItem()).center()));
    file("a");
    EXPECT_TRUE(comesTo(101));
    list.chooseName("b005");
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.currentItem()).center()));
    EXPECT_EQ(clicks, 0);
}

TEST_F(LongFolderRows, DoNotMoveUnderAButtonThatIsHeldDown) {
    const QPoint place = list.viewport()->mapTo(&list, list.visualItemRect(list.item(2)).center());
    QTest::mousePress(list.windowHandle(), Qt::LeftButton, {}, place);
    file("a");
    QTest::qWait(350);
    EXPECT_EQ(list.count(), 100);
    QTest::mouseRelease(list.windowHandle(), Qt::LeftButton, {}, place);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(list.chosenName(), "b002");
    EXPECT_TRUE(comesTo(101));
    EXPECT_EQ(list.chosenName(), "b002");
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace tabrova
