// A log-out asks the document's question where the session allows it, and what it ends asks nothing again.
#include "platform/session_end.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

using Log = std::vector<std::string>;

class WritingSession : public Session {
  public:
    WritingSession(bool interaction, Log& log) : interaction_(interaction), log_(log) {}
    bool allowsInteraction() override { return interaction_; }
    void release() override { log_.push_back("release"); }
    void cancel() override { log_.push_back("cancel"); }

  private:
    bool interaction_;
    Log& log_;
};

class SessionEnds : public ::testing::Test {
  protected:
    void logOut(bool interaction) {
        WritingSession session(interaction, log);
        end.asked(session);
    }
    // What the session sends when the program is to go.
    static bool endsByItself() {
        QTimer late;
        late.callOnTimeout([] { QCoreApplication::exit(7); });
        late.start(200);
        QTimer::singleShot(0, [] {
            QEvent quit(QEvent::Quit);
            QCoreApplication::sendEvent(qApp, &quit);
        });
        return QCoreApplication::exec() == 0;
    }

    Log log;
    bool stays = false;
    SessionEnd end{[this] {
        log.push_back("ask");
        return !stays;
    }};
};

TEST_F(SessionEnds, AskWhereTheUserMayBeAsked) {
    logOut(true);
    EXPECT_EQ(log, (Log{"ask", "release"}));
}

TEST_F(SessionEnds, AreCancelledByTheUser) {
    stays = true;
    logOut(true);
    EXPECT_EQ(log, (Log{"ask", "release", "cancel"}));
}

TEST_F(SessionEnds, AskNothingWhereTheUserMayNotBeAsked) {
    stays = true;
    logOut(false);
    EXPECT_EQ(log, Log{});
    EXPECT_TRUE(endsByItself());
}

TEST_F(SessionEnds, EndTheProgramAfterTheAgreementOnly) {
    stays = true;
    logOut(true);
    QWidget window; // stands for one that asks when it is closed
    struct Refusing : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() != QEvent::Close) return false;
            event->ignore();
            return true;
        }
    } refusing;
    window.installEventFilter(&refusing);
    window.show();
    EXPECT_FALSE(endsByItself());
    stays = false;
    logOut(true);
    EXPECT_TRUE(endsByItself());
    EXPECT_EQ(log, (Log{"ask", "release", "cancel", "ask", "release"})) << "once for each log-out";
    stays = true;
    logOut(true);
    EXPECT_FALSE(endsByItself()) << "the last answer counts";
}

TEST_F(SessionEnds, LeaveAllOtherEventsAlone) {
    logOut(false);
    QEvent other(QEvent::ApplicationActivate);
    EXPECT_FALSE(end.eventFilter(qApp, &other));
    QObject object;
    QEvent quit(QEvent::Quit);
    EXPECT_FALSE(end.eventFilter(&object, &quit));
}

} // namespace
} // namespace tabrova
