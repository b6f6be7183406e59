// Inserting columns and pasting a staff at the start of the largest document. The yardsticks are plain memory
// moves of the bytes that the moved cells take, in the same run.
#include "bench/large_document.h"
#include "editing/clipboard.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int ColumnsBetweenNotes = 4;
constexpr std::size_t Columns = LargeStaves * ColumnsPerStaff;

std::size_t bytesOf(const CellGrid& grid) {
    std::size_t bytes = 0;
    for (int column = 0; column < grid.columns(); ++column)
        bytes +=
            static_cast<std::size_t>(grid.column(column).width()) * static_cast<std::size_t>(grid.rows());
    return bytes;
}

// The best of several moves, in seconds.
template <class Move>
double bestSeconds(Move move) {
    double best = 1e9;
    for (int run = 0; run < 40; ++run) {
        const auto start = Clock::now();
        move();
        best = std::min(best, std::chrono::duration<double>(Clock::now() - start).count());
    }
    return best;
}

// One block of cells moved up by `step` bytes.
double moveSeconds(std::size_t bytes, std::size_t step) {
    std::vector<char> cells(bytes + step, 1);
    return bestSeconds([&] {
        std::memmove(cells.data() + step, cells.data(), bytes);
        benchmark::DoNotOptimize(cells.data());
        benchmark::ClobberMemory();
    });
}

// One track's cells of a byte each, where they stand among those of all tracks: both grids, column by column.
double scatteredMoveSeconds() {
    constexpr std::size_t Rows = LargeTracks * StringsPerTrack;
    std::vector<char> notes(Columns * Rows, 1), techniques(Columns * Rows, 1);
    return bestSeconds([&] {
        for (std::vector<char>* grid : {&notes, &techniques})
            for (std::size_t column = Columns - 1; column > 0; --column)
                std::memmove(grid->data() + column * Rows, grid->data() + (column - 1) * Rows,
                             StringsPerTrack);
        benchmark::ClobberMemory();
    });
}

// `before` is not timed; it brings back the document that `work` starts from.
template <class Before, class Work>
double meanSeconds(benchmark::State& state, Before before, Work work) {
    double total = 0.0;
    for (auto _ : state) {
        before();
        const auto start = Clock::now();
        work();
        const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
        state.SetIterationTime(seconds);
        total += seconds;
    }
    return total / static_cast<double>(state.iterations());
}

void InsertColumnOnAllTracks(benchmark::State& state) {
    Document document;
    makeLargeDocument(document, ColumnsBetweenNotes);
    const std::size_t held = bytesOf(document.NoteGrid) + bytesOf(document.TechniqueGrid);
    const std::size_t all = 2 * Columns * LargeTracks * StringsPerTrack;
    bool inserted = false;
    const double seconds = meanSeconds(
        state,
        [&] {
            if (inserted) RemoveColumn(document, Rows::AllTracks);
            inserted = true;
        },
        [&] { InsertColumn(document, Rows::AllTracks); });
    state.counters["times_move_of_held_bytes"] = seconds / moveSeconds(held, LargeTracks * StringsPerTrack);
    state.counters["times_move_of_a_byte_a_cell"] = seconds / moveSeconds(all, LargeTracks * StringsPerTrack);
}

void compareWithTrack(benchmark::State& state, double seconds) {
    state.counters["times_move_in_one_block"] =
        seconds / moveSeconds(2 * Columns * StringsPerTrack, StringsPerTrack);
    state.counters["times_move_in_place"] = seconds / scatteredMoveSeconds();
}

// Columns that held nothing get memory with their first text: the first insertion pays for it.
void FirstInsertColumnOnOneTrack(benchmark::State& state) {
    Document document;
    compareWithTrack(state, meanSeconds(
                                state, [&] { makeLargeDocument(document, ColumnsBetweenNotes); },
                                [&] { InsertColumn(document, Rows::CurrentTrack); }));
}

void InsertColumnOnOneTrack(benchmark::State& state) {
    Document document;
    makeLargeDocument(document, ColumnsBetweenNotes);
    for (int each = 0; each < ColumnsBetweenNotes; ++each)
        InsertColumn(document, Rows::CurrentTrack);
    compareWithTrack(state, meanSeconds(
                                state, [&] { RemoveColumn(document, Rows::CurrentTrack); },
                                [&] { InsertColumn(document, Rows::CurrentTrack); }));
}

void PasteStaff(benchmark::State& state) {
    const Rows rows = state.range(0) == 0 ? Rows::AllTracks : Rows::CurrentTrack;
    Document document;
    meanSeconds(
        state,
        [&] {
            makeLargeDocument(document, ColumnsBetweenNotes);
            copyStaff(document);
        },
        [&] { PasteProcedure(document, rows); });
}

BENCHMARK(InsertColumnOnAllTracks)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(200);
BENCHMARK(FirstInsertColumnOnOneTrack)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(10);
BENCHMARK(InsertColumnOnOneTrack)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(200);
// 0 on all tracks, 1 on the current one.
BENCHMARK(PasteStaff)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

} // namespace
} // namespace tabrova

BENCHMARK_MAIN();
