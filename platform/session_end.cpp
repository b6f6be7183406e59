#include "platform/session_end.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

namespace tabrova {

namespace {

class SystemSession : public Session {
  public:
    explicit SystemSession(QSessionManager& manager) : manager_(manager) {}
    bool allowsInteraction() override { return manager_.allowsInteraction(); }
    void release() override { manager_.release(); }
    void cancel() override { manager_.cancel(); }

  private:
    QSessionManager& manager_;
};

} // namespace

bool agreesToSessionEnd(Session& session, const std::function<bool()>& ask) {
    if (!session.allowsInteraction()) return true;
    const bool agreed = ask();
    session.release();
    if (!agreed) session.cancel();
    return agreed;
}

SessionEnd::SessionEnd(std::function<bool()> ask) : ask_(std::move(ask)) {
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& manager) {
            SystemSession session(manager);
            asked(session);
        },
        Qt::DirectConnection);
    qGuiApp->installEventFilter(this);
}

// The session's word that the program ends comes as this event; without an agreement before, the window asks
// as if the user had closed it.
bool SessionEnd::eventFilter(QObject* watched, QEvent* event) {
    if (watched != qGuiApp || event->type() != QEvent::Quit || !agreed_) return false;
    QCoreApplication::exit(0);
    return true;
}

} // namespace tabrova
