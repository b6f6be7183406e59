// One tick of 1024 tracks with a note in every cell, against the shortest interval and against a copy of the
// messages it sends: into a device that only counts, and into the built-in synthesizer on a real audio
// output.
#include "bench/large_document.h"
#include "core/document/document_operations.h"
#include "sound/devices/system_midi_device.h"
#include "sound/playback.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <chrono>
#include <cstring>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;
constexpr double ShortestInterval = 0.015; // seconds

class CountingDevice : public MidiDevice {
  public:
    explicit CountingDevice(MidiDevice* behind) : behind_(behind) {}
    int midiOutGetNumDevs() override { return 0; }
    std::optional<QString> midiOutGetDevCapsA(int) const override { return std::nullopt; }
    int midiOutOpen(std::uint32_t& handle, int id) override {
        handle = 1;
        return behind_ ? behind_->midiOutOpen(handle, id) : 0;
    }
    int midiOutClose(std::uint32_t handle) override { return behind_ ? behind_->midiOutClose(handle) : 0; }
    int midiOutShortMsg(std::uint32_t handle, const ShortMessage& message) override {
        ++messages;
        return behind_ ? behind_->midiOutShortMsg(handle, message) : 0;
    }
    QString midiOutGetErrorTextA(int) const override { return {}; }
    std::size_t messages = 0;

  private:
    MidiDevice* behind_;
};

// Every cell of every track holds a fret.
void fill(Document& document) {
    makeLargeDocument(document, 0);
    for (int row = 0; row < document.RowCapacity; ++row)
        for (int column = 0; column < ColumnsPerStaff; ++column)
            document.setNote(column, row, std::to_string((row + column) % 20));
}

double copySeconds(std::size_t bytes) {
    const std::vector<char> from(bytes, 1);
    std::vector<char> to(bytes, 2);
    double best = 1.0;
    for (int run = 0; run < 40; ++run) {
        const auto start = Clock::now();
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::DoNotOptimize(to.data());
        best = std::min(best, std::chrono::duration<double>(Clock::now() - start).count());
    }
    return best;
}

void play(benchmark::State& state, MidiDevice* behind) {
    Document document;
    fill(document);
    CountingDevice device(behind);
    MidiOutput output(device, [](int) { std::abort(); });
    output.OpenMidiDevice(MidiMapperId);
    double total = 0.0;
    double worst = 0.0;
    PlaybackState position;
    for (auto _ : state) {
        position.PlaybackPosition %= ColumnsPerStaff;
        const auto start = Clock::now();
        playTick(document, position, output);
        const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
        total += seconds;
        worst = std::max(worst, seconds);
    }
    output.AllNotesOff();
    output.CloseMidiDevice();
    const auto ticks = static_cast<double>(state.iterations());
    const double messages = static_cast<double>(device.messages) / ticks;
    state.counters["of_interval"] = total / ticks / ShortestInterval;
    state.counters["worst_of_interval"] = worst / ShortestInterval;
    state.counters["messages"] = messages;
    state.counters["messages_s"] = messages * ticks / total;
    state.counters["times_copy"] =
        total / ticks / copySeconds(static_cast<std::size_t>(messages) * sizeof(ShortMessage));
}

void TickIntoCounter(benchmark::State& state) { play(state, nullptr); }

void TickIntoSynthesizer(benchmark::State& state) {
    FluidSynthesizer synthesizer({{}, {}, {}, systemBankFolders()});
    SystemMidiDevice device(synthesizer);
    std::uint32_t handle = 0;
    device.midiOutOpen(handle, MidiMapperId);
    synthesizer.waitUntilLoaded();
    const SynthesizerState told = synthesizer.state();
    device.midiOutClose(handle);
    if (told.output.isEmpty() || told.bank.isEmpty())
        return state.SkipWithError(told.trouble.toStdString().c_str());
    state.SetLabel(told.output.toStdString());
    play(state, &device);
}

BENCHMARK(TickIntoCounter)->Unit(benchmark::kMillisecond);
BENCHMARK(TickIntoSynthesizer)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tabrova

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
