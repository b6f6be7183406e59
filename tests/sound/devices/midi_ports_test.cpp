// The system's MIDI ports against services that a test makes: ones that answer, fail and hang. The real port
// has a test of its own.
#include "sound/devices/midi_ports.h"
#include "sound/devices/quiet_libraries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace tabrova {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto LongTime = 60s; // a busy machine is given this long
constexpr RtMidi::Api Some = RtMidi::LINUX_ALSA;
constexpr RtMidi::Api Other = RtMidi::UNIX_JACK;

// What happened at the service, and how it behaves.
struct Service {
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<std::string> ports = {"first", "second"};
    std::vector<std::string> log;
    bool runs = true;
    bool hangs = false;
    bool refusesToOpen = false;
    bool failsToSend = false;

    void answer(const std::string& call = {}) {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return !hangs; });
        if (!call.empty()) log.push_back(call);
    }
    void setHanging(bool hanging) {
        {
            const std::lock_guard lock(mutex);
            hangs = hanging;
        }
        changed.notify_all();
    }
    std::vector<std::string> takeLog() {
        const std::lock_guard lock(mutex);
        return std::exchange(log, {});
    }
};

class Connection : public PortConnection {
  public:
    explicit Connection(std::shared_ptr<Service> service) : service_(std::move(service)) {}
    ~Connection() override {
        if (open_) service_->answer("close");
    }
    unsigned count() override {
        service_->answer();
        return static_cast<unsigned>(service_->ports.size());
    }
    std::string name(unsigned number) override { return service_->ports.at(number); }
    bool open(unsigned number) override {
        service_->answer("open " + std::to_string(number));
        open_ = !service_->refusesToOpen;
        return open_;
    }
    bool send(const ShortMessage& message) override {
        service_->answer(std::to_string(message[0]) + " " + std::to_string(message[1]) + " " +
                         std::to_string(message[2]));
        return !service_->failsToSend;
    }
    std::string trouble() const override { return "the cable is cut"; }

  private:
    std::shared_ptr<Service> service_;
    bool open_ = false;
};

using Log = std::vector<std::string>;

class MidiPortsOfServices : public ::testing::Test {
  protected:
    ~MidiPortsOfServices() override {
        some->setHanging(false);
        other->setHanging(false);
    }
    static std::unique_ptr<PortConnection> connect(const std::shared_ptr<Service>& service) {
        return service->runs ? std::make_unique<Connection>(service) : nullptr;
    }
    // Less than the time after which the window seems to hang.
    static void expectAnswer(const char* what, const std::function<void()>& call) {
        const auto start = Clock::now();
        call();
        EXPECT_LT(Clock::now() - start, 1s) << what;
    }

    std::shared_ptr<Service> some = std::make_shared<Service>();
    std::shared_ptr<Service> other = std::make_shared<Service>();
    MidiPorts ports{{Other, Some}, [some = some, other = other](RtMidi::Api kind) {
                        return connect(kind == Some ? some : other);
                    }};
};

TEST_F(MidiPortsOfServices, AreListedKindByKindInTheGivenOrder) {
    some->ports = {"mine"};
    ports.list();
    ASSERT_EQ(ports.count(), 3);
    EXPECT_EQ(ports.name(0), "first");
    EXPECT_EQ(ports.name(1), "second");
    EXPECT_EQ(ports.name(2), "mine");
    EXPECT_FALSE(ports.name(-1).has_value());
    EXPECT_FALSE(ports.name(3).has_value());
    some->ports = {};
    other->ports = {""};
    ports.list();
    EXPECT_EQ(ports.count(), 1);
    EXPECT_FALSE(ports.name(0).has_value()) << "a port without a name";
}

TEST_F(MidiPortsOfServices, AreNoneOfAKindThatDoesNotRun) {
    other->runs = false;
    ports.list();
    EXPECT_EQ(ports.count(), 2);
    other->runs = true;
    some->runs = false;
    ports.list();
    EXPECT_EQ(ports.open(1), 0);
    EXPECT_EQ(other->takeLog(), Log{"open 1"});
}

TEST_F(MidiPortsOfServices, GetAllMessagesInOrderAndAreClosedAfterThem) {
    ports.list();
    ASSERT_EQ(ports.open(3), 0);
    Log expected = {"open 1"};
    for (std::uint8_t note = 0; note < 100; ++note) {
        EXPECT_EQ(ports.send({0x90, note, 1}), 0);
        expected.push_back("144 " + std::to_string(note) + " 1");
    }
    ports.close();
    expected.push_back("close");
    EXPECT_EQ(some->takeLog(), expected);
    EXPECT_EQ(other->takeLog(), Log{});
    EXPECT_NE(ports.send({0x90, 60, 1}), 0) << "closed";
}

