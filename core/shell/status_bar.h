// `StatusBar1`: panel 1 shows the current track, panel 2 leads to the options.
#pragma once

#include <QFrame>

class QLabel;

namespace tabrova {

class StatusBar : public QFrame {
  public:
    explicit StatusBar(QWidget* parent);

    void setTrackPanel(const QString& text);
    QString trackPanel() const;

  private:
    QLabel* track_;
    QLabel* hint_;
};

} // namespace tabrova
