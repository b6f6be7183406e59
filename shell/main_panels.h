// The panels of the main window: how they are made, placed and painted, which commands they send, and how
// they follow what an act has changed.
#pragma once

#include "shell/bend_panel.h"
#include "shell/fretboard_widget.h"
#include "shell/main_menu.h"
#include "shell/note_selector.h"
#include "shell/page_widget.h"
#include "shell/repeat_panel.h"
#include "shell/status_bar.h"
#include "shell/toolbar.h"
#include "shell/track_chooser.h"
#include "workbench/commands.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>

namespace tabrova {

class MainPanels : private ActObserver {
  public:
    // The panels stand in the window's central widget.
    MainPanels(const ToolContext& context, MainMenu& menu, const CommandTable& table, QMainWindow& window);
    ~MainPanels() override;

    QWidget* clientArea() const { return client_; }
    // Of the client area's size, the screen and the theme.
    void takeSurroundings();
    // Enables or disables all that must stand still during playback.
    void ToggleMenus(bool enabled);
    // The ruler stands in the client area itself: between strip and page, or above the page when the strip is
    // hidden.
    void paintRuler();

  private:
    void actEnded(std::string_view act, const Changes& changes) override;
    void show(const Changes& changes);
    void showTexts(const Changes& changes);
    void showTrackKind();
    void showTracks(const Changes& changes);
    void openPanel(const PanelOpening& opening);
    void showPlace();

    void build();
    void connectPage();
    void connectPanels();
    void connectToolbar();
    void placePanels();
    void zoomPanels();
    void placeTrackChooser();
    void paintRulerGround(QPainter& painter) const;
    void mirrorScrollBar();
    // The page is held closed by playback and by an open panel.
    void enablePage();
    void closePanel(QWidget& panel);
    bool available(const QString& word) const;
    QWidget* panelWidget(Panel panel) const;
    Rect& panelPlace(Panel panel) { return panel == Panel::Bend ? bendPlace_ : repeatPlace_; }

    const ToolContext& context_;
    Workbench& bench_;
    Editor& editor_;
    MainMenu& menu_;
    const CommandTable& table_;
    QMainWindow& window_;
    int pageTop_ = 0; // as it is placed
    Rect bendPlace_;  // in the layout, as these are
    Rect repeatPlace_;

    QWidget* client_;
    Toolbar* toolbar_;
    SurfaceWidget* strip_;
    PageWidget* page_;
    QScrollBar* VScroll1_;
    FretboardWidget* fretboard_;
    StatusBar* statusBar_;
    QLabel* lbldebug_;
    QLabel* stripTitle_;
    NoteSelector* noteSelector_;
    BendPanel* bendPanel_;
    RepeatPanel* repeatPanel_;
    TrackChooser* trackChooser_;
    QAction* stopKeys_; // usable while music plays
};

} // namespace tabrova
