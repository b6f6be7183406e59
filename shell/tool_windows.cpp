#include "shell/tool_windows.h"

#include <QWindow>

#include <algorithm>

namespace tabrova {

ToolWindows::ToolWindows(const ToolContext& context, QWidget& main, std::span<const ToolRow> rows)
    : context_(context), main_(main), rows_(rows) {}

ToolWindows::~ToolWindows() { deleteAll(); }

void ToolWindows::deleteAll() {
    while (!loaded_.empty()) {
        delete loaded_.back().window;
        loaded_.pop_back();
    }
    for (const QPointer<ToolWindow>& window : leaving_)
        delete window;
    leaving_.clear();
}

void ToolWindows::registerRows(CommandTable& table) {
    for (const ToolRow& row : rows_)
        if (*row.item != '\0') table.item(row.item, [this, &row] { open(row.form); });
}

const ToolRow* ToolWindows::rowOf(std::string_view form) const {
    const auto row = std::ranges::find_if(rows_, [form](const ToolRow& each) { return form == each.form; });
    return row == rows_.end() ? nullptr : &*row;
}

ToolWindow* ToolWindows::window(std::string_view form) const {
    for (const Loaded& each : loaded_)
        if (form == each.row->form) return each.window;
    return nullptr;
}

QList<ToolWindow*> ToolWindows::loadedWindows() const {
    QList<ToolWindow*> windows;
    for (const Loaded& each : loaded_)
        windows.append(each.window);
    return windows;
}

void ToolWindows::load(std::string_view form) {
    const ToolRow* row = rowOf(form);
    if (!row || isLoaded(form)) return;
    ToolWindow* made = row->make(context_, &main_);
    loaded_.push_back({row, made});
    made->closed = [this, row] { windowClosed(*row); };
    made->Form_Load();
}

void ToolWindows::open(std::string_view form, const Opening& opening) {
    load(form);
    ToolWindow* opened = window(form);
    if (!opened) return;
    opened->Form_Opened(opening);
    opened->show();
    // Above the window that asked for it, which it may outlive.
    if (opening.above) opened->windowHandle()->setTransientParent(opening.above->window()->windowHandle());
    opened->raise();
    opened->activateWindow();
}

// What it holds goes where it belongs while it is still known.
ToolWindow* ToolWindows::takeOut(std::string_view form) {
    ToolWindow* taken = window(form);
    if (!taken) return nullptr;
    std::erase_if(loaded_, [taken](const Loaded& each) { return each.window == taken; });
    taken->Form_Unload();
    return taken;
}

// It may be closing at this very moment, so that its end waits for the event loop.
void ToolWindows::unload(std::string_view form) {
    ToolWindow* taken = takeOut(form);
    if (!taken) return;
    taken->hide();
    taken->deleteLater();
    std::erase_if(leaving_, [](const QPointer<ToolWindow>& window) { return !window; });
    leaving_.emplace_back(taken);
}

void ToolWindows::unloadAll() {
    while (!loaded_.empty())
        delete takeOut(loaded_.back().row->form);
}

void ToolWindows::windowClosed(const ToolRow& row) {
    if (row.keeping == Keeping::UntilClosed) unload(row.form);
}

} // namespace tabrova
