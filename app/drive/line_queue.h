// Lines from standard input, read on a thread of their own so that the program's event loop runs on between
// them.
#pragma once

#include <QString>

#include <deque>
#include <mutex>
#include <optional>

namespace tabrova {

class LineQueue {
  public:
    LineQueue();

    // The next line; std::nullopt while there is none or the input has ended.
    std::optional<QString> take();
    bool ended();

  private:
    void readAll();

    std::mutex mutex_;
    std::deque<QString> lines_;
    bool ended_ = false;
};

} // namespace tabrova
