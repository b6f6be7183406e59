#include "sound/devices/fluid_synthesizer.h"

#include "platform/paths.h"
#include "sound/devices/fluid_engine.h"

#include <array>
#include <mutex>
#include <optional>

namespace tabrova {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int HighestData = 127;
constexpr int StatusProgram = 0xC0;
constexpr std::chrono::milliseconds WatchInterval(500);

} // namespace

// What the window's thread and the calls share.
struct FluidSynthesizer::Shared {
    Shared(std::shared_ptr<SoundEngine> played, QObject* told) : engine(std::move(played)), window(told) {}

    void load(const SoundBankPlaces& places, int opening, const std::function<void()>& tell);
    void closeOutput();
    QString openOutput();
    void finishLoading(const QString& trouble, int opening);
    bool isOpening(int opening) const;
    void setWaiting(bool waiting);
    void tellChanged(const std::function<void()>& tell);

    const std::shared_ptr<SoundEngine> engine;

    mutable std::mutex mutex; // guards what follows
    QObject* window;          // null when nobody is to be told any more
    bool ready = false;
    int opened = 0;                                       // the number of the last opening
    std::optional<Clock::time_point> waiting;             // since when a server has been asked
    SynthesizerState state;                               // but for a server that does not answer
    std::array<std::optional<std::uint8_t>, 16> programs; // chosen while the bank loads
};

FluidSynthesizer::FluidSynthesizer(SoundBankPlaces places)
    : FluidSynthesizer(std::move(places), std::make_shared<FluidEngine>()) {}

FluidSynthesizer::FluidSynthesizer(SoundBankPlaces places, std::shared_ptr<SoundEngine> engine)
    : places_(std::move(places)), shared_(std::make_shared<Shared>(std::move(engine), &watch_)) {
    watch_.setInterval(WatchInterval);
    watch_.callOnTimeout([this] { watch(); });
}

FluidSynthesizer::~FluidSynthesizer() {
    close();
    const std::lock_guard lock(shared_->mutex);
    shared_->window = nullptr;
}

void FluidSynthesizer::open() {
    close();
    int opening = 0;
    {
        const std::lock_guard lock(shared_->mutex);
        opening = ++shared_->opened;
        shared_->programs = {};
        shared_->state.running = true;
        shared_->state.loading = true;
        shared_->state.trouble.clear();
    }
    const auto tell = [this] { tellChange(); };
    calls_.post([shared = shared_, places = places_, opening, tell] { shared->load(places, opening, tell); });
    watch_.start();
    shared_->tellChanged(tell);
}

// The output goes in the background if its server takes its time.
void FluidSynthesizer::close() {
    {
        const std::lock_guard lock(shared_->mutex);
        ++shared_->opened;
        shared_->ready = false;
        shared_->state.running = false;
        shared_->state.loading = false;
        shared_->state.output.clear();
    }
    calls_.post([shared = shared_] { shared->closeOutput(); });
    calls_.finishes(AnswerTime);
    shared_->tellChanged([this] { tellChange(); });
}

void FluidSynthesizer::waitUntilLoaded() {
    while (!calls_.finishes(HangTime)) {
    }
}

void FluidSynthesizer::useBank(const QString& file) {
    places_.setting = pathOf(file);
    if (state().running) open();
}

SynthesizerState FluidSynthesizer::state() const {
    const std::lock_guard lock(shared_->mutex);
    SynthesizerState told = shared_->state;
    if (told.loading && shared_->waiting && Clock::now() - *shared_->waiting > HangTime)
        told.trouble = sound_trouble::NoAnswer;
    return told;
}

// Tells once that a server does not answer; when it does, that is told like any other loading.
void FluidSynthesizer::watch() {
    const SynthesizerState told = state();
    if (told.loading && told.trouble.isEmpty()) return;
    watch_.stop();
    if (told.loading) tellChange();
}

void FluidSynthesizer::send(const ShortMessage& message) {
    if (message[1] > HighestData || message[2] > HighestData) return;
    const std::lock_guard lock(shared_->mutex);
    if (shared_->ready) return shared_->engine->play(message);
    if ((message[0] & 0xF0) == StatusProgram) shared_->programs[message[0] & 0x0F] = message[1];
}

void FluidSynthesizer::Shared::tellChanged(const std::function<void()>& tell) {
    const std::lock_guard lock(mutex);
    if (window) QMetaObject::invokeMethod(window, tell, Qt::QueuedConnection);
}

bool FluidSynthesizer::Shared::isOpening(int opening) const {
    const std::lock_guard lock(mutex);
    return opening == opened;
}

void FluidSynthesizer::Shared::setWaiting(bool isWaiting) {
    const std::lock_guard lock(mutex);
    waiting = isWaiting ? std::optional(Clock::now()) : std::nullopt;
}

// What was closed again meanwhile is not opened any further.
void FluidSynthesizer::Shared::load(const SoundBankPlaces& places, int opening,
                                    const std::function<void()>& tell) {
    if (!isOpening(opening)) return;
    QString trouble = engine->loadBank(places);
    if (!engine->bank().empty() && isOpening(opening)) trouble += openOutput();
    finishLoading(trouble.trimmed(), opening);
    tellChanged(tell);
}

QString FluidSynthesizer::Shared::openOutput() {
    setWaiting(true);
    const QString trouble = engine->openOutput();
    setWaiting(false);
    return trouble;
}

void FluidSynthesizer::Shared::closeOutput() {
    setWaiting(true);
    engine->closeOutput();
    setWaiting(false);
}

void FluidSynthesizer::Shared::finishLoading(const QString& trouble, int opening) {
    const std::lock_guard lock(mutex);
    state.bank = textOf(engine->bank());
    if (opening != opened) return;
    state.loading = false;
    state.output = engine->output();
    state.trouble = trouble;
    ready = !engine->output().isEmpty() && !engine->bank().empty();
    if (!ready) return;
    std::uint8_t status = StatusProgram;
    for (const auto& program : programs) {
        if (program) engine->play({status, *program, 0});
        ++status;
    }
}

} // namespace tabrova