TEST_F(MidiPortsOfServices, AreClosedBeforeAnotherOneOpensAndAtTheEnd) {
    {
        MidiPorts own{{Some}, [this](RtMidi::Api) { return connect(some); }};
        own.list();
        EXPECT_EQ(own.open(0), 0);
        EXPECT_EQ(own.open(1), 0);
    }
    EXPECT_EQ(some->takeLog(), (Log{"open 0", "close", "open 1", "close"}));
}

TEST_F(MidiPortsOfServices, FailToOpenOutsideTheListAndWhereTheServiceRefuses) {
    ports.list();
    EXPECT_NE(ports.open(-1), 0);
    EXPECT_NE(ports.open(4), 0);
    EXPECT_EQ(ports.text(), "");
    other->refusesToOpen = true;
    EXPECT_NE(ports.open(0), 0);
    EXPECT_EQ(ports.text(), "the cable is cut");
    EXPECT_NE(ports.send({0x90, 60, 1}), 0);
    other->runs = false;
    EXPECT_NE(ports.open(0), 0);
    EXPECT_EQ(ports.text(), "");
    EXPECT_EQ(ports.open(2), 0);
}

TEST_F(MidiPortsOfServices, TellAFailedSendAtTheNextOne) {
    ports.list();
    ASSERT_EQ(ports.open(0), 0);
    other->failsToSend = true;
    ports.send({0x90, 60, 1});
    ASSERT_TRUE(ports.settles(LongTime));
    EXPECT_NE(ports.send({0x90, 61, 1}), 0);
    EXPECT_EQ(ports.text(), "the cable is cut");
    EXPECT_EQ(other->takeLog(), (Log{"open 0", "144 60 1"}));
}

TEST_F(MidiPortsOfServices, AreListedWithoutAKindThatHangs) {
    other->setHanging(true);
    some->ports = {"mine"};
    expectAnswer("list", [this] { ports.list(); });
    ASSERT_EQ(ports.count(), 1);
    EXPECT_EQ(ports.name(0), "mine");
    EXPECT_EQ(ports.open(0), 0);
    EXPECT_FALSE(ports.settles(10ms));
    other->setHanging(false);
    EXPECT_TRUE(ports.settles(LongTime));
    ports.list();
    EXPECT_EQ(ports.count(), 3) << "it answers again";
}

TEST_F(MidiPortsOfServices, ThatHangWhileTheyOpenGetLaterWhatWasSentMeanwhile) {
    ports.list();
    other->setHanging(true);
    expectAnswer("open", [this] { EXPECT_EQ(ports.open(0), 0); });
    EXPECT_EQ(ports.send({0xC0, 24, 0}), 0);
    EXPECT_EQ(other->takeLog(), Log{});
    other->setHanging(false);
    EXPECT_TRUE(ports.settles(LongTime));
    EXPECT_EQ(other->takeLog(), (Log{"open 0", "192 24 0"}));
}

TEST_F(MidiPortsOfServices, ThatFailLateFailAtSending) {
    ports.list();
    other->setHanging(true);
    other->refusesToOpen = true;
    EXPECT_EQ(ports.open(0), 0);
    other->setHanging(false);
    ASSERT_TRUE(ports.settles(LongTime));
    EXPECT_NE(ports.send({0xC0, 24, 0}), 0);
    EXPECT_EQ(ports.text(), "the cable is cut");
}

TEST_F(MidiPortsOfServices, ThatHangDropWhatTheyAreSentAfterAWhile) {
    ports.list();
    ASSERT_EQ(ports.open(0), 0);
    ASSERT_TRUE(ports.settles(LongTime));
    other->setHanging(true);
    expectAnswer("send", [this] { EXPECT_EQ(ports.send({0x90, 1, 1}), 0); });
    expectAnswer("send", [this] { EXPECT_EQ(ports.send({0x90, 2, 1}), 0); });
    std::this_thread::sleep_for(HangTime + 200ms);
    for (int message = 0; message < 1000; ++message)
        EXPECT_EQ(ports.send({0x90, 3, 1}), 0);
    other->setHanging(false);
    ASSERT_TRUE(ports.settles(LongTime));
    EXPECT_EQ(ports.send({0x90, 4, 1}), 0);
    ports.close();
    EXPECT_EQ(other->takeLog(), (Log{"open 0", "144 1 1", "144 2 1", "144 4 1", "close"}));
}

