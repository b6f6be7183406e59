// Where Tab takes the focus on a form.
#include "forms/tab_order.h"
#include "platform/list_box.h"
#include "tests/forms/demo_form.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace tabrova {
namespace {

using testing::DemoForm;

class TabKey : public testing::FormTest {
  protected:
    // Controls made in the opposite order of reading, in two rows: a b, c d.
    void fillBackwards(QGridLayout& grid, QWidget* parent) {
        for (const auto& [name, row, place] :
             {std::tuple("d", 1, 1), std::tuple("c", 1, 0), std::tuple("b", 0, 1), std::tuple("a", 0, 0)})
            grid.addWidget(named(new QPushButton(parent), name), row, place);
    }
    DemoForm form{folder()};
};

TEST_F(TabKey, FollowsTheReadingOrderRoundAndBack) {
    auto* grid = new QGridLayout;
    form.column->addLayout(grid);
    fillBackwards(*grid, &form);
    form.present();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 5), (QStringList{"b", "c", "d", "a", "b"}));
    EXPECT_EQ(form.walk(Qt::Key_Backtab, 5), (QStringList{"a", "d", "c", "b", "a"}));
}

TEST_F(TabKey, IsMirroredInALanguageThatIsWrittenSo) {
    auto* grid = new QGridLayout;
    form.column->addLayout(grid);
    fillBackwards(*grid, &form);
    form.setLayoutDirection(Qt::RightToLeft);
    form.present();
    const QWidget* a = form.findChild<QWidget*>("a");
    const QWidget* b = form.findChild<QWidget*>("b");
    ASSERT_GT(a->x(), b->x());
    EXPECT_EQ(form.focus(), "a");
    EXPECT_EQ(form.walk(Qt::Key_Tab, 3), (QStringList{"b", "c", "d"}));
}

TEST_F(TabKey, ReadsAContainerAsOneBlock) {
    auto* row = new QHBoxLayout;
    form.column->addLayout(row);
    for (const QString side : {"right", "left"}) {
        auto* box = new QGroupBox(&form);
        auto* column = new QVBoxLayout(box);
        for (const QString name : {"1", "2"})
            column->addWidget(named(new QPushButton(box), side + name));
        row->insertWidget(0, box);
    }
    form.add<QPushButton>("below");
    form.present();
    EXPECT_EQ(form.focus(), "left1");
    EXPECT_EQ(form.walk(Qt::Key_Tab, 4), (QStringList{"left2", "right1", "right2", "below"}));
}

TEST_F(TabKey, ReadsTheBoxInAGroupsTitleBeforeWhatIsInTheGroup) {
    auto* box = form.add<QGroupBox>("group");
    box->setCheckable(true);
    box->setTitle("Title");
    auto* column = new QVBoxLayout(box);
    column->addWidget(named(new QPushButton(box), "inside"));
    form.present();
    EXPECT_EQ(form.focus(), "group");
    EXPECT_EQ(form.walk(Qt::Key_Tab, 1), QStringList{"inside"});
    box->setFocus();
    form.press(Qt::Key_Space);
    EXPECT_EQ(form.walk(Qt::Key_Tab, 1), QStringList{"group"}); // what is inside is disabled
}

TEST_F(TabKey, GoesFromTheTabsToThePageThatIsSeen) {
    auto* tabs = form.add<QTabWidget>("tabs");
    for (const QString page : {"x", "y"}) {
        auto* content = new QWidget(&form);
        auto* column = new QVBoxLayout(content);
        auto* second = named(new QPushButton(content), page + "2");
        column->addWidget(named(new QPushButton(content), page + "1"));
        column->addWidget(second);
        tabs->addTab(content, page);
    }
    form.add<QPushButton>("below");
    form.present();
    EXPECT_EQ(form.focusWidget(), tabs->tabBar());
    EXPECT_EQ(form.walk(Qt::Key_Tab, 3), (QStringList{"x1", "x2", "below"}));
    form.press(Qt::Key_Tab);
    EXPECT_EQ(form.focusWidget(), tabs->tabBar());
    form.press(Qt::Key_Right);
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_EQ(form.focusWidget(), tabs->tabBar());
    EXPECT_EQ(form.walk(Qt::Key_Tab, 3), (QStringList{"y1", "y2", "below"}));
    EXPECT_EQ(form.walk(Qt::Key_Backtab, 2), (QStringList{"y2", "y1"}));
    form.press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_TRUE(tabs->widget(0)->isAncestorOf(form.focusWidget()));
}

