// The built-in synthesizer on an engine that a test makes: what is played when, and what happens when a sound
// server hangs.
#include "sound/devices/system_midi_device.h"

#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>

namespace tabrova {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Log = std::vector<std::string>;

constexpr auto LongTime = 60s; // a busy machine is given this long

// Writes down what it is asked; each step waits while it is held.
class HeldEngine : public SoundEngine {
  public:
    QString loadBank(const SoundBankPlaces& places) override {
        step("load " + places.setting.string());
        const std::lock_guard lock(mutex_);
        bank_ = places.setting;
        return bankTrouble;
    }
    QString openOutput() override {
        step("open");
        const std::lock_guard lock(mutex_);
        if (outputTrouble.isEmpty()) output_ = "Loudspeaker";
        return outputTrouble;
    }
    void closeOutput() override {
        step("close");
        const std::lock_guard lock(mutex_);
        output_.clear();
    }
    std::filesystem::path bank() const override { return bank_; }
    QString output() const override { return output_; }
    void play(const ShortMessage& message) override {
        step(std::to_string(message[0]) + " " + std::to_string(message[1]) + " " +
             std::to_string(message[2]));
    }

    // Holds the named step; "" lets everything go on.
    void hold(const std::string& name) {
        {
            const std::lock_guard lock(mutex_);
            held_ = name;
        }
        changed_.notify_all();
    }
    // Waits until the held step was come to.
    void awaitHeld() {
        std::unique_lock lock(mutex_);
        EXPECT_TRUE(changed_.wait_for(lock, LongTime, [this] { return waiting_; }));
    }
    void write(const std::string& line) {
        const std::lock_guard lock(mutex_);
        log_.push_back(line);
    }
    Log takeLog() {
        const std::lock_guard lock(mutex_);
        return std::exchange(log_, {});
    }

    QString bankTrouble;
    QString outputTrouble;

  private:
    void step(const std::string& name) {
        std::unique_lock lock(mutex_);
        waiting_ = !held_.empty() && name.starts_with(held_);
        changed_.notify_all();
        changed_.wait(lock, [&] { return held_.empty() || !name.starts_with(held_); });
        waiting_ = false;
        log_.push_back(name);
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::string held_;
    bool waiting_ = false;
    Log log_;
    std::filesystem::path bank_;
    QString output_;
};

class SynthesizerThreads : public ::testing::Test {
  protected:
    ~SynthesizerThreads() override { engine->hold(""); }
    // Less than the time after which the window seems to hang.
    static void expectAnswer(const char* what, const std::function<void()>& call) {
        const auto start = Clock::now();
        call();
        EXPECT_LT(Clock::now() - start, 1s) << what;
    }
    bool tellsNoAnswer() const {
        return synthesizer.state().trouble.startsWith("The sound server does not answer");
    }
    void open() {
        synthesizer.open();
        synthesizer.waitUntilLoaded();
        engine->takeLog();
    }

