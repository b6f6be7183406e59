// Open, save and growth of the largest document, each against `wc -l` on the same file in the same run.
#include "bench/large_document.h"
#include "core/document/document_file.h"
#include "core/document/document_operations.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;

double milliseconds(Clock::duration time) { return std::chrono::duration<double, std::milli>(time).count(); }

std::filesystem::path largeFile() { return std::filesystem::temp_directory_path() / "tabrova_bench.tr3"; }

// The whole process, as a user would time it; the best of several runs.
double wordCountMilliseconds() {
    const std::string command = "wc -l '" + largeFile().string() + "' > /dev/null";
    double best = 1e9;
    for (int run = 0; run < 7; ++run) {
        const auto start = Clock::now();
        if (std::system(command.c_str()) != 0) std::abort();
        best = std::min(best, milliseconds(Clock::now() - start));
    }
    return best;
}

double residentMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024.0;
    return 0.0;
}

template <class Work>
void measureAgainstWordCount(benchmark::State& state, Work work) {
    double total = 0.0;
    std::int64_t runs = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        work();
        const auto time = Clock::now() - start;
        state.SetIterationTime(std::chrono::duration<double>(time).count());
        total += milliseconds(time);
        ++runs;
    }
    state.counters["times_wc"] = total / static_cast<double>(runs) / wordCountMilliseconds();
    state.counters["peak_MB"] = residentMegabytes();
}

void SaveLargeDocument(benchmark::State& state) {
    Document document;
    makeLargeDocument(document, static_cast<int>(state.range(0)));
    saveDocument(document, largeFile());
    measureAgainstWordCount(state, [&] { saveDocument(document, largeFile()); });
}

void OpenLargeDocument(benchmark::State& state) {
    Document document;
    makeLargeDocument(document, static_cast<int>(state.range(0)));
    saveDocument(document, largeFile());
    resetToNewDocument(document);
    measureAgainstWordCount(state, [&] {
        std::ifstream file(largeFile(), std::ios::binary);
        resetToNewDocument(document);
        if (!readDocument(document, file)) std::abort();
    });
}

void AppendStaffToLargeDocument(benchmark::State& state) {
    Document document;
    makeLargeDocument(document, 4);
    for (auto _ : state) {
        growByOneStaff(document);
        benchmark::DoNotOptimize(document.ColumnCapacity);
    }
}

// Columns between two notes of a track: 0 is the empty document.
BENCHMARK(SaveLargeDocument)
    ->Arg(0)
    ->Arg(16)
    ->Arg(4)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);
BENCHMARK(OpenLargeDocument)
    ->Arg(0)
    ->Arg(16)
    ->Arg(4)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);
BENCHMARK(AppendStaffToLargeDocument)->Unit(benchmark::kMicrosecond)->Iterations(200);

} // namespace
} // namespace tabrova

BENCHMARK_MAIN();