TEST_F(TabKey, StopsOnceAtControlsThatAreMadeOfSeveral) {
    form.add<QSpinBox>("number");
    auto* combo = form.add<QComboBox>("combo");
    combo->setEditable(true);
    auto* area = form.add<QScrollArea>("area");
    auto* list = new ListBox("list", &form);
    list->addItems({"a", "b"});
    form.column->addWidget(list);
    form.add<QPushButton>("below");
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->addWidget(named(new QPushButton(content), "inside"));
    area->setWidget(content);
    form.present();
    EXPECT_EQ(form.focus(), "number");
    const QStringList order = {"combo", "area", "inside", "list", "below", "number"};
    EXPECT_EQ(form.walk(Qt::Key_Tab, 6), order);
    EXPECT_EQ(form.walk(Qt::Key_Backtab, 6),
              (QStringList{"below", "list", "inside", "area", "combo", "number"}));
}

TEST_F(TabKey, GoesOnFromAControlThatTabDoesNotReach) {
    form.add<QPushButton>("a");
    auto* clicked = form.add<QPushButton>("clicked");
    clicked->setFocusPolicy(Qt::ClickFocus);
    form.add<QPushButton>("b");
    form.present();
    clicked->setFocus();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 1), QStringList{"b"});
    clicked->setFocus();
    EXPECT_EQ(form.walk(Qt::Key_Backtab, 1), QStringList{"a"});
}

TEST_F(TabKey, GoesOnFromAPartOfAControl) {
    form.add<QPushButton>("a");
    auto* list = new ListBox("list", &form);
    list->addItem("text");
    form.column->addWidget(list);
    form.add<QPushButton>("b");
    form.present();
    EXPECT_EQ(tabStop(form, list->viewport(), TabStep::Next)->objectName(), "b");
    EXPECT_EQ(tabStop(form, list->viewport(), TabStep::Previous)->objectName(), "a");
}

TEST_F(TabKey, GoesToTheEndsFromNowhere) {
    form.add<QPushButton>("a");
    form.add<QPushButton>("b");
    form.add<QPushButton>("c");
    form.present();
    EXPECT_EQ(tabStop(form, nullptr, TabStep::Next)->objectName(), "a");
    EXPECT_EQ(tabStop(form, nullptr, TabStep::Previous)->objectName(), "c");
    EXPECT_EQ(tabStop(form, &form, TabStep::Next)->objectName(), "a");
}

TEST_F(TabKey, StaysOnTheOnlyControl) {
    auto* only = form.add<QLineEdit>("only");
    form.present();
    EXPECT_EQ(tabStop(form, only, TabStep::Next), nullptr);
    EXPECT_EQ(tabStop(form, only, TabStep::Previous), nullptr);
    EXPECT_EQ(form.walk(Qt::Key_Tab, 2), (QStringList{"only", "only"}));
}

TEST_F(TabKey, GoesToTheNextControlWhenItsOwnIsHiddenOrDisabled) {
    form.add<QPushButton>("a");
    auto* hides = form.add<QPushButton>("hides");
    auto* disables = form.add<QPushButton>("disables");
    form.add<QPushButton>("b");
    form.present();
    hides->setFocus();
    hides->hide();
    EXPECT_EQ(form.focus(), "disables");
    disables->setEnabled(false);
    EXPECT_EQ(form.focus(), "b");
}

TEST_F(TabKey, GoesOnBehindAContainerThatIsHidden) {
    form.add<QPushButton>("a");
    auto* box = form.add<QGroupBox>("box");
    auto* column = new QVBoxLayout(box);
    for (const QString name : {"inside1", "inside2"})
        column->addWidget(named(new QPushButton(box), name));
    form.add<QPushButton>("b");
    form.present();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 1), QStringList{"inside1"});
    box->hide();
    EXPECT_EQ(form.focus(), "b");
}

TEST_F(TabKey, MayBeHeldDown) {
    for (const QString name : {"a", "b", "c"})
        form.add<QPushButton>(name);
    form.present();
    form.hold(Qt::Key_Tab);
    EXPECT_EQ(form.focus(), "b");
    form.hold(Qt::Key_Tab);
    EXPECT_EQ(form.focus(), "c");
}

TEST_F(TabKey, FollowsControlsThatAreMadeOrMovedLater) {
    auto* a = form.add<QPushButton>("a");
    form.add<QPushButton>("b");
    form.present();
    form.column->insertWidget(1, named(new QPushButton(&form), "between"));
    QApplication::sendPostedEvents();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 2), (QStringList{"between", "b"}));
    form.column->removeWidget(a);
    form.column->addWidget(a);
    QApplication::sendPostedEvents();
    QApplication::processEvents();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 2), (QStringList{"a", "between"}));
}

