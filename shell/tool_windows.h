// The program's windows besides the main one: one table, a row a window. All of them are loaded, shown and
// unloaded by one rule. The language that a window has is that of its loading.
#pragma once

#include "workbench/tool_window.h"

#include <QPointer>

#include <span>

namespace tabrova {

// Closing hides a window that is kept; any other is unloaded by it. All go with the program.
enum class Keeping { UntilClosed, UntilTheEnd };

struct ToolRow {
    const char* form;
    const char* item; // the menu item that opens it, or ""
    ToolWindow* (*make)(const ToolContext& context, QWidget* parent);
    Keeping keeping = Keeping::UntilClosed;
};

// The table. A new window is a row here.
std::span<const ToolRow> toolRows();

class ToolWindows : public ToolOpener {
  public:
    // The windows are children of `main`.
    // They are made with `context`, which may be put together later.
    ToolWindows(const ToolContext& context, QWidget& main, std::span<const ToolRow> rows = toolRows());
    ~ToolWindows() override;

    void registerRows(CommandTable& table);

    bool has(std::string_view form) const override { return rowOf(form) != nullptr; }
    bool isLoaded(std::string_view form) const override { return window(form) != nullptr; }
    void load(std::string_view form) override;
    void open(std::string_view form, const Opening& opening) override;
    using ToolOpener::open;
    void unload(std::string_view form) override;
    // The one that was loaded last goes first, and at once.
    void unloadAll() override;
    void showMain() override { main_.show(); }

    // Deletes all windows, before what they work on goes. What they hold is lost.
    void deleteAll();

    // nullptr for one that is not loaded.
    ToolWindow* window(std::string_view form) const;
    // In the order of their loading.
    QList<ToolWindow*> loadedWindows() const;

  private:
    struct Loaded {
        const ToolRow* row;
        ToolWindow* window;
    };

    const ToolRow* rowOf(std::string_view form) const;
    ToolWindow* takeOut(std::string_view form);
    void windowClosed(const ToolRow& row);

    const ToolContext& context_;
    QWidget& main_;
    std::span<const ToolRow> rows_;
    std::vector<Loaded> loaded_;
    // Unloaded, but still to be deleted by the event loop.
    std::vector<QPointer<ToolWindow>> leaving_;
};

} // namespace tabrova
