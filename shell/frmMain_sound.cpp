// Playback in the main window: the two play commands, stop and the timers.
#include "core/document/document_operations.h"
#include "shell/frmMain.h"

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

void frmMain::makeTimers() {
    tmrsndStopper_ = new WindowTimer(
        services_.timers, "tmrsndStopper", 250,
        [this] {
            sound_.AllNotesOff();
            tmrsndStopper_->setEnabled(false);
        },
        this);
    Hitime1_ = new ctlHiPreTimer("Hitime1", services_.timerService, services_.timers,
                                 ctlHiPreTimer::Host::Running, this);
    Hitime1_->ReadProperties(SavedHitime1());
    Hitime1_->Timer = [this] { HiTime1_Timer(); };
}

// A tempo that gives no interval starts nothing.
void frmMain::play(PlayFrom from) {
    const auto interval = playbackInterval(document_.Tempo, loadFrmFileProperties().speedBoost());
    if (!interval) return;
    ToggleMenus(false);
    if (from == PlayFrom::Cursor) GetCurrentXPosition(document_);
    document_.playback = playbackStart(document_, from);
    StartPlayback(*interval);
}

void frmMain::mnuPlaybackStop() {
    sound_.AllNotesOff();
    StopTimer();
}

void frmMain::StartPlayback(int interval) {
    Hitime1_->setInterval(interval);
    Hitime1_->setEnabledProperty(true);
}

void frmMain::StopTimer() {
    document_.playback.PlaybackPosition = 0;
    Hitime1_->setEnabledProperty(false);
    ToggleMenus(true);
}

void frmMain::HiTime1_Timer() {
    // A tick that was posted before the stop: nothing may sound after it.
    if (!playing()) return;
    if (playTick(document_, document_.playback, sound_) == TickResult::Playing) return;
    StopTimer();
    sound_.AllNotesOff();
}

} // namespace tabrova
