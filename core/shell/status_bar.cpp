#include "core/shell/status_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

namespace tabrova {

namespace {

QLabel* addPanel(const char* name, int stretch, StatusBar* bar) {
    auto* panel = new QLabel(bar);
    panel->setObjectName(name);
    panel->setTextFormat(Qt::PlainText);
    panel->setCursor(Qt::PointingHandCursor);
    panel->setMinimumWidth(0);
    panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    static_cast<QHBoxLayout*>(bar->layout())->addWidget(panel, stretch);
    return panel;
}

} // namespace

StatusBar::StatusBar(QWidget* parent) : QFrame(parent) {
    setObjectName("StatusBar1");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 0, 8, 0);
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
