// Exports of large documents: fifteen tracks as a MIDI file, a thousand staves as text, and as the text that
// stands in its box. The yardstick of a file is writing the same bytes to another file.
#include "core/document/document_operations.h"
#include "core/document/old_document.h"
#include "core/document/text_tablature.h"
#include "platform/recording_services.h"
#include "shell/frmMain.h"
#include "sound/midi_export.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

#include <chrono>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double secondsOfWriting(const std::string& bytes, const std::string& path) {
    constexpr int Rounds = 20;
    const auto start = Clock::now();
    for (int round = 0; round < Rounds; ++round)
        std::ofstream(path, std::ios::binary | std::ios::trunc)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return secondsSince(start) / Rounds;
}

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// A third of the cells sound.
void fill(Document& document, int tracks, int staves) {
    resetToNewDocument(document);
    document.TrackCount = static_cast<std::int16_t>(tracks);
    document.StaffCount = static_cast<std::int16_t>(staves);
    ResizeGrids(document, staves * ColumnsPerStaff, tracks * StringsPerTrack);
    document.TuningTable.assign(static_cast<std::size_t>(tracks * StringsPerTrack), StandardTuning);
    document.GuitarTrackFlags.assign(static_cast<std::size_t>(tracks), True16);
    document.TrackNames.assign(static_cast<std::size_t>(tracks), "Track");
    document.TrackVolumes.assign(static_cast<std::size_t>(tracks), "100");
    document.TrackInstruments.assign(static_cast<std::size_t>(tracks), "24");
    std::mt19937 random(16);
    for (int column = 0; column < document.ColumnCapacity; ++column) {
        if (column % 16 == 0) document.setBarMark(column, ".");
        for (int row = 0; row < document.RowCapacity; ++row)
            if (random() % 3 == 0) document.setNote(column, row, std::to_string(random() % 25));
    }
}

// 15 tracks of 2,016 columns, with and without note-offs.
void MidiFileOf15Tracks(benchmark::State& state) {
    Document document;
    fill(document, 15, 63);
    const QTemporaryDir folder;
    const std::string path = folder.filePath("song.mid").toStdString();
    MidiExport what;
    what.noteOffs = state.range(0) != 0;
    for (int track = 0; track < 15; ++track)
        what.queue.push_back(track);
    double total = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        MIDIFile file;
        file.setPath(MIDIFile::Property::FileName, path);
        exportMidiFile(document, what, file);
        total += secondsSince(start);
    }
    const std::string bytes = bytesOf(path);
    state.counters["bytes"] = static_cast<double>(bytes.size());
    state.counters["times_write"] = total / static_cast<double>(state.iterations()) /
                                    secondsOfWriting(bytes, folder.filePath("other").toStdString());
}

void TextOf1000Staves(benchmark::State& state) {
    Document document;
    fill(document, 1, 1000);
    const QTemporaryDir folder;
    double total = 0;
    std::string bytes;
    for (auto _ : state) {
        const auto start = Clock::now();
        std::ostringstream text;
        textTablature(document, {}).writeTo(text);
        bytes = std::move(text).str();
        total += secondsSince(start);
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
    state.counters["times_write"] = total / static_cast<double>(state.iterations()) /
                                    secondsOfWriting(bytes, folder.filePath("other").toStdString());
}

// From the menu item to the window with the text in its box, painted.
void WindowOfText(benchmark::State& state) {
    const QTemporaryDir home;
    RecordingServices desk;
    desk.timers.setFrozen(true);
    Services services = desk.services(home.path().toStdString(), [] { std::abort(); });
    frmMain window{services};
    window.resizeClient(1000, 700);
    window.Form_Load({}, frmMain::Splash::Never);
    window.show();
    fill(window.bench().document, 1, static_cast<int>(state.range(0)));
    double total = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        window.tools().open("frmExport");
        QApplication::processEvents();
        total += secondsSince(start);
        window.tools().unload("frmExport");
        QApplication::processEvents();
    }
    const std::string bytes = bytesOf(home.filePath("temp.txt").toStdString());
    state.counters["bytes"] = static_cast<double>(bytes.size());
    state.counters["times_write"] = total / static_cast<double>(state.iterations()) /
                                    secondsOfWriting(bytes, home.filePath("other").toStdString());
}

// The largest old file: 32,767 staves, a separator in every second column.
void LargestOldFile(benchmark::State& state) {
    std::string item = "02448032767";
    for (int string = 0; string < StringsPerTrack; ++string)
        item += "12";
    std::string staff;
    for (int row = 0; row < StringsPerTrack; ++row)
        for (int column = 0; column < ColumnsPerStaff; ++column)
            staff += column % 2 == 1 && column < 31 ? " #|" : "12|";
    staff += "|";
    for (int each = 0; each < MostStaves; ++each)
        item += staff;
    item += "0000"; // no author, no title
    std::string copy(item.size(), ' ');
    double total = 0;
    double copying = 0;
    for (auto _ : state) {
        auto start = Clock::now();
        Document document;
        resetToNewDocument(document);
        if (!readOldDocument(document, item)) state.SkipWithError("the file was not read");
        total += secondsSince(start);
        start = Clock::now();
        std::copy(item.begin(), item.end(), copy.begin());
        benchmark::ClobberMemory();
        copying += secondsSince(start);
    }
    state.counters["bytes"] = static_cast<double>(item.size());
    state.counters["times_copy"] = total / copying;
}

BENCHMARK(MidiFileOf15Tracks)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(TextOf1000Staves)->Unit(benchmark::kMillisecond);
BENCHMARK(WindowOfText)->Arg(1)->Arg(1000)->Arg(32767)->Unit(benchmark::kMillisecond);
BENCHMARK(LargestOldFile)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tabrova

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
