// One Click for each act of the user.
#include "platform/list_box.h"

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

} // namespace
} // namespace tabrova
