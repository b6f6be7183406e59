// Opens windows by their names. A window is loaded once, whoever asks for it.
#pragma once

#include <string_view>

class QWidget;

namespace tabrova {

class ToolOpener {
  public:
    virtual ~ToolOpener() = default;

    struct Opening {
        QWidget* above = nullptr; // the window that asked for it; the main window if there is none
        int tab = 0;              // of a window with tabs, from 0
    };

    // Whether there is such a window at all.
    virtual bool has(std::string_view form) const = 0;
    virtual bool isLoaded(std::string_view form) const = 0;
    // Loaded and hidden, if it is not loaded yet.
    virtual void load(std::string_view form) = 0;
    virtual void open(std::string_view form, const Opening& opening) = 0;
    void open(std::string_view form) { open(form, Opening()); }
    // Nothing if it is not loaded.
    virtual void unload(std::string_view form) = 0;
    virtual void unloadAll() = 0;
    // The main window comes into view.
    virtual void showMain() = 0;
};

} // namespace tabrova
