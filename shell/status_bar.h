// `StatusBar1`: panel 1 shows the current track, panel 2 leads to the options, panel 3 tells where the cursor
// stands or what plays, how fast, and why nothing is heard.
#pragma once

#include "shell/status_panel.h"

#include <QFrame>

#include <functional>

namespace tabrova {

class StatusBar : public QFrame {
  public:
    explicit StatusBar(QWidget* parent);

    void setTrackPanel(const QString& text) { track_->setText(text); }
    // `whole` is its hint: what the line says, in full.
    void setPlacePanel(const QString& text, const QString& whole);
    // Room at the right for what stands above the bar, in pixels.
    void setRoomAtRight(int width);
    QString trackPanel() const { return track_->text(); }
    QString placePanel() const { return place_->text(); }

    std::function<void()> trackPanelClicked;
    std::function<void()> optionsPanelClicked;
    std::function<void()> placePanelClicked;
    // The keyboard is given back.
    std::function<void()> left;

  protected:
    // A click between the panels counts for the one that stands there.
    void mousePressEvent(QMouseEvent* event) override;

  private:
    StatusPanel* addPanel(const char* name, int stretch, std::function<void()> StatusBar::*clicked);

    StatusPanel* track_;
    StatusPanel* hint_;
    StatusPanel* place_;
};

} // namespace tabrova
