// A modal window runs a loop of its own, so what a user does in it is arranged before it opens: once a window
// of the kind `Window` is shown, `act` is called with it. The test fails if none came.
#pragma once

#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace tabrova {

template <class Window>
class WhenShown {
  public:
    explicit WhenShown(std::function<void(Window&)> act) : act_(std::move(act)) {
        QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] { look(); });
        clock_.start(1);
    }
    WhenShown(const WhenShown&) = delete;
    WhenShown& operator=(const WhenShown&) = delete;
    ~WhenShown() { EXPECT_TRUE(came_) << "no such window was shown"; }

  private:
    void look() {
        auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
        if (!window || !window->isVisible()) return;
        clock_.stop();
        came_ = true;
        act_(*window);
    }

    std::function<void(Window&)> act_;
    QTimer clock_;
    bool came_ = false;
};

} // namespace tabrova