    std::shared_ptr<HeldEngine> engine = std::make_shared<HeldEngine>();
    FluidSynthesizer synthesizer{{"mine.sf2", {}, {}, {}}, engine};
};

TEST_F(SynthesizerThreads, OpenTheBankThenTheOutput) {
    synthesizer.open();
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(engine->takeLog(), (Log{"close", "load mine.sf2", "open"}));
    const SynthesizerState state = synthesizer.state();
    EXPECT_TRUE(state.running);
    EXPECT_FALSE(state.loading);
    EXPECT_EQ(state.bank, "mine.sf2");
    EXPECT_EQ(state.output, "Loudspeaker");
    EXPECT_EQ(state.trouble, "");
    synthesizer.close();
    EXPECT_EQ(engine->takeLog(), Log{"close"});
    EXPECT_FALSE(synthesizer.state().running);
    EXPECT_EQ(synthesizer.state().output, "");
    EXPECT_EQ(synthesizer.state().bank, "mine.sf2");
}

TEST_F(SynthesizerThreads, OpenNoOutputWithoutABank) {
    FluidSynthesizer none({}, engine);
    engine->bankTrouble = "no bank ";
    none.open();
    none.waitUntilLoaded();
    EXPECT_EQ(engine->takeLog(), (Log{"close", "load "}));
    EXPECT_EQ(none.state().trouble, "no bank");
    EXPECT_EQ(none.state().output, "");
}

TEST_F(SynthesizerThreads, TellTheTroublesTogetherAndForgetThemAtTheNextOpening) {
    engine->bankTrouble = "another bank. ";
    engine->outputTrouble = "no card. ";
    open();
    EXPECT_EQ(synthesizer.state().trouble, "another bank. no card.");
    synthesizer.send({0x90, 60, 100});
    EXPECT_EQ(engine->takeLog(), Log{}) << "nothing to play it";
    engine->hold("load");
    synthesizer.open();
    EXPECT_EQ(synthesizer.state().trouble, "");
    EXPECT_TRUE(synthesizer.state().loading);
}

TEST_F(SynthesizerThreads, PlayOnlyWhatComesWhileTheyAreOpen) {
    synthesizer.send({0x90, 1, 100});
    engine->hold("open");
    synthesizer.open();
    synthesizer.send({0x90, 2, 100});
    engine->hold("");
    synthesizer.waitUntilLoaded();
    engine->takeLog();
    synthesizer.send({0x90, 3, 100});
    synthesizer.send({0xB2, 127, 127});
    synthesizer.send({0x90, 128, 100});
    synthesizer.send({0x90, 3, 128});
    EXPECT_EQ(engine->takeLog(), (Log{"144 3 100", "178 127 127"}));
    synthesizer.close();
    synthesizer.send({0x90, 4, 100});
    EXPECT_EQ(engine->takeLog(), Log{"close"});
}

TEST_F(SynthesizerThreads, PlayTheProgramsThatWereChosenWhileTheyLoad) {
    synthesizer.send({0xC3, 9, 0}); // not yet open
    engine->hold("load");
    synthesizer.open();
    for (const ShortMessage& message : {ShortMessage{0xC0, 24, 0}, ShortMessage{0xCF, 127, 0},
                                        ShortMessage{0xC0, 25, 0}, ShortMessage{0xD1, 7, 0}})
        synthesizer.send(message);
    engine->hold("");
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(engine->takeLog(), (Log{"close", "load mine.sf2", "open", "192 25 0", "207 127 0"}));
    synthesizer.open();
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(engine->takeLog(), (Log{"close", "load mine.sf2", "open"})) << "each opening has its own";
}

TEST_F(SynthesizerThreads, ReopenForAnotherBankOnlyWhileTheyRun) {
    synthesizer.useBank("other.sf2");
    EXPECT_TRUE(synthesizer.settles(LongTime));
    EXPECT_EQ(engine->takeLog(), Log{});
    synthesizer.open();
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(engine->takeLog(), (Log{"close", "load other.sf2", "open"}));
    synthesizer.useBank("third.sf2");
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(engine->takeLog(), (Log{"close", "load third.sf2", "open"}));
    EXPECT_EQ(synthesizer.state().bank, "third.sf2");
}

TEST_F(SynthesizerThreads, AnswerWhileABankLoadsAndOpenNoOutputForWhatIsClosed) {
    engine->hold("load");
    synthesizer.open();
    engine->awaitHeld();
    expectAnswer("close", [this] { synthesizer.close(); });
    EXPECT_FALSE(synthesizer.state().loading);
    EXPECT_FALSE(synthesizer.state().running);
    engine->hold("");
    ASSERT_TRUE(synthesizer.settles(LongTime));
    EXPECT_EQ(engine->takeLog(), (Log{"close", "load mine.sf2", "close"}));
    EXPECT_EQ(synthesizer.state().output, "");
}

TEST_F(SynthesizerThreads, LoadOnlyTheLastOfSeveralBanks) {
    engine->hold("load");
    synthesizer.open();
    engine->awaitHeld();
    expectAnswer("first", [this] { synthesizer.useBank("first.sf2"); });
    expectAnswer("second", [this] { synthesizer.useBank("second.sf2"); });
    engine->hold("");
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(engine->takeLog(),
              (Log{"close", "load mine.sf2", "close", "close", "load second.sf2", "open"}));
    EXPECT_EQ(synthesizer.state().bank, "second.sf2");
    EXPECT_EQ(synthesizer.state().output, "Loudspeaker");
}

TEST_F(SynthesizerThreads, TellThatAServerDoesNotAnswerAndGoOnWhenItDoes) {
    int changes = 0;
    synthesizer.onChange(&changes, [&changes] { ++changes; });
    engine->hold("open");
    expectAnswer("open", [this] { synthesizer.open(); });
    EXPECT_FALSE(tellsNoAnswer()) << "it has some time";
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes >= 2; }, 5000)); // open, close
    changes = 0;
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes > 0; }, 60000)) << "told by itself";
    EXPECT_TRUE(tellsNoAnswer());
    EXPECT_TRUE(synthesizer.state().running);
    EXPECT_EQ(synthesizer.state().output, "");
    synthesizer.send({0xC0, 24, 0});
    engine->hold("");
    EXPECT_TRUE(QTest::qWaitFor([&] { return synthesizer.state().output == "Loudspeaker"; }, 60000));
    EXPECT_EQ(synthesizer.state().trouble, "");
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(engine->takeLog(), (Log{"close", "load mine.sf2", "open", "192 24 0"}));
}

