// `frmMain`, the one main window: it puts the workbench, the commands, the panels and the other windows
// together. What is decided is decided in the rooms below.
#pragma once

#include "shell/file_lists.h"
#include "shell/main_menu.h"
#include "shell/main_panels.h"
#include "shell/playback_clock.h"
#include "shell/tool_windows.h"
#include "workbench/program_commands.h"

#include <QMainWindow>

namespace tabrova {

class frmMain : public QMainWindow {
  public:
    using Splash = ProgramCommands::Splash;

    explicit frmMain(Services& services);
    ~frmMain() override;

    // The start of the program.
    void Form_Load(const QString& commandLine, Splash splash);
    // The steps of closing, without a question. Once.
    void endInOrder();
    // Called once, before the first of these steps.
    std::function<void()> ending;
    // Enables or disables all that must stand still during playback.
    void ToggleMenus(bool enabled) { panels_.ToggleMenus(enabled); }
    // The File menu's caption becomes the first line of a file among the installed languages.
    void ApplyLanguagePatch(const QString& name);
    // Size of the client area: all below the menu bar.
    void resizeClient(int width, int height);

    Workbench& bench() { return bench_; }
    Document& document() { return bench_.document; }
    Editor& editor() { return bench_.editor; }
    TabView& view() { return bench_.view; }
    Commands& commands() { return commands_; }
    MainMenu& menu() { return menu_; }
    ToolWindows& tools() { return tools_; }
    QWidget* clientArea() const { return panels_.clientArea(); }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    // A document that is dropped on the window is opened.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void connectMenus();

    Services& services_;
    Workbench bench_;
    MainMenu menu_;
    PlaybackClock clock_;
    ToolWindows tools_;
    Commands commands_;
    ToolContext context_;
    CommandTable table_;
    MainPanels panels_;
    FileLists fileLists_;
    ProgramCommands program_;
};

} // namespace tabrova
