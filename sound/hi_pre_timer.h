// `ctlHiPreTimer`, the millisecond clock of playback: a small control that raises a Timer event on the
// user-interface thread at a finer rate than a window timer gives.
//
// The service's thread does one thing, it posts a character to this control's window; the control turns the
// character back into an event when the thread's loop reaches it. So ticks wait in the queue, never overlap
// and are never lost, and one that was posted shortly before stop still arrives afterwards: a handler must
// bear it.
#pragma once

#include "platform/timer_service.h"
#include "platform/window_timer.h"

#include <QVariant>
#include <QWidget>

namespace tabrova {

// Where a control's properties are saved, in the order of writing.
class PropertyBag {
  public:
    virtual ~PropertyBag() = default;
    virtual QVariant ReadProperty(const QString& name, const QVariant& otherwise) const = 0;
    virtual void WriteProperty(const QString& name, const QVariant& value, const QVariant& otherwise) = 0;
};

class ctlHiPreTimer : public QWidget, public ListedTimer {
  public:
    enum class Host { Running, Design };

    ctlHiPreTimer(const QString& name, TimerService& service, TimerList& list, Host host, QWidget* parent);
    ~ctlHiPreTimer() override;

    std::function<void()> Timer; // the event

    QString Tag; // saved, not interpreted

    bool Enabled() const { return Enabled_; }
    // true starts the timer, also when it runs; the property stays false if the service has no timer for it.
    void setEnabledProperty(bool enabled);
    bool Periodic() const { return Periodic_; }
    // A running timer keeps its old mode until it is restarted.
    void setPeriodic(bool periodic) { Periodic_ = periodic; }
    // Milliseconds, at least 1 once it was written; a running timer is restarted.
    std::int32_t Interval() const { return Interval_; }
    void setInterval(std::int32_t milliseconds);
    // Milliseconds, brought into the service's periods; a running timer is not restarted.
    std::int32_t Resolution() const { return Resolution_; }
    void setResolution(std::int32_t milliseconds);

    // Saved values go into the fields as they are, without bringing them into any range; Enabled comes last
    // and starts the timer.
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    int timerInterval() const override { return Interval_; }
    bool timerEnabled() const override { return Enabled_; }
    bool fire() override;

  protected:
    // The character 10 is a tick, also one that was typed.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool start();
    bool stop();
    void runClock() override;

    std::uint32_t timerId_ = 0;
    std::int32_t Interval_ = 1000;
    std::int32_t Resolution_ = 10000;
    std::int32_t wPeriodMin_;
    std::int32_t wPeriodMax_;
    bool Periodic_ = false;
    bool Enabled_ = false;

    TimerService& service_;
    Host host_;
};

} // namespace tabrova
