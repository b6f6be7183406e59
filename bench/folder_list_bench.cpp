// A bank of 10,000 chords: how long the list takes to show it and to find in it, beside reading the names of
// the folder, which is the least that has to be done.
#include "forms/folder_list.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <fstream>

namespace {

namespace fs = std::filesystem;

constexpr int Chords = 10000;

class Bank {
  public:
    Bank() : folder(fs::temp_directory_path() / "tabrova_folder_list_bench") {
        fs::create_directories(folder);
        for (int chord = 0; chord < Chords; ++chord)
            std::ofstream(folder / ("Chord " + std::to_string(chord))) << "x32010\r\n";
    }
    ~Bank() { fs::remove_all(folder); }

    fs::path folder;
};

const Bank& bank() {
    static const Bank bank;
    return bank;
}

void NamesOfTheFolder(benchmark::State& state) {
    for (auto _ : state) {
        std::size_t bytes = 0;
        for (const fs::directory_entry& entry : fs::directory_iterator(bank().folder))
            bytes += entry.path().filename().native().size();
        benchmark::DoNotOptimize(bytes);
    }
}

void FindInTheList(benchmark::State& state) {
    tabrova::FolderList list("lst_Chords", tabrova::EntryKind::Files, nullptr);
    list.showFolder(bank().folder);
    bool all = false;
    for (auto _ : state) {
        list.setPattern(all ? "*" : "Chord 9*");
        all = !all;
    }
    if (list.count() == 0) state.SkipWithError("nothing found");
}

void ShowTheList(benchmark::State& state) {
    for (auto _ : state) {
        tabrova::FolderList list("lst_Chords", tabrova::EntryKind::Files, nullptr);
        list.showFolder(bank().folder);
        if (list.count() != Chords) state.SkipWithError("not all chords are shown");
    }
}

BENCHMARK(NamesOfTheFolder)->Unit(benchmark::kMillisecond);
BENCHMARK(ShowTheList)->Unit(benchmark::kMillisecond);
BENCHMARK(FindInTheList)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
