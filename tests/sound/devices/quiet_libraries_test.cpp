// The terminal stays empty whatever the sound libraries find.
#include "sound/devices/quiet_libraries.h"
#include "sound/devices/system_midi_device.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <iostream>
#include <thread>

namespace tabrova {
namespace {

class QuietLibraries : public ::testing::Test {
  protected:
    QuietLibraries() {
        // No server of this machine is asked.
        qputenv("PULSE_SERVER", "unix:/nowhere");
        qputenv("JACK_DEFAULT_SERVER", "nowhere");
        qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
    }
    ~QuietLibraries() override { qunsetenv("JACK_DEFAULT_SERVER"); }
    QTemporaryDir folder;
};

TEST_F(QuietLibraries, WriteNothingWhenServicesAndBanksAreMissing) {
    QFile broken(folder.filePath("broken.sf2"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("RIFF\xff\xff\xff\xffsfbk" + QByteArray(2000, '\x7f'));
    broken.close();
    SoundBankPlaces places{{}, {}, {}, systemBankFolders()};
    ::testing::internal::CaptureStderr();
    ::testing::internal::CaptureStdout();
    places.setting = broken.fileName().toStdString();
    FluidSynthesizer synthesizer(places);
    synthesizer.open();
    synthesizer.waitUntilLoaded();
    MidiPorts ports;
    ports.list();
    const bool portsTold = ports.settles(std::chrono::minutes(1));
    const std::string written = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(written, "");
    EXPECT_TRUE(portsTold);
    EXPECT_TRUE(synthesizer.state().trouble.startsWith("broken.sf2 is no sound bank"));
}

TEST_F(QuietLibraries, StartNoServerUnlessTheUserSaysSo) {
    qunsetenv("JACK_NO_START_SERVER");
    silenceSoundLibraries();
    EXPECT_EQ(qgetenv("JACK_NO_START_SERVER"), "1");
    qputenv("JACK_NO_START_SERVER", "");
    silenceSoundLibraries();
    EXPECT_TRUE(qEnvironmentVariableIsEmpty("JACK_NO_START_SERVER"));
    qputenv("JACK_NO_START_SERVER", "1");
}

TEST(QuietErrorStreams, DropWhatTheirThreadWritesAndNothingElse) {
    ::testing::internal::CaptureStderr();
    std::cerr << "before " << std::flush;
    {
        const QuietErrorStream quiet;
        std::cerr << "hidden" << 'x' << std::flush << std::endl;
        {
            const QuietErrorStream inner;
            std::cerr << "hidden";
        }
        std::cerr << "hidden";
        std::thread([] { std::cerr << "another thread "; }).join();
        EXPECT_TRUE(std::cerr.good());
    }
    std::cerr << "after" << '!';
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "before another thread after!");
}

} // namespace
} // namespace tabrova
