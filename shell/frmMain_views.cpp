// The two views beside the page: the notation strip above it and the virtual fretboard at its right.
#include "shell/frmMain.h"
#include "shell/key_mapping.h"

namespace tabrova {

void frmMain::connectViews() {
    menu_->connectItem("mnuViewNotation", [this] { mnuViewNotation(); });
    menu_->connectItem("mnuVirtualFretboard", [this] { mnuVirtualFretboard(); });
    FretboardWidget::Handlers handlers;
    handlers.mouseDown = [this](int button, int x, int y) {
        editor_.picFretboard_MouseDown(mouseButtonOf(button), x, y);
    };
    handlers.doubleClick = [this] { menu_->action("mnuChordManager")->trigger(); };
    fretboard_->setHandlers(std::move(handlers));
}

// The strip opens only on a guitar track; it can be closed on any.
void frmMain::mnuViewNotation() {
    const bool show = menu_->isChecked("mnuViewNotation");
    if (show && !document_.isGuitarTrack(document_.CurrentTrack))
        return menu_->setChecked("mnuViewNotation", false);
    const int top = layout_.picDocument.top;
    layout_ = withStrip(layout_, show);
    // An open panel stays beside the cursor.
    for (QWidget* panel : {static_cast<QWidget*>(bendPanel_), static_cast<QWidget*>(repeatPanel_)})
        panel->move(panel->x(), panel->y() + layout_.picDocument.top - top);
    Form_Resize();
    editor_.page().vLine1Visible = !show;
    refreshPage();
}

// The page gives the neck its room, or takes it back.
void frmMain::mnuVirtualFretboard() {
    layout_.fretboardShown = menu_->isChecked("mnuVirtualFretboard");
    Form_Resize();
}

int frmMain::clientHeight() const { return client_->height(); }

QRgb frmMain::inlayColor() const { return quietInlayColor(palette().color(QPalette::Mid).rgb()); }

} // namespace tabrova
