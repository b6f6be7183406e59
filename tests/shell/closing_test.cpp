// The steps of closing the main window, in their order, however the program ends.
#include "tests/shell/main_window.h"

#include <QTest>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

using Log = std::vector<std::string>;

// Writes what reaches the device into the log that the windows are written into too.
class WritingDevice : public RecordingMidiDevice {
  public:
    explicit WritingDevice(Log& log) : log_(log) {}
    int midiOutClose(std::uint32_t) override {
        log_.push_back("device closed");
        return 0;
    }
    int midiOutShortMsg(std::uint32_t, const ShortMessage& message) override {
        if (message[1] == 123) log_.push_back("notes off " + std::to_string(message[0] - 0xB0));
        return 0;
    }

  private:
    Log& log_;
};

class Closing : public testing::MainWindowTest {
  protected:
    Closing() {
        window = std::make_unique<frmMain>(own);
        window->show();
        window->Form_Load({}, frmMain::Splash::Never);
        // Stopping the playback opens the page again, even if it is open.
        page = window->findChild<QWidget*>("picDocument");
        page->installEventFilter(&watcher);
        const auto watch = [this](const char* name) {
            QWidget* loaded = form(name);
            ASSERT_NE(loaded, nullptr) << name;
            QObject::connect(loaded, &QObject::destroyed,
                             [this, name] { log.push_back(std::string(name) + " unloaded"); });
        };
        for (const char* name : {"frmOptions", "frmInstrumentSelector"})
            watch(name);
        log.clear();
    }
    ~Closing() override { window.reset(); }
    Log expected() const {
        Log steps = {"playback stopped", "playback stopped"};
        for (int channel = 0; channel <= 8; ++channel)
            steps.push_back("notes off " + std::to_string(channel));
        for (const char* last : {"frmInstrumentSelector unloaded", "frmOptions unloaded", "device closed"})
            steps.push_back(last);
        return steps;
    }

    struct Watcher : QObject {
        explicit Watcher(Log& written) : log(written) {}
        bool eventFilter(QObject* watched, QEvent* event) override {
            if (event->type() == QEvent::EnabledChange && static_cast<QWidget*>(watched)->isEnabled())
                log.push_back("playback stopped");
            return false;
        }
        Log& log;
    };

    Log log;
    WritingDevice device{log};
    Services own{boxes,        files,  addresses,   systemInformation, *settings, printer,           device,
                 timerService, timers, synthesizer, randomness,        folder(),  [this] { ++ends; }};
    QWidget* page = nullptr;
    Watcher watcher{log};
};

TEST_F(Closing, StopsPlaybackTwiceThenEndsNotesThenUnloadsTheWindowsThenClosesTheDevice) {
    boxes.queueAnswer(BoxAnswer::No);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(log, expected());
    EXPECT_EQ(form("frmOptions"), nullptr);
    EXPECT_EQ(boxes.take().size(), 1);
}

TEST_F(Closing, IsTheSameWithoutTheQuestionWhenTheProgramIsToldToEnd) {
    window->endInOrder();
    EXPECT_EQ(log, expected());
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(Closing, HappensOnce) {
    boxes.queueAnswer(BoxAnswer::No);
    EXPECT_TRUE(window->close());
    log.clear();
    window->endInOrder();
    EXPECT_EQ(log, Log{});
}

TEST_F(Closing, IsLeftAloneByAnAnswerThatCancels) {
    boxes.queueAnswer(BoxAnswer::Cancel);
    EXPECT_FALSE(window->close());
    EXPECT_EQ(log, Log{});
    EXPECT_NE(form("frmOptions"), nullptr);
}

// Notes would sound on if the timer still ran when they are ended.
TEST_F(Closing, StopsTheTimerOfAPlayback) {
    trigger("mnuSoundPlayAll");
    ASSERT_TRUE(timers.timers().value("Hitime1")->timerEnabled());
    log.clear();
    window->endInOrder();
    EXPECT_EQ(log, expected());
    EXPECT_FALSE(timers.timers().value("Hitime1")->timerEnabled());
}

TEST_F(Closing, UnloadsEveryOtherWindow) {
    trigger("mnuFileProperties");
    trigger("mnuTrackProps");
    QTest::qWait(0);
    window->endInOrder();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const char* name :
         {"frmFileProperties", "frmTrackProperties", "frmOptions", "frmInstrumentSelector", "frmAltSplash"})
        EXPECT_EQ(form(name), nullptr) << name;
}

} // namespace
} // namespace tabrova