// A big bank on a slow disk is no server that hangs.
TEST_F(SynthesizerThreads, SayNothingOfAServerWhileABankLoads) {
    engine->hold("load");
    synthesizer.open();
    QTest::qWait(static_cast<int>((HangTime + 300ms).count()));
    EXPECT_TRUE(synthesizer.state().loading);
    EXPECT_EQ(synthesizer.state().trouble, "");
}

TEST_F(SynthesizerThreads, AnswerWhenClosingHangsAndCloseLater) {
    open();
    engine->hold("close");
    expectAnswer("close", [this] { synthesizer.close(); });
    EXPECT_FALSE(synthesizer.state().running);
    EXPECT_EQ(synthesizer.state().trouble, "") << "nobody waits for it";
    EXPECT_FALSE(synthesizer.settles(1ms));
    expectAnswer("open", [this] { synthesizer.open(); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return tellsNoAnswer(); }, 60000));
    expectAnswer("send", [this] { synthesizer.send({0x90, 60, 100}); });
    engine->hold("");
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(engine->takeLog(), (Log{"close", "close", "load mine.sf2", "open"}));
    EXPECT_EQ(synthesizer.state().output, "Loudspeaker");
    EXPECT_FALSE(tellsNoAnswer());
}

TEST_F(SynthesizerThreads, EndWhileAServerHangs) {
    bool told = false;
    expectAnswer("end", [&] {
        FluidSynthesizer own({"mine.sf2", {}, {}, {}}, engine);
        own.onChange(&told, [&told] { told = true; });
        own.open();
        own.waitUntilLoaded();
        engine->hold("close");
    });
    engine->takeLog();
    engine->hold("");
    Log came;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const Log more = engine->takeLog();
            came.insert(came.end(), more.begin(), more.end());
            return !came.empty();
        },
        60000));
    EXPECT_EQ(came, Log{"close"});
    QCoreApplication::processEvents();
    EXPECT_FALSE(told) << "there is nobody to be told";
}

// Writes into the engine's log.
class LoggedPort : public PortConnection {
  public:
    explicit LoggedPort(std::shared_ptr<HeldEngine> engine) : engine_(std::move(engine)) {}
    ~LoggedPort() override {
        if (open_) engine_->write("port closed");
    }
    unsigned count() override { return 1; }
    std::string name(unsigned) override { return "ear"; }
    bool open(unsigned) override {
        engine_->write("port opened");
        return open_ = true;
    }
    bool send(const ShortMessage& message) override {
        engine_->write("port " + std::to_string(message[0]));
        return message[0] != 0xFF;
    }
    std::string trouble() const override { return "the cable is cut"; }