TEST_F(MidiPortsOfServices, ThatHangAreLeftForAnotherKindAndClosedLater) {
    ports.list();
    ASSERT_EQ(ports.open(0), 0);
    other->setHanging(true);
    expectAnswer("change", [this] { EXPECT_EQ(ports.open(2), 0); });
    EXPECT_EQ(ports.send({0x90, 60, 1}), 0);
    other->setHanging(false);
    ASSERT_TRUE(ports.settles(LongTime));
    EXPECT_EQ(other->takeLog(), (Log{"open 0", "close"}));
    EXPECT_EQ(some->takeLog(), (Log{"open 0", "144 60 1"}));
}

TEST_F(MidiPortsOfServices, EndWhileAServiceHangs) {
    expectAnswer("end", [this] {
        MidiPorts own{{Some}, [service = some](RtMidi::Api) { return connect(service); }};
        own.list();
        EXPECT_EQ(own.open(0), 0);
        some->setHanging(true);
    });
    EXPECT_EQ(some->takeLog(), Log{"open 0"});
    some->setHanging(false);
    const auto end = Clock::now() + LongTime;
    Log came;
    while (came.empty() && Clock::now() < end)
        came = some->takeLog();
    EXPECT_EQ(came, Log{"close"});
}

TEST(MidiPorts, GetTheBytesAsTheyAre) {
    for (const RtMidi::Api kind : {RtMidi::UNIX_JACK, RtMidi::WINDOWS_MM})
        for (const int status : {0x90, 0xB0, 0xC0, 0xCF, 0xD0})
            EXPECT_EQ(bytesForPort(kind, {static_cast<std::uint8_t>(status), 0, 0x80}), 3u);
}

// There a third byte would be another program change, to program 0.
TEST(MidiPorts, ThatTakeWholeEventsGetNoByteBehindAProgramChange) {
    for (const RtMidi::Api kind : {RtMidi::LINUX_ALSA, RtMidi::MACOSX_CORE}) {
        EXPECT_EQ(bytesForPort(kind, {0xC0, 24, 0}), 2u);
        EXPECT_EQ(bytesForPort(kind, {0xCF, 24, 0}), 2u);
        EXPECT_EQ(bytesForPort(kind, {0xD0, 24, 0}), 2u);
        EXPECT_EQ(bytesForPort(kind, {0xB0, 0, 0x80}), 3u);
        EXPECT_EQ(bytesForPort(kind, {0x90, 60, 0}), 3u);
    }
}

class PortsOfNoServer : public ::testing::Test {
  protected:
    void SetUp() override {
        const auto kinds = systemPortKinds();
        if (std::find(kinds.begin(), kinds.end(), RtMidi::UNIX_JACK) == kinds.end())
            GTEST_SKIP() << "the ports' library has no JACK";
        silenceSoundLibraries();
        qputenv("JACK_DEFAULT_SERVER", "nowhere");
        connection = connectToSystemPorts(RtMidi::UNIX_JACK);
        ASSERT_NE(connection, nullptr);
    }
    void TearDown() override { qunsetenv("JACK_DEFAULT_SERVER"); }
    std::unique_ptr<PortConnection> connection;
};

TEST_F(PortsOfNoServer, AreNoneWhichIsNoTrouble) {
    EXPECT_EQ(connection->count(), 0u);
    EXPECT_EQ(connection->trouble(), "") << "a warning only";
}

TEST_F(PortsOfNoServer, TellTheirTroubleWhenTheyOpen) {
    EXPECT_FALSE(connection->open(0));
    EXPECT_NE(connection->trouble(), "");
}

// The server passes the last messages on at its next period, if the port is still there.
TEST_F(PortsOfNoServer, WaitBeforeTheyGoForWhatWasSentLast) {
    connection->send({0x90, 60, 1});
    const auto start = Clock::now();
    connection.reset();
    EXPECT_GE(Clock::now() - start, 90ms);
    auto silent = connectToSystemPorts(RtMidi::UNIX_JACK);
    const auto again = Clock::now();
    silent.reset();
    EXPECT_LT(Clock::now() - again, 90ms) << "nothing was sent";
}

TEST(MidiPorts, AreNoDummies) {
    for (const RtMidi::Api kind : systemPortKinds())
        EXPECT_NE(kind, RtMidi::RTMIDI_DUMMY);
    EXPECT_FALSE(systemPortKinds().empty());
}

TEST(MidiPorts, OfThisMachineThatAreNotThereDoNotOpen) {
    MidiPorts ports;
    ports.list();
    EXPECT_FALSE(ports.name(ports.count()).has_value());
    EXPECT_NE(ports.open(ports.count()), 0);
    EXPECT_NE(ports.send({0x90, 60, 100}), 0);
    ports.close();
}

} // namespace
} // namespace tabrova
