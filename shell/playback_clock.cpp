#include "shell/playback_clock.h"

namespace tabrova {

namespace {

// The saved properties of the playback timer. Resolution 0 asks for the greatest accuracy there is.
class SavedHitime1 : public PropertyBag {
  public:
    QVariant ReadProperty(const QString& name, const QVariant& otherwise) const override {
        if (name == "Interval" || name == "Resolution") return 0;
        return name == "Periodic" ? QVariant(true) : otherwise;
    }
    void WriteProperty(const QString&, const QVariant&, const QVariant&) override {}
};

} // namespace

PlaybackClock::PlaybackClock(TimerService& service, TimerList& timers, QWidget* form,
                             std::function<void()> tick)
    : Hitime1_(new ctlHiPreTimer("Hitime1", service, timers, ctlHiPreTimer::Host::Running, form)) {
    Hitime1_->ReadProperties(SavedHitime1());
    Hitime1_->Timer = std::move(tick);
}

} // namespace tabrova
