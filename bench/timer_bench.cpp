// How late the playback timer's ticks are, over 2,000 ticks of 15 ms: with an idle and with a busy
// user-interface thread. The yardstick is a plain loop that sleeps to the same deadlines.
#include "sound/hi_pre_timer.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>
#include <numeric>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int Interval = 15; // milliseconds
constexpr std::size_t Ticks = 2000;
constexpr std::size_t YardstickTicks = 200;

double millisecondsSince(Clock::time_point due) {
    return std::chrono::duration<double, std::milli>(Clock::now() - due).count();
}

double meanOf(const std::vector<double>& values, std::size_t from, std::size_t to) {
    const auto begin = values.begin();
    const auto at = [begin](std::size_t n) { return begin + static_cast<std::ptrdiff_t>(n); };
    return std::accumulate(at(from), at(to), 0.0) / static_cast<double>(to - from);
}

double sleepLateness() {
    std::vector<double> late;
    const auto start = Clock::now();
    for (std::size_t n = 1; n <= YardstickTicks; ++n) {
        const auto due = start + std::chrono::milliseconds(Interval) * n;
        std::this_thread::sleep_until(due);
        late.push_back(millisecondsSince(due));
    }
    return meanOf(late, 0, late.size());
}

void work(int milliseconds) {
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (Clock::now() < end)
        benchmark::ClobberMemory();
}

// The lateness of each tick's event. Every event works for `busy` milliseconds, and every fiftieth for three
// intervals.
std::vector<double> tickLateness(int busy) {
    SystemTimerService service;
    TimerList list;
    ctlHiPreTimer timer("Hitime1", service, list, ctlHiPreTimer::Host::Running, nullptr);
    std::vector<double> late;
    Clock::time_point start;
    timer.Timer = [&] {
        const auto n = late.size() + 1;
        late.push_back(millisecondsSince(start + std::chrono::milliseconds(Interval) * n));
        if (busy > 0) work(n % 50 == 0 ? 3 * Interval : busy);
    };
    timer.setPeriodic(true);
    timer.setInterval(Interval);
    start = Clock::now();
    timer.setEnabledProperty(true);
    while (late.size() < Ticks)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return late;
}

void TickLateness(benchmark::State& state) {
    for (auto _ : state) {
        const auto late = tickLateness(static_cast<int>(state.range(0)));
        const auto within =
            std::count_if(late.begin(), late.end(), [](double value) { return value <= 1.0; });
        state.counters["within_1ms_%"] = 100.0 * static_cast<double>(within) / Ticks;
        state.counters["mean_ms"] = meanOf(late, 0, Ticks);
        state.counters["first_half_ms"] = meanOf(late, 0, Ticks / 2);
        state.counters["second_half_ms"] = meanOf(late, Ticks / 2, Ticks);
        state.counters["worst_ms"] = *std::max_element(late.begin(), late.end());
        state.counters["times_sleep"] = meanOf(late, 0, Ticks) / sleepLateness();
    }
}

BENCHMARK(TickLateness)->ArgName("busy_ms")->Arg(0)->Arg(6)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace
} // namespace tabrova

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
