#include "shell/status_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace tabrova {

namespace {

// Shows as much of its text as there is room for.
class StatusPanel : public QLabel {
  public:
    using QLabel::QLabel;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft,
                         fontMetrics().elidedText(text(), Qt::ElideRight, width()));
    }
};

QLabel* addPanel(const char* name, int stretch, StatusBar* bar) {
    auto* panel = new StatusPanel(bar);
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
