// The main window's menus: one table of names, places and shortcuts, and the bar built from it. The
// captions come from the language lines.
#pragma once

#include "workbench/menu_state.h"

#include <QAction>
#include <QHash>
#include <QMenuBar>
#include <QString>

#include <functional>

namespace tabrova {

class MainMenu : public MenuState {
  public:
    // Every menu and item gets its name as objectName; an item without a command is disabled.
    explicit MainMenu(QMenuBar& bar);

    // The action of a menu or item; nullptr for a name that is not there. Names are matched without regard to
    // case.
    QAction* action(const QString& name) const { return actions_.value(name.toLower()); }
    // The item runs `command` from now on, and is enabled.
    void connectItem(const QString& name, std::function<void()> command);
    // One more item at the end of a menu.
    QAction* addItem(const QString& menu, const QString& name, std::function<void()> command);
    void setEnabled(const QString& name, bool enabled);
    bool isEnabled(const QString& name) const override { return action(name)->isEnabled(); }
    bool isChecked(const QString& name) const override;
    void setChecked(const QString& name, bool checked) override;

  private:
    QHash<QString, QAction*> actions_;
    QHash<QString, QMenu*> menus_;
};

} // namespace tabrova
