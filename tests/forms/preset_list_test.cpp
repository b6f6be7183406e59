// The list whose text may be none of its rows.
#include "forms/preset_list.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class Presets : public ::testing::Test {
  protected:
    Presets() {
        list.addItems({"first", "second", "third"});
        list.show();
    }

    PresetList list{"Combo1", nullptr};
    QSignalSpy chosen{&list, &QComboBox::activated};
    QSignalSpy changed{&list, &QComboBox::currentIndexChanged};
};

TEST_F(Presets, ShowARowOrATextWithoutASignal) {
    EXPECT_EQ(list.objectName(), "Combo1");
    changed.clear();
    list.showRow(1, "other");
    EXPECT_EQ(list.currentText(), "second");
    EXPECT_EQ(list.currentIndex(), 1);
    list.showRow(-1, "(other)");
    EXPECT_EQ(list.currentText(), "(other)");
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(chosen.count() + changed.count(), 0);
}

TEST_F(Presets, TakeNoTypedText) {
    list.showRow(-1, "(other)");
    QTest::keyClicks(list.lineEdit(), "xyz");
    EXPECT_EQ(list.currentText(), "(other)");
}

TEST_F(Presets, AreGoneThroughByTheArrowKeys) {
    list.showRow(0, "");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.currentText(), "second");
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(Presets, OpenByAClickOnTheirTextAndChooseNothing) {
    list.showRow(-1, "(other)");
    QTest::mousePress(list.lineEdit(), Qt::LeftButton);
    EXPECT_FALSE(list.view()->isVisible());
    QTest::mouseRelease(list.lineEdit(), Qt::LeftButton);
    EXPECT_TRUE(list.view()->isVisible());
    list.hidePopup();
    EXPECT_EQ(list.currentText(), "(other)");
    EXPECT_EQ(chosen.count(), 0);
}

} // namespace
} // namespace tabrova
