// Where the main window stands on the screen: its first size, its least size, and what is remembered of it
// from run to run, the two views included.
#pragma once

#include "shell/frmMain.h"

namespace tabrova {

// The zoom, in percent, for a screen with this much room, in its own unit: large screens show large pages.
int zoomForScreen(const QSize& available);

class WindowPlace : private ActObserver {
  public:
    WindowPlace(frmMain& window, SettingsStore& settings);
    ~WindowPlace() override;

    // Before the window shows: as it was remembered, else in the middle of the screen and no larger than it.
    void restore();
    // When the program has started: the views as they were.
    void restoreViews();
    void remember() const;

  private:
    void actEnded(std::string_view act, const Changes& changes) override;
    // So that the scroll bar is seen at every size and zoom.
    void limitSize();

    frmMain& window_;
    SettingsStore& settings_;
};

} // namespace tabrova
