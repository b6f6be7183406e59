// One Click for each act of the user.
#include "platform/list_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class Lists : public ::testing::Test {
  protected:
    Lists() {
        list.addItems({"a", "b", "c"});
        list.resize(200, 200);
        list.show();
        list.Click = [this] { rows.push_back(list.currentRow()); };
    }
    QPoint place(int row) { return list.visualItemRect(list.item(row)).center(); }

    ListBox list{"lst", nullptr};
    std::vector<int> rows;
};

TEST_F(Lists, RaiseOneClickForAMouseClickAlsoOnTheSameRow) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place(1));
    EXPECT_EQ(rows, std::vector<int>{1});
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place(1));
    EXPECT_EQ(rows, (std::vector<int>{1, 1}));
}

TEST_F(Lists, RaiseOneClickForAMoveByKeys) {
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_End);
    QTest::keyClick(&list, Qt::Key_Down); // already at the end
    EXPECT_EQ(rows, (std::vector<int>{1, 2}));
}

TEST_F(Lists, AreEnteredByAnArrowKeyAtTheRowThatHasTheKeyboard) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up})
        for (const int rowCount : {1, 3}) {
            ListBox fresh("lst", nullptr);
            for (int row = 0; row < rowCount; ++row)
                fresh.addItem(QString::number(row));
            std::vector<int> chosen;
            fresh.Click = [&] { chosen.push_back(fresh.chosenRow()); };
            fresh.show();
            fresh.setCurrentRow(0, QItemSelectionModel::NoUpdate);
            QTest::keyClick(&fresh, key);
            EXPECT_EQ(chosen, std::vector<int>{0});
            EXPECT_EQ(fresh.chosenRow(), 0);
        }
}

TEST_F(Lists, ThatEndWithAChoiceRaiseItsClickOnlyForReturnEnterAndSpace) {
    ListBox ending("lst", nullptr, ListBox::KeyClick::AtEnter);
    ending.addItems({"a", "b", "c"});
    ending.show();
    std::vector<int> chosen;
    ending.Click = [&] { chosen.push_back(ending.chosenRow()); };
    QTest::keyClick(&ending, Qt::Key_Return); // nothing is chosen yet
    ending.setCurrentRow(0);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_C, Qt::Key_Home})
        QTest::keyClick(&ending, key);
    EXPECT_TRUE(chosen.empty());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        QTest::keyClick(&ending, key);
        QTest::keyClick(&ending, Qt::Key_Down);
    }
    EXPECT_EQ(chosen, (std::vector<int>{0, 1, 2}));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&ending, &held);
    EXPECT_EQ(chosen.size(), 3u);
    EXPECT_TRUE(held.isAccepted());
    QTest::mouseClick(ending.viewport(), Qt::LeftButton, {}, ending.visualItemRect(ending.item(1)).center());
    EXPECT_EQ(chosen.size(), 4u);
}

TEST_F(Lists, RaiseNoneWhenTheProgramChooses) {
    list.setCurrentRow(2);
    list.setCurrentRow(-1);
    EXPECT_TRUE(rows.empty());
}

TEST_F(Lists, RaiseOneClickForADragFromRowToRow) {
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, place(0));
    QTest::mouseMove(list.viewport(), place(2));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, place(2));
    EXPECT_EQ(rows, std::vector<int>{list.currentRow()});
}

TEST_F(Lists, RaiseNoneForAClickBelowTheRows) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {20, 180});
    EXPECT_TRUE(rows.empty());
}

TEST_F(Lists, RaiseOneDoubleClickForTwoClicksOrReturnOnTheChosenRow) {
    std::vector<int> doubles;
    list.DoubleClick = [&] { doubles.push_back(list.chosenRow()); };
    QTest::keyClick(&list, Qt::Key_Return); // nothing is chosen
    EXPECT_TRUE(doubles.empty());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place(1));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place(1));
    EXPECT_EQ(doubles, std::vector<int>{1});
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(doubles, (std::vector<int>{1, 1}));
    QTest::mouseDClick(list.viewport(), Qt::RightButton, {}, place(1));
    EXPECT_EQ(doubles, (std::vector<int>{1, 1}));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, {20, 180});
    EXPECT_EQ(doubles, (std::vector<int>{1, 1, 1}));
}

