// The page's redraw against a memory copy of its pixels, one typed note, and the way from a key to the shown
// image.
#include "bench/large_document.h"
#include "core/document/document_operations.h"
#include "platform/desktop_services.h"
#include "shell/frmMain.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>

#include <chrono>
#include <cstring>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int PageWidth = 1920;
constexpr int PageHeight = 1080;

double nanoseconds(Clock::duration time) { return std::chrono::duration<double, std::nano>(time).count(); }

// The best of several copies: the physical yardstick.
double copyNanoseconds() {
    std::vector<char> from(PageWidth * PageHeight * 4, 1), to(from.size(), 2);
    double best = 1e12;
    for (int run = 0; run < 40; ++run) {
        const auto start = Clock::now();
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::DoNotOptimize(to.data());
        best = std::min(best, nanoseconds(Clock::now() - start));
    }
    return best;
}

template <class Work>
void measureAgainstCopy(benchmark::State& state, Work work) {
    double total = 0.0;
    for (auto _ : state) {
        const auto start = Clock::now();
        work();
        total += nanoseconds(Clock::now() - start);
    }
    state.counters["times_copy"] = total / static_cast<double>(state.iterations()) / copyNanoseconds();
}

// A whole program without a desktop.
struct Program {
    DesktopServices desktop;
    MemorySettingsStore settings;
    RecordingMidiDevice midi;
    RecordingSynthesizer synthesizer;
    Services services = desktop.services(settings, midi, synthesizer, {}, [] { std::abort(); });
    frmMain window{services};

    Program() {
        window.resizeClient(PageWidth, PageHeight);
        window.Form_Load({}, frmMain::Splash::Never);
        window.show();
        QApplication::processEvents();
    }
};

void FullRedraw(benchmark::State& state) {
    Document document;
    makeDenseDocument(document, static_cast<int>(state.range(0)));
    TabView view;
    view.picDocument.resize(PageWidth, PageHeight);
    document.VisibleStaves = visibleStaves(PageHeight);
    document.ColumnWidth = columnWidth(PageWidth);
    measureAgainstCopy(state, [&] {
        view.picDocument.Cls();
        view.drawStaves(document);
        benchmark::DoNotOptimize(view.picDocument.image().constBits());
    });
}

// Both views are shown: the strip's notation, the rhythm below the tab and the neck are part of the redraw.
void WholeRefreshWithBothViews(benchmark::State& state) {
    Program program;
    program.window.menu().action("mnuVirtualFretboard")->trigger();
    makeDenseDocument(program.window.document(), 4096);
    measureAgainstCopy(state, [&] { program.window.editor().refreshdrawing(); });
}

// The cursor's staff alone; the argument is the number of columns from one note to the next.
void NotationPass(benchmark::State& state) {
    Document document;
    makeDenseDocument(document, 12);
    for (int column = 0; column < document.ColumnCapacity; ++column)
        if (column % state.range(0) != 0)
            for (int string = 0; string < StringsPerTrack; ++string)
                document.setNote(column, string, "");
    TabView view;
    view.picDocument.resize(PageWidth, PageHeight);
    view.picStandardNotation.resize(PageWidth, StripHeight);
    document.ColumnWidth = columnWidth(PageWidth);
    measureAgainstCopy(state, [&] { view.DrawNotationAndRhythm(document); });
}

void Fretboard(benchmark::State& state) {
    Document document;
    makeDenseDocument(document, 1);
    TabView view;
    view.picFretboard.resize(FretboardWidth, PageHeight);
    measureAgainstCopy(state, [&] { view.DrawFretBoard(document, {CursorColor, 0xFFB8B8B8}); });
}

void CursorMove(benchmark::State& state) {
    Program program;
    program.window.menu().action("mnuVirtualFretboard")->trigger();
    makeDenseDocument(program.window.document(), 12);
    program.window.editor().refreshdrawing();
    for (auto _ : state)
        program.window.editor().MoveCursor(Direction::Nowhere);
}

void WholeRefresh(benchmark::State& state) {
    Program program;
    makeDenseDocument(program.window.document(), 4096);
    measureAgainstCopy(state, [&] { program.window.editor().refreshdrawing(); });
}

void TypedNoteWithoutSound(benchmark::State& state) {
    Program program;
    program.window.document().RealtimeMode = 1;
    for (auto _ : state)
        program.window.editor().DrawAndStoreNote('7');
}

// The argument is the zoom's step: 100, 125, 150, 200 %.
void keyToImage(benchmark::State& state, std::initializer_list<Qt::Key> keys) {
    Program program;
    makeLargeDocument(program.window.document(), 4);
    program.window.menu().action(QString("mnuZoom(%1)").arg(state.range(0)))->trigger();
    auto* page = program.window.findChild<QWidget*>("picDocument");
    program.window.editor().refreshdrawing();
    QApplication::processEvents();
    std::size_t pressed = 0;
    measureAgainstCopy(state, [&] {
        const Qt::Key key = keys.begin()[pressed++ % keys.size()];
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(QChar(key)));
        QApplication::sendEvent(page, &press);
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    });
}

void KeyToImage(benchmark::State& state) { keyToImage(state, {Qt::Key_7, Qt::Key_8}); }

void ArrowToImage(benchmark::State& state) { keyToImage(state, {Qt::Key_Right, Qt::Key_Left}); }

BENCHMARK(FullRedraw)->Arg(12)->Arg(1)->Arg(4096)->Unit(benchmark::kMicrosecond);
BENCHMARK(WholeRefresh)->Unit(benchmark::kMicrosecond);
BENCHMARK(WholeRefreshWithBothViews)->Unit(benchmark::kMicrosecond);
BENCHMARK(NotationPass)->Arg(1)->Arg(4)->Arg(17)->Unit(benchmark::kMicrosecond);
BENCHMARK(Fretboard)->Unit(benchmark::kMicrosecond);
BENCHMARK(CursorMove)->Unit(benchmark::kMicrosecond);
BENCHMARK(TypedNoteWithoutSound)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyToImage)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(ArrowToImage)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tabrova

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
