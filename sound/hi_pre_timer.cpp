#include "sound/hi_pre_timer.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>

namespace tabrova {

namespace {

constexpr QEvent::Type WM_CHAR = QEvent::KeyPress;
constexpr char TickCharacter = 10;

void PostMessageA(QObject* window, QEvent::Type message, char character) {
    QCoreApplication::postEvent(window, new QKeyEvent(message, 0, Qt::NoModifier, QChar(character)));
}

// Runs on the service's thread: posts, and touches no field of the control.
void postTick(void* window) { PostMessageA(static_cast<QObject*>(window), WM_CHAR, TickCharacter); }

} // namespace

ctlHiPreTimer::ctlHiPreTimer(const QString& name, TimerService& service, TimerList& list, Host host,
                             QWidget* parent)
    : QWidget(parent), ListedTimer(list, name), service_(service), host_(host) {
    setObjectName(name);
    setFixedSize(155, 30);
    setVisible(host == Host::Design);
    const TimeCaps caps = service_.timeGetDevCaps();
    wPeriodMin_ = caps.wPeriodMin;
    wPeriodMax_ = caps.wPeriodMax;
}

ctlHiPreTimer::~ctlHiPreTimer() { stop(); }

void ctlHiPreTimer::setEnabledProperty(bool enabled) {
    if (!enabled) {
        Enabled_ = !stop();
    } else if (host_ == Host::Design) {
        Enabled_ = true;
    } else {
        Enabled_ = start();
    }
}

void ctlHiPreTimer::setInterval(std::int32_t milliseconds) {
    Interval_ = std::max(milliseconds, 1);
    setEnabledProperty(Enabled());
}

void ctlHiPreTimer::setResolution(std::int32_t milliseconds) {
    Resolution_ = std::clamp(milliseconds, wPeriodMin_, wPeriodMax_);
}

bool ctlHiPreTimer::start() {
    stop();
    QObject* window = this;
    timerId_ = service_.timeSetEvent(Interval_, Resolution_, postTick, window,
                                     Periodic_ ? TIME_PERIODIC : TIME_ONESHOT);
    const bool started = timerId_ != 0;
    if (frozen()) runClock(); // also what it has posted already
    return started;
}

bool ctlHiPreTimer::stop() {
    if (timerId_ != 0) service_.timeKillEvent(timerId_);
    timerId_ = 0;
    return true;
}

void ctlHiPreTimer::runClock() {
    if (frozen()) {
        stop();
        QCoreApplication::removePostedEvents(this, WM_CHAR);
    } else if (Enabled_ && host_ == Host::Running) {
        start();
    }
}

bool ctlHiPreTimer::fire() {
    if (!Enabled_) return false;
    if (Timer) Timer();
    return true;
}

void ctlHiPreTimer::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (event->text() == QChar(TickCharacter) && Timer) Timer();
}

void ctlHiPreTimer::ReadProperties(const PropertyBag& bag) {
    Interval_ = bag.ReadProperty("Interval", 1000).toInt();
    Periodic_ = bag.ReadProperty("Periodic", false).toBool();
    Resolution_ = bag.ReadProperty("Resolution", 10000).toInt();
    Tag = bag.ReadProperty("Tag", "").toString();
    setEnabledProperty(bag.ReadProperty("Enabled", false).toBool());
}

void ctlHiPreTimer::WriteProperties(PropertyBag& bag) const {
    bag.WriteProperty("Interval", Interval_, 1000);
    bag.WriteProperty("Periodic", Periodic_, false);
    bag.WriteProperty("Resolution", Resolution_, 10000);
    bag.WriteProperty("Tag", Tag, "");
    bag.WriteProperty("Enabled", Enabled(), false);
}

} // namespace tabrova