TEST_F(TabKey, LeavesTheWindowsOfTheFormAlone) {
    form.add<QPushButton>("a");
    form.add<QPushButton>("b");
    DemoForm child(folder(), "frmChild", &form);
    child.add<QPushButton>("other");
    child.show();
    form.present();
    EXPECT_EQ(controlsInReadingOrder(form).size(), 2U);
    EXPECT_EQ(form.walk(Qt::Key_Tab, 3), (QStringList{"b", "a", "b"}));
}

TEST_F(TabKey, StopsAtTheChosenRadioButtonOfAGroup) {
    form.add<QPushButton>("a");
    std::array<QRadioButton*, 3> choices{};
    for (std::size_t choice = 0; choice < choices.size(); ++choice)
        choices[choice] = form.add<QRadioButton>(QString("choice%1").arg(choice));
    form.add<QPushButton>("b");
    choices[1]->setChecked(true);
    form.present();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 3), (QStringList{"choice1", "b", "a"}));
    choices[1]->setFocus();
    form.press(Qt::Key_Down);
    EXPECT_TRUE(choices[2]->isChecked());
    EXPECT_EQ(form.walk(Qt::Key_Tab, 3), (QStringList{"b", "a", "choice2"}));
}

TEST_F(TabKey, FindsTheRadioButtonThatTheProgramChose) {
    form.add<QPushButton>("a");
    std::array<QRadioButton*, 3> choices{};
    for (std::size_t choice = 0; choice < choices.size(); ++choice)
        choices[choice] = form.add<QRadioButton>(QString("choice%1").arg(choice));
    form.add<QPushButton>("b");
    form.present();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 1), QStringList{"choice0"}); // none is chosen yet
    choices[2]->setChecked(true);
    EXPECT_EQ(form.walk(Qt::Key_Tab, 3), (QStringList{"choice2", "b", "a"}));
    choices[2]->setEnabled(false);
    EXPECT_EQ(form.walk(Qt::Key_Tab, 3), (QStringList{"choice0", "b", "a"}));
    choices[2]->setEnabled(true);
    choices[2]->hide();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 3), (QStringList{"choice0", "b", "a"}));
}

TEST_F(TabKey, PassesOverAGroupThatIsNotForTheTabKey) {
    form.add<QPushButton>("a");
    for (const QString name : {"x1", "x2"})
        form.add<QRadioButton>(name)->setFocusPolicy(Qt::ClickFocus);
    for (const QString name : {"y1", "y2"})
        form.add<QRadioButton>(name)->setFocusPolicy(Qt::NoFocus);
    form.add<QPushButton>("b");
    form.present();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 2), (QStringList{"b", "a"}));
}

// In a group of which several can be chosen the toolkit leaves the key to the last that had the focus.
TEST_F(TabKey, KnowsTheGroupsOfButtonsThatAreNotMadeByTheirPlace) {
    QButtonGroup one;
    QButtonGroup several;
    several.setExclusive(false);
    for (const QString name : {"x1", "x2", "x3"}) {
        auto* button = form.add<QToolButton>(name);
        button->setCheckable(true);
        one.addButton(button);
    }
    for (const QString name : {"y1", "y2"}) {
        auto* button = form.add<QToolButton>(name);
        button->setCheckable(true);
        several.addButton(button);
    }
    for (const QString name : {"z1", "z2"})
        form.add<QCheckBox>(name);
    form.present();
    form.findChild<QToolButton*>("x2")->setChecked(true);
    form.findChild<QToolButton*>("y1")->setChecked(true);
    form.findChild<QCheckBox*>("z2")->setChecked(true);
    form.findChild<QWidget*>("z2")->setFocus();
    EXPECT_EQ(form.walk(Qt::Key_Tab, 6), (QStringList{"x2", "y1", "z1", "z2", "x2", "y1"}));
    form.findChild<QWidget*>("y2")->setFocus();
    EXPECT_EQ(form.walk(Qt::Key_Backtab, 1), QStringList{"x2"});
    EXPECT_EQ(form.walk(Qt::Key_Tab, 1), QStringList{"y2"});
}

TEST_F(TabKey, TellsAGroupFromTheOthersBesideIt) {
    QButtonGroup group;
    for (const QString name : {"x1", "x2"})
        form.add<QRadioButton>(name);
    for (const QString name : {"y1", "y2"})
        group.addButton(form.add<QRadioButton>(name));
    form.findChild<QRadioButton*>("y2")->setChecked(true);
    form.present();
    EXPECT_EQ(form.focus(), "x1");
    EXPECT_EQ(form.walk(Qt::Key_Tab, 2), (QStringList{"y2", "x1"}));
}

} // namespace
} // namespace tabrova
