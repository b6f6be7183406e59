// The system asks the program to end: by a signal where there are signals, else never.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace tabrova {

// From the first signal on (SIGTERM, SIGINT, SIGHUP) `asked` is called whenever an event loop of the
// constructing thread runs, so that a box that is still opened meets it too. The second signal ends the
// program at once. A signal that was ignored when the program started stays ignored. One object at a time.
class EndSignals {
  public:
    explicit EndSignals(std::function<void()> asked);
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
    ~EndSignals();

  private:
    struct Pipe;
    std::unique_ptr<Pipe> pipe_; // null where there are no signals
};

} // namespace tabrova
