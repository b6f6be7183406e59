// `picRepeat`: how many times a closed repeat plays its passage again. The arrow keys change, Enter stores
// and closes.
#pragma once

#include "shell/panel_zoom.h"

#include <QFrame>
#include <QScrollBar>

#include <functional>
#include <optional>

class QLabel;

namespace tabrova {

// `RepeatScroller`: Enter in it ends the panel.
class RepeatScroller : public QScrollBar {
  public:
    explicit RepeatScroller(QWidget* parent);
    std::function<void()> entered;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

class RepeatPanel : public QFrame {
  public:
    explicit RepeatPanel(QWidget* parent);

    // Enter: the value, 1 to 15. It stays for the next opening.
    std::function<void(int value)> chosen;
    void setZoom(int percent) { zoom_->set(percent); }
    QSize unzoomedSize() const { return zoom_->unzoomedSize(); }
    RepeatScroller& scroller() { return *scroller_; }

  private:
    RepeatScroller* scroller_;
    QLabel* lblRepeatTimes_;
    std::optional<PanelZoom> zoom_; // as soon as the panel has its parts
};

} // namespace tabrova
