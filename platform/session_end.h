// A log-out: the session asks the program whether it may end.
#pragma once

#include <QObject>

#include <functional>

class QSessionManager;

namespace tabrova {

// What the session offers while it asks.
class Session {
  public:
    virtual ~Session() = default;
    // Whether the user may be asked something now; waits for other programs that ask.
    virtual bool allowsInteraction() = 0;
    virtual void release() = 0; // the user was asked
    virtual void cancel() = 0;  // there is no log-out
};

// Asks where the session allows it. False: the user wants to stay, and the log-out is cancelled.
bool agreesToSessionEnd(Session& session, const std::function<bool()>& ask);

// Watches the application: when the session asks, `ask` is the document's question (false keeps the program).
// What the session ends afterwards ends without another question, by QCoreApplication::exit(0). A session
// that only saves, or whose log-out another program cancels, ends nothing.
class SessionEnd : public QObject {
  public:
    explicit SessionEnd(std::function<bool()> ask);
    void asked(Session& session) { agreed_ = agreesToSessionEnd(session, ask_); }
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::function<bool()> ask_;
    bool agreed_ = false;
};

} // namespace tabrova
