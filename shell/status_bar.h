// `StatusBar1`: panel 1 shows the current track, panel 2 leads to the options.
#pragma once

#include <QFrame>

#include <functional>

class QLabel;

namespace tabrova {

class StatusBar : public QFrame {
  public:
    explicit StatusBar(QWidget* parent);

    void setTrackPanel(const QString& text);
    QString trackPanel() const;

    std::function<void()> trackPanelClicked;
    std::function<void()> optionsPanelClicked;

  protected:
    // A click between the panels counts for the one that stands there.
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QLabel* track_;
    QLabel* hint_;
};

} // namespace tabrova
