#include "shell/status_bar.h"

#include "forms/elided_label.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

namespace tabrova {

namespace {

QLabel* addPanel(const char* name, int stretch, StatusBar* bar) {
    auto* panel = new ElidedLabel(name, Qt::ElideRight, bar);
    panel->setCursor(Qt::PointingHandCursor);
    static_cast<QHBoxLayout*>(bar->layout())->addWidget(panel, stretch);
    return panel;
}

} // namespace

StatusBar::StatusBar(QWidget* parent) : QFrame(parent) {
    setObjectName("StatusBar1");
    // The neck comes down behind it.
    setAutoFillBackground(true);
    auto* row = new QHBoxLayout(this);
    // The track list comes down to 16 pixels above the window's lower edge.
    row->setContentsMargins(8, 7, 8, 0);
    row->setSpacing(16);
    track_ = addPanel("StatusBar1(1)", 2, this);
    hint_ = addPanel("StatusBar1(2)", 3, this);
}

void StatusBar::setTrackPanel(const QString& text) { track_->setText(text); }

void StatusBar::mousePressEvent(QMouseEvent* event) {
    const auto& clicked = event->position().x() < hint_->x() ? trackPanelClicked : optionsPanelClicked;
    if (clicked) clicked();
}

QString StatusBar::trackPanel() const { return track_->text(); }

} // namespace tabrova