  private:
    std::shared_ptr<HeldEngine> engine_;
    bool open_ = false;
};

class Devices : public SynthesizerThreads {
  protected:
    SystemMidiDevice device{synthesizer, {RtMidi::UNIX_JACK}, [engine = engine](RtMidi::Api) {
                                return std::make_unique<LoggedPort>(engine);
                            }};
    std::uint32_t handle = 0;
};

TEST_F(Devices, CloseTheSynthesizerWithItsHandle) {
    ASSERT_EQ(device.midiOutOpen(handle, MidiMapperId), 0);
    synthesizer.waitUntilLoaded();
    EXPECT_TRUE(synthesizer.state().running);
    EXPECT_EQ(device.midiOutShortMsg(handle, {0x90, 60, 100}), 0);
    EXPECT_EQ(device.midiOutClose(handle), 0);
    EXPECT_FALSE(synthesizer.state().running);
    EXPECT_EQ(engine->takeLog(), (Log{"close", "load mine.sf2", "open", "144 60 100", "close"}));
}

TEST_F(Devices, KeepTheirPortsWhenTheSynthesizerIsClosedAndTheOtherWayRound) {
    ASSERT_EQ(device.midiOutGetNumDevs(), 1);
    EXPECT_EQ(device.midiOutGetDevCapsA(0), "ear");
    std::uint32_t port = 0;
    ASSERT_EQ(device.midiOutOpen(port, 0), 0);
    ASSERT_EQ(device.midiOutOpen(handle, MidiMapperId), 0);
    EXPECT_NE(port, handle);
    EXPECT_NE(port, 0u);
    synthesizer.waitUntilLoaded();
    engine->takeLog();
    EXPECT_EQ(device.midiOutClose(handle), 0);
    EXPECT_FALSE(synthesizer.state().running);
    EXPECT_EQ(device.midiOutShortMsg(port, {0x90, 60, 100}), 0);
    ASSERT_TRUE(device.settles(LongTime));
    EXPECT_EQ(engine->takeLog(), (Log{"close", "port 144"})) << "the port stays open";
    ASSERT_EQ(device.midiOutOpen(handle, MidiMapperId), 0);
    synthesizer.waitUntilLoaded();
    engine->takeLog();
    EXPECT_EQ(device.midiOutClose(port), 0);
    EXPECT_TRUE(synthesizer.state().running);
    EXPECT_EQ(engine->takeLog(), Log{"port closed"});
}

TEST_F(Devices, TellTheErrorsOfNoDeviceAndOfAPort) {
    constexpr int NoDevice = 5;
    constexpr int PortFailed = 2;
    EXPECT_EQ(device.midiOutShortMsg(0, {0x90, 60, 100}), NoDevice);
    EXPECT_EQ(device.midiOutGetErrorTextA(NoDevice), "No MIDI output is open.");
    device.midiOutGetNumDevs();
    std::uint32_t port = 0;
    EXPECT_EQ(device.midiOutOpen(port, 1), PortFailed);
    EXPECT_EQ(port, 0u);
    ASSERT_EQ(device.midiOutOpen(port, 0), 0);
    device.midiOutShortMsg(port, {0xFF, 0, 0});
    ASSERT_TRUE(device.settles(LongTime));
    EXPECT_EQ(device.midiOutShortMsg(port, {0x90, 60, 100}), PortFailed);
    EXPECT_EQ(device.midiOutGetErrorTextA(PortFailed), "the cable is cut");
}

TEST_F(Devices, SettleWhenTheSynthesizerDoes) {
    ASSERT_EQ(device.midiOutOpen(handle, MidiMapperId), 0);
    EXPECT_TRUE(device.settles(LongTime));
    engine->hold("close");
    expectAnswer("close", [this] { device.midiOutClose(handle); });
    EXPECT_FALSE(device.settles(1ms));
    engine->hold("");
    EXPECT_TRUE(device.settles(LongTime));
}

} // namespace
} // namespace tabrova
