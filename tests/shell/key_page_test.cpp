// The page of keys: whatever the menus and the toolbar show, in the words of the moment.
#include "organisers/help/key_rows.h"
#include "tests/shell/main_window.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <map>

namespace tabrova {
namespace {

class KeyPage : public testing::MainWindowTest {
  protected:
    KeyPage() { load(); }
    std::multimap<std::string, std::string> rows() {
        std::multimap<std::string, std::string> found;
        for (const KeyRow& row : keyRows(*window, window->bench().words))
            found.emplace(row.name.toStdString(), row.keys.toStdString());
        return found;
    }
};

TEST_F(KeyPage, HoldsEveryShortcutOfTheMenusOnce) {
    const std::vector<KeyRow> all = keyRows(*window, window->bench().words);
    int shortcuts = 0;
    for (const QAction* action : window->findChildren<QAction*>()) {
        if (action->shortcuts().isEmpty()) continue;
        ++shortcuts;
        const QString first = action->shortcut().toString(QKeySequence::NativeText);
        int found = 0;
        for (const KeyRow& row : all)
            found += row.keys.split(", ").contains(first);
        EXPECT_EQ(found, 1) << action->objectName().toStdString() << " " << first.toStdString();
    }
    EXPECT_GT(shortcuts, 35);
}

TEST_F(KeyPage, HoldsTheToolbarsKeysAndThePagesOwn) {
    const auto found = rows();
    const auto keys = [&found](const char* name) {
        const auto row = found.find(name);
        return row == found.end() ? std::string("missing") : row->second;
    };
    EXPECT_EQ(keys("Bend"), "B");
    EXPECT_EQ(keys("Move the cursor"), "Arrow Keys");
    EXPECT_EQ(keys("Delete Note"), "Del");
    EXPECT_EQ(keys("Insert Closed Repeat"), "Shift + Space");
    EXPECT_EQ(keys("First Column of the Staff"), "Home");
    EXPECT_EQ(keys("Stop While Music Plays"), "Esc, Space");
    EXPECT_EQ(keys("Zoom In"), "Ctrl++, Ctrl+=");
    EXPECT_EQ(keys("Save As"), "Ctrl+Shift+S");
    EXPECT_EQ(keys("Tools"), "") << "a heading";
    EXPECT_EQ(found.count("Help"), 1u);
    for (const QToolButton* button : window->findChildren<QToolButton*>()) {
        const std::string key = button->property("key").toString().toStdString();
        const bool there = std::ranges::any_of(found, [&key](const auto& row) { return row.second == key; });
        EXPECT_TRUE(there || key.size() != 1) << key;
    }
}

TEST_F(KeyPage, ADocumentsNameIsNoKey) {
    window->commands().documents.recent.add("/tabs/First take (Del)");
    {
        const Act act(window->bench().acts, "recent");
        window->bench().acts.changes().recent = true;
    }
    ASSERT_EQ(window->menu().action("mnuRecentDocument(0)")->text(), "&1  First take (Del)");
    for (const auto& [name, keys] : rows())
        EXPECT_EQ(name.find("First take"), std::string::npos) << name << " " << keys;
}

TEST_F(KeyPage, NoTwoCommandsShareAShortcut) {
    std::map<QString, QString> owners;
    for (const QAction* action : window->findChildren<QAction*>())
        for (const QKeySequence& keys : action->shortcuts()) {
            const auto [other, fresh] = owners.emplace(keys.toString(), action->objectName());
            EXPECT_TRUE(fresh) << keys.toString().toStdString() << ": " << action->objectName().toStdString()
                               << " and " << other->second.toStdString();
        }
}

TEST_F(KeyPage, OpensFromTheMenuAndFromItsButton) {
    trigger("mnuHelpKeys");
    QWidget* help = form("frmHelp");
    ASSERT_NE(help, nullptr);
    auto* list = control<QTreeWidget>(*help, "lstKeys");
    EXPECT_TRUE(list->isVisible());
    EXPECT_FALSE(control<QLabel>(*help, "lblHelp(0)")->isVisible());
    EXPECT_EQ(control<QLabel>(*help, "lblTitle")->text(), "Keys");
    EXPECT_EQ(list->topLevelItemCount(), static_cast<int>(keyRows(*window, window->bench().words).size()));
    EXPECT_EQ(help->focusWidget(), list);
    EXPECT_GE(list->viewport()->width(), list->columnWidth(0) + list->columnWidth(1));
    help->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    trigger("mnuHelpContents");
    help = form("frmHelp");
    EXPECT_FALSE(control<QTreeWidget>(*help, "lstKeys")->isVisible());
    QTest::mouseClick(control<QPushButton>(*help, "cmdKeys"), Qt::LeftButton);
    EXPECT_TRUE(control<QTreeWidget>(*help, "lstKeys")->isVisible());
}

TEST_F(KeyPage, SpeaksTheChosenLanguage) {
    std::filesystem::copy_file(folder() / "languages" / "German" / "lang.trl", folder() / "lang.trl",
                               std::filesystem::copy_options::overwrite_existing);
    window->commands().language.LoadLanguage();
    const auto found = rows();
    EXPECT_EQ(found.count("Den Cursor bewegen"), 1u);
    EXPECT_EQ(found.count("Vergrößern"), 1u);
    EXPECT_EQ(found.count("Move the cursor"), 0u);
}

} // namespace
} // namespace tabrova
