// Every item of every menu by a real click of the mouse: an item with a command runs it once, one without
// runs nothing.
#include "tests/shell/main_window.h"

#include <QTest>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class MenuClicks : public testing::MainWindowTest {
  protected:
    MenuClicks() { QApplication::processEvents(); }
    // A recent document stands in its list.
    frmMain& loadWithARecentDocument() {
        services.settings.SaveSetting("Recent", "Document0", TABROVA_SOURCE_DIR "/examples/iron-kettle.tr3");
        return load();
    }

    // Opens the menus on the way to the item and clicks it.
    void click(const QList<QAction*>& way) {
        QMenuBar* bar = window.menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(way.first()).center());
        for (qsizetype depth = 1; depth < way.size(); ++depth) {
            QMenu* menu = way[depth - 1]->menu();
            // A submenu opens a moment after the click.
            ASSERT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible(); }))
                << way[depth]->objectName().toStdString();
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(way[depth]).center());
        }
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    void walk(const QList<QAction*>& actions, QList<QAction*> way) {
        for (QAction* action : actions) {
            if (action->isSeparator() || !action->isVisible()) continue;
            way.append(action);
            if (action->menu()) {
                walk(action->menu()->actions(), way);
            } else if (action->objectName() != "mnuExit") {
                clickItem(action, way);
            }
            way.removeLast();
        }
    }

    void clickItem(QAction* action, const QList<QAction*>& way) {
        int triggered = 0;
        const auto counter = QObject::connect(action, &QAction::triggered, [&triggered] { ++triggered; });
        const bool enabled = action->isEnabled();
        click(way);
        QObject::disconnect(counter);
        EXPECT_EQ(triggered, enabled ? 1 : 0) << action->objectName().toStdString();
        ++items;
        window.ToggleMenus(true);
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget != &window && widget->isVisible()) widget->close();
        // The desktop gives the window the keyboard back.
        window.activateWindow();
        QApplication::processEvents();
        // A panel that a command opened holds the page.
        for (const char* panel : {"picBend", "picRepeat"})
            window.findChild<QWidget*>(panel)->hide();
    }

    frmMain& window = loadWithARecentDocument();
    int items = 0;
};

TEST_F(MenuClicks, RunEveryItemThatHasACommandOnce) {
    walk(window.menuBar()->actions(), {});
    EXPECT_EQ(items, 86);
    EXPECT_EQ(ends, 0);
}

} // namespace
} // namespace tabrova
