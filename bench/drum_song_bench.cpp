// A drum song saved and opened. The yardstick is a copy of the same bytes in memory, and `wc -l` on the file.
#include "tools/drum_machine/drum_machine.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <chrono>
#include <cstring>
#include <fstream>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double secondsOfLineCount(const std::string& file) {
    const std::string command = "wc -l " + file + " >/dev/null";
    const auto start = Clock::now();
    constexpr int Rounds = 20;
    for (int round = 0; round < Rounds; ++round)
        if (std::system(command.c_str()) != 0) return 0;
    return secondsSince(start) / Rounds;
}

double secondsOfCopy(std::size_t bytes) {
    const std::string from(bytes, 'x');
    std::string to(bytes, ' ');
    constexpr int Rounds = 100;
    const auto start = Clock::now();
    for (int round = 0; round < Rounds; ++round) {
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::ClobberMemory();
    }
    return secondsSince(start) / Rounds;
}

class Desk {
  public:
    Desk() {
        timers.setFrozen(true);
        for (int row = 0; row < DrumRows; ++row)
            for (int step = 0; step < PatternSteps; step += row % 5 + 1)
                machine.pressStep(row, step);
    }

    std::string file() const { return folder.filePath("song").toStdString(); }

    QTemporaryDir folder;
    TimerList timers;
    RecordingMidiDevice device;
    MidiOutput output{device, [](int) {}};
    DrumMachine machine{output, timers, nullptr};
};

template <class Run>
void measure(benchmark::State& state, Desk& desk, Run run) {
    desk.machine.save(desk.file());
    double total = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        run();
        total += secondsSince(start);
    }
    const double mean = total / static_cast<double>(state.iterations());
    state.counters["times_copy"] = mean / secondsOfCopy(std::filesystem::file_size(desk.file()));
    state.counters["times_wc"] = mean / secondsOfLineCount(desk.file());
}

void SaveSong(benchmark::State& state) {
    Desk desk;
    measure(state, desk, [&] { desk.machine.save(desk.file()); });
}

void OpenSong(benchmark::State& state) {
    Desk desk;
    measure(state, desk, [&] { desk.machine.open(desk.file()); });
}

BENCHMARK(SaveSong)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenSong)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tabrova

BENCHMARK_MAIN();
