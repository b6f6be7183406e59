#include "shell/status_bar.h"

#include <QHBoxLayout>
#include <QMouseEvent>

namespace tabrova {

namespace {

// The track list comes down to 16 pixels above the window's lower edge.
constexpr QMargins Margins = {8, 7, 8, 0};

} // namespace

StatusPanel* StatusBar::addPanel(const char* name, int stretch, std::function<void()> StatusBar::*clicked) {
    auto* panel = new StatusPanel(name, this);
    panel->pressed = [this, clicked] {
        if (this->*clicked) (this->*clicked)();
    };
    panel->left = [this] {
        if (left) left();
    };
    static_cast<QHBoxLayout*>(layout())->addWidget(panel, stretch);
    return panel;
}

StatusBar::StatusBar(QWidget* parent) : QFrame(parent) {
    setObjectName("StatusBar1");
    // The neck comes down behind it.
    setAutoFillBackground(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Margins);
    row->setSpacing(16);
    track_ = addPanel("StatusBar1(1)", 0, &StatusBar::trackPanelClicked);
    hint_ = addPanel("StatusBar1(2)", 0, &StatusBar::optionsPanelClicked);
    place_ = addPanel("StatusBar1(3)", 1, &StatusBar::placePanelClicked);
    // Alive also while all that can be pressed stands still.
    QPalette awake = place_->palette();
    awake.setColor(QPalette::Disabled, QPalette::WindowText,
                   awake.color(QPalette::Active, QPalette::WindowText));
    place_->setPalette(awake);
}

void StatusBar::setPlacePanel(const QString& text, const QString& whole) {
    if (place_->text() != text) place_->setText(text);
    if (place_->toolTip() != whole) place_->setToolTip(whole);
}

void StatusBar::setRoomAtRight(int width) {
    layout()->setContentsMargins(Margins + QMargins(0, 0, width, 0));
}

void StatusBar::mousePressEvent(QMouseEvent* event) {
    const double x = event->position().x();
    const auto& clicked = x < hint_->x()    ? trackPanelClicked
                          : x < place_->x() ? optionsPanelClicked
                                            : placePanelClicked;
    if (clicked) clicked();
}

} // namespace tabrova
