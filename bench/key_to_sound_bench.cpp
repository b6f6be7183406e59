// From a key press on the page to the first sample of its note at the recorder: the real window, the built-in
// synthesizer, the server that scripts/with_sound_server starts. The recorder's own delay is part of the
// figure. The yardstick is one period of the audio output, 512 frames at 48 kHz.
#include "platform/desktop_services.h"
#include "shell/frmMain.h"
#include "sound/devices/system_midi_device.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QProcess>

#include <chrono>
#include <random>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int Threshold = 64; // of 32768
constexpr double PeriodSeconds = 512.0 / 48000.0;

struct Program {
    DesktopServices desktop;
    MemorySettingsStore settings;
    FluidSynthesizer synthesizer{{{}, {}, {}, systemBankFolders()}};
    SystemMidiDevice midi{synthesizer};
    Services services = desktop.services(settings, midi, synthesizer, {}, [] { std::abort(); });
    frmMain window{services};

    Program() {
        window.resizeClient(1000, 700);
        window.Form_Load({}, frmMain::Splash::Never);
        window.show();
        synthesizer.waitUntilLoaded();
        QApplication::processEvents();
    }
};

// Reads what the recorder has; true if a sample is over the threshold.
bool soundArrived(QProcess& recorder) {
    const QByteArray bytes = recorder.readAllStandardOutput();
    const auto* samples = reinterpret_cast<const std::int16_t*>(bytes.constData());
    const auto count = bytes.size() / qsizetype{sizeof(std::int16_t)};
    return std::any_of(samples, samples + count,
                       [](std::int16_t sample) { return std::abs(sample) > Threshold; });
}

void waitFor(QProcess& recorder, std::chrono::milliseconds time) {
    const auto end = Clock::now() + time;
    while (Clock::now() < end) {
        QApplication::processEvents();
        recorder.waitForReadyRead(1);
        recorder.readAllStandardOutput();
    }
}

void KeyToSound(benchmark::State& state) {
    Program program;
    const SynthesizerState told = program.synthesizer.state();
    if (told.output.isEmpty()) return state.SkipWithError(told.trouble.toStdString().c_str());
    state.SetLabel(told.output.toStdString());
    QProcess recorder;
    recorder.start("parec", {"-d", "out.monitor", "--format=s16le", "--rate=48000", "--channels=1",
                             "--latency-msec=1", "--raw", "--process-time-msec=1"});
    if (!recorder.waitForStarted()) return state.SkipWithError("parec does not start");
    waitFor(recorder, std::chrono::milliseconds(5000));
    auto* page = program.window.findChild<QWidget*>("picDocument");
    std::mt19937 random(1);
    double worst = 0.0;
    double total = 0.0;
    for (auto _ : state) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7");
        recorder.readAllStandardOutput();
        const auto start = Clock::now();
        QApplication::sendEvent(page, &press);
        while (!soundArrived(recorder) && Clock::now() - start < std::chrono::seconds(2))
            recorder.waitForReadyRead(1);
        const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
        state.SetIterationTime(seconds);
        worst = std::max(worst, seconds);
        total += seconds;
        waitFor(recorder, std::chrono::milliseconds(1200 + random() % 100));
    }
    state.counters["worst_ms"] = worst * 1000.0;
    state.counters["times_period"] = total / static_cast<double>(state.iterations()) / PeriodSeconds;
    recorder.kill();
    recorder.waitForFinished();
}

BENCHMARK(KeyToSound)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tabrova

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