TEST_F(Lists, TakeReturnAndEnterForADoubleClickAndNoOtherKey) {
    int doubles = 0;
    list.DoubleClick = [&doubles] { ++doubles; };
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(doubles, 1);
    QTest::keyClick(&list, Qt::Key_Enter);
    EXPECT_EQ(doubles, 2);
    EXPECT_TRUE(rows.empty());
    for (const auto key : {Qt::Key_Down, Qt::Key_Space, Qt::Key_Escape})
        QTest::keyClick(&list, key);
    EXPECT_EQ(doubles, 2);
    EXPECT_EQ(rows, std::vector<int>{1});
}

TEST_F(Lists, TakeNoReturnThatIsHeldDownForADoubleClick) {
    int doubles = 0;
    list.DoubleClick = [&doubles] { ++doubles; };
    list.setCurrentRow(0);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, "\r", true);
        QApplication::sendEvent(&list, &held);
        EXPECT_TRUE(held.isAccepted());
    }
    EXPECT_EQ(doubles, 0);
}

TEST_F(Lists, ShowWhereTheKeyboardIsAlsoWhenThereIsNoRow) {
    list.clear();
    list.activateWindow();
    list.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return list.hasFocus(); }));
    const QImage with = list.grab().toImage();
    list.clearFocus();
    const QImage without = list.grab().toImage();
    EXPECT_TRUE(with != without);
    EXPECT_TRUE(with.copy(20, 20, 160, 160) == without.copy(20, 20, 160, 160)); // only at its edge
    list.setFocus();
    list.addItems({"a", "b"}); // still no row of them has the keyboard
    ASSERT_EQ(list.currentRow(), -1);
    const QImage rowless = list.grab().toImage();
    list.setCurrentRow(0, QItemSelectionModel::NoUpdate);
    const QImage rowed = list.grab().toImage();
    EXPECT_EQ(rowless.pixel(100, 198 - 1), with.pixel(100, 198 - 1));
    EXPECT_EQ(rowed.copy(0, 100, 200, 100), without.copy(0, 100, 200, 100)); // the row has the mark
}

TEST_F(Lists, TakeTheRowUnderADoubleClickThatComesWithoutAPress) {
    int row = -1;
    list.DoubleClick = [&] { row = list.chosenRow(); };
    const QPointF at = place(2);
    QMouseEvent event(QEvent::MouseButtonDblClick, at, list.viewport()->mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton, {});
    QApplication::sendEvent(list.viewport(), &event);
    EXPECT_EQ(row, 2);
}

TEST_F(Lists, KeepTheChosenRowAtAClickBelowTheRows) {
    list.setCurrentRow(1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {20, 180});
    EXPECT_EQ(list.chosenRow(), 1);
}

TEST_F(Lists, TakeNoNoticeOfOtherButtons) {
    list.setCurrentRow(1);
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, place(2));
    QTest::mouseClick(list.viewport(), Qt::MiddleButton, {}, place(0));
    EXPECT_EQ(list.chosenRow(), 1);
    EXPECT_TRUE(rows.empty());
}

// Ten thousand rows would be measured one by one otherwise.
TEST_F(Lists, KeepTheChosenRowWithTheCtrlKeyToo) {
    const QPoint first = list.visualItemRect(list.item(0)).center();
    for (int click = 1; click <= 3; ++click) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, first);
        EXPECT_EQ(list.chosenRow(), 0);
    }
    QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(list.chosenRow(), 0);
}

TEST_F(Lists, HaveRowsOfOneHeight) { EXPECT_TRUE(list.uniformItemSizes()); }

TEST_F(Lists, HaveNoChosenRowWhereTheKeyboardAloneStands) {
    list.setFocus();
    EXPECT_EQ(list.chosenRow(), -1);
    list.setCurrentRow(1);
    EXPECT_EQ(list.chosenRow(), 1);
}

} // namespace
} // namespace tabrova
