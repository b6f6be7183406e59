// When the clicks of the metronome's window come: how late each is, counted from the soonest one, and by how
// much the last hundred are later than the first hundred. With an idle desk, and with a document that is
// typed into so many times a second: ten are a fast typist, sixty a key that is held down. The yardstick is a
// plain loop that sleeps to the same times.
#include "platform/recording_services.h"
#include "shell/frmMain.h"
#include "sound/beat_time.h"

#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <thread>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;
constexpr std::size_t Clicks = 500;
constexpr std::size_t Ends = 100; // clicks at the beginning and at the end that are compared
constexpr std::size_t YardstickSleeps = 100;

double millisecondsSince(Clock::time_point due) {
    return std::chrono::duration<double, std::milli>(Clock::now() - due).count();
}

double meanOf(std::vector<double>::const_iterator begin, std::size_t count) {
    return std::accumulate(begin, begin + static_cast<std::ptrdiff_t>(count), 0.0) /
           static_cast<double>(count);
}

double meanDistance(const std::vector<double>& late) {
    double sum = 0;
    for (const double each : late)
        sum += std::abs(each);
    return sum / static_cast<double>(late.size());
}

double sleepDistance(int interval) {
    std::vector<double> late;
    const auto start = Clock::now();
    for (std::size_t n = 1; n <= YardstickSleeps; ++n) {
        const auto due = start + std::chrono::milliseconds(std::min(interval, 50)) * n;
        std::this_thread::sleep_until(due);
        late.push_back(millisecondsSince(due));
    }
    return meanDistance(late);
}

// Keeps when each click was sent.
class ClickDevice : public RecordingMidiDevice {
  public:
    int midiOutShortMsg(std::uint32_t handle, const ShortMessage& message) override {
        if (message[0] == 0x9E && message[2] != 0) clicks.push_back(Clock::now());
        return RecordingMidiDevice::midiOutShortMsg(handle, message);
    }
    std::vector<Clock::time_point> clicks;
};

struct Program {
    QTemporaryDir home;
    RecordingServices desk;
    ClickDevice midi;
    Services services = [this] {
        Services made = desk.services(home.path().toStdString(), [] { std::abort(); });
        return Services{made.boxes,
                        made.files,
                        made.addresses,
                        made.systemInformation,
                        made.settings,
                        made.printer,
                        midi,
                        made.timerService,
                        made.timers,
                        made.synthesizer,
                        made.randomness,
                        made.programFolder,
                        made.endProgram};
    }();
    frmMain window{services};

    Program() {
        window.resizeClient(1000, 700);
        window.Form_Load({}, frmMain::Splash::Never);
        window.show();
        window.tools().open("frmMetronome");
        QApplication::processEvents();
    }
    ToolWindow& metronome() { return *window.tools().window("frmMetronome"); }
};

// Types frets, one key at a time, and has them painted.
class Typist {
  public:
    Typist(frmMain& window, int perSecond) : page_(*window.findChild<QWidget*>("picDocument")) {
        QObject::connect(&timer_, &QTimer::timeout, &page_, [this] {
            press(Qt::Key_Right, {});
            press(Qt::Key_7, "7");
            page_.repaint();
        });
        timer_.start(1000 / perSecond);
    }

  private:
    void press(Qt::Key key, const QString& text) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&page_, &event);
    }

    QWidget& page_;
    QTimer timer_;
};

void ClickLateness(benchmark::State& state) {
    const auto rate = static_cast<int>(state.range(0));
    const auto typed = static_cast<int>(state.range(1));
    const int interval = beatTime(rate);
    for (auto _ : state) {
        Program program;
        auto* rates = program.metronome().findChild<QListWidget*>("lst_Metronome_speed");
        auto* bars = program.metronome().findChild<QLineEdit*>("txt_BTp");
        rates->setCurrentItem(rates->findItems(QString("%1 BPM").arg(rate), Qt::MatchExactly).value(0));
        emit rates->clicked(rates->currentIndex());
        bars->setText("0");
        std::optional<Typist> typist;
        if (typed > 0) typist.emplace(program.window, typed);
        const auto start = Clock::now();
        program.metronome().findChild<QAbstractButton*>("Command1")->click();
        while (program.midi.clicks.size() < Clicks)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        std::vector<double> late;
        for (std::size_t n = 0; n < Clicks; ++n)
            late.push_back(std::chrono::duration<double, std::milli>(
                               program.midi.clicks[n] - start -
                               std::chrono::milliseconds(interval * static_cast<int>(n + 1)))
                               .count());
        // Until the timer was started the window did other things: time counts from the click that came
        // soonest.
        const double soonest = *std::min_element(late.begin(), late.end());
        for (double& each : late)
            each -= soonest;
        const auto within =
            std::count_if(late.begin(), late.end(), [](double each) { return std::abs(each) <= 2.0; });
        state.counters["within_2ms_%"] = 100.0 * static_cast<double>(within) / Clicks;
        state.counters["drift_ms"] =
            meanOf(late.end() - static_cast<std::ptrdiff_t>(Ends), Ends) - meanOf(late.begin(), Ends);
        state.counters["latest_ms"] = *std::max_element(late.begin(), late.end());
        state.counters["mean_ms"] = meanOf(late.begin(), Clicks);
        state.counters["times_sleep"] = meanDistance(late) / sleepDistance(interval);
    }
}

BENCHMARK(ClickLateness)
    ->ArgNames({"rate", "typed"})
    ->ArgsProduct({{120, 1920}, {0, 10, 60}})
    ->Iterations(1)
    ->Unit(benchmark::kSecond);

} // namespace
} // namespace tabrova

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
