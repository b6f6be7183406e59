// The documents that the welcome window offers.
#include "organisers/welcome/frmAltSplash.h"
#include "platform/list_box.h"
#include "tests/workbench/saved_document.h"
#include "tests/workbench/tool_bench.h"

#include <QApplication>
#include <QTest>

namespace tabrova::testing {
namespace {

class WelcomeDocuments : public ToolBench {
  protected:
    WelcomeDocuments() {
        saved("examples/iron-kettle.tr3");
        saved("examples/amazing-grace.tr3");
        commands.documents.recent.add(saved("mine/first song.tr3"));
        commands.documents.recent.add(saved("mine/second.tr3"));
    }
    QString saved(const char* name) { return savedDocument(folder() / name); }
    void open() {
        splash = std::make_unique<frmAltSplash>(context, nullptr);
        splash->Form_Load();
        splash->show();
        log.clear();
    }
    ListBox& list(const char* name) { return dynamic_cast<ListBox&>(*splash->findChild<QWidget*>(name)); }
    void click(ListBox& box, int row) {
        QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, box.visualItemRect(box.item(row)).center());
    }
    bool went() const { return std::ranges::count(log, "show main") == 1; }

    std::unique_ptr<frmAltSplash> splash;
};

TEST_F(WelcomeDocuments, StandBelowThePicture) {
    open();
    EXPECT_EQ(splash->size(), QSize(520, 320 + 168));
    ASSERT_EQ(list("lstRecent").count(), 2);
    EXPECT_EQ(list("lstRecent").item(0)->text(), "second.tr3");
    EXPECT_EQ(list("lstRecent").item(1)->text(), "first song.tr3");
    EXPECT_EQ(list("lstRecent").item(1)->toolTip(), textOf(folder() / "mine" / "first song.tr3"));
    ASSERT_EQ(list("lstExamples").count(), 2);
    EXPECT_EQ(list("lstExamples").item(0)->text(), "Amazing Grace");
    EXPECT_EQ(splash->findChild<QLabel*>("lblRecent")->text(), "Recent Documents");
    EXPECT_EQ(splash->findChild<QLabel*>("lblExamples")->text(), "Examples");
    EXPECT_EQ(list("lstRecent").accessibleName(), "Recent Documents");
    EXPECT_EQ(splash->focusWidget(), splash.get());
}

TEST_F(WelcomeDocuments, AnEmptyListLeavesItsRoomToTheOther) {
    commands.documents.recent.clear();
    open();
    QApplication::processEvents();
    EXPECT_FALSE(list("lstRecent").isVisible());
    EXPECT_FALSE(splash->findChild<QLabel*>("lblRecent")->isVisible());
    EXPECT_GT(list("lstExamples").width(), 480);
}

TEST_F(WelcomeDocuments, OpenWithoutAQuestionByOneClick) {
    open();
    click(list("lstRecent"), 1);
    EXPECT_EQ(document().Title, "first song");
    EXPECT_TRUE(went());
    EXPECT_FALSE(splash->isVisible());
    EXPECT_EQ(boxes.take().size(), 0);
    open();
    click(list("lstExamples"), 1);
    EXPECT_EQ(document().Title, "iron-kettle");
    EXPECT_EQ(commands.documents.recent.files().first(), textOf(folder() / "examples" / "iron-kettle.tr3"));
}

TEST_F(WelcomeDocuments, OpenByKeys) {
    open();
    ListBox& box = list("lstExamples");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_TRUE(splash->isVisible());
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_FALSE(splash->isVisible());
    EXPECT_TRUE(document().Title == "iron-kettle" || document().Title == "amazing-grace") << document().Title;
}

TEST_F(WelcomeDocuments, AClickBesideThemLeavesTheWindow) {
    open();
    QWidget& around = *splash->findChild<QWidget*>("picDocuments");
    QTest::mouseClick(&around, Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_TRUE(splash->isVisible());
    EXPECT_TRUE(document().Title == "Untitled");
    QTest::mouseClick(splash.get(), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_FALSE(splash->isVisible()) << "the picture itself closes it";
}

TEST_F(WelcomeDocuments, OneThatIsGoneIsToldOnceTheWindowIsGone) {
    open();
    std::filesystem::remove(folder() / "mine" / "second.tr3");
    click(list("lstRecent"), 0);
    EXPECT_FALSE(splash->isVisible());
    ASSERT_EQ(boxes.take().size(), 1);
    EXPECT_EQ(commands.documents.recent.files().size(), 1);
    EXPECT_EQ(document().Title, "Untitled");
}

} // namespace
} // namespace tabrova::testing
