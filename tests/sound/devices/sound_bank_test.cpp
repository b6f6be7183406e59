// Which sound bank is found where.
#include "sound/devices/sound_bank.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

class SoundBanks : public ::testing::Test {
  protected:
    SoundBanks() {
        std::string name = (fs::temp_directory_path() / "banksXXXXXX").string();
        folder = mkdtemp(name.data());
        for (const char* sub : {"own", "system", "other"})
            fs::create_directory(folder / sub);
        places.ownFolder = folder / "own";
        places.systemFolders = {folder / "system", folder / "other"};
    }
    ~SoundBanks() override { fs::remove_all(folder); }

    fs::path bank(const std::string& name, const std::string& head = "RIFF....sfbk") {
        std::ofstream(folder / name, std::ios::binary) << head << std::string(100, 'x');
        return folder / name;
    }

    fs::path folder;
    SoundBankPlaces places;
    using Files = std::vector<fs::path>;
};

TEST_F(SoundBanks, AreNoneOnAnEmptyMachine) { EXPECT_TRUE(soundBanks(places).empty()); }

TEST_F(SoundBanks, AreTakenInTheirOrder) {
    places.setting = bank("mine.sf2");
    places.environment = bank("theirs.sf3");
    const Files wanted = {places.setting,
                          places.environment,
                          bank("own/a.sf3"),
                          bank("own/b.SF2"),
                          bank("system/default-GM.sf2"),
                          bank("other/default-GM.sf2"),
                          bank("other/default.sf2"),
                          bank("system/FluidR3_GM.sf2"),
                          bank("system/TimGM6mb.sf2")};
    EXPECT_EQ(soundBanks(places), wanted);
}

TEST_F(SoundBanks, StandInTheListOnce) {
    places.setting = places.environment = bank("own/a.sf2");
    EXPECT_EQ(soundBanks(places), Files{places.setting});
}

TEST_F(SoundBanks, OfOtherNamesAreNotTakenFromTheSystem) {
    bank("system/piano only.sf2");
    EXPECT_TRUE(soundBanks(places).empty());
}

TEST_F(SoundBanks, AreKnownByTheirFirstBytes) {
    EXPECT_TRUE(isSoundBank(bank("good.sf2")));
    EXPECT_FALSE(isSoundBank(bank("wave.sf2", "RIFF....WAVE")));
    EXPECT_FALSE(isSoundBank(bank("text.sf2", "not a bank..")));
    const std::string head = "RIFF....sfbk";
    for (const std::size_t at : {0u, 3u, 8u, 11u}) {
        std::string wrong = head;
        wrong[at] = 'X';
        EXPECT_FALSE(isSoundBank(bank("wrong.sf2", wrong))) << wrong;
    }
    std::ofstream(folder / "head.sf2") << head;
    EXPECT_TRUE(isSoundBank(folder / "head.sf2"));
    std::ofstream(folder / "short.sf2") << "RIFF";
    EXPECT_FALSE(isSoundBank(folder / "short.sf2"));
    EXPECT_FALSE(isSoundBank(folder / "own"));
    EXPECT_FALSE(isSoundBank(folder / "missing.sf2"));
    EXPECT_FALSE(isSoundBank({}));
    places.setting = folder / "text.sf2";
    EXPECT_TRUE(soundBanks(places).empty());
}

TEST_F(SoundBanks, StandInTheFoldersOfTheUserAndOfTheSystem) {
    const QByteArray home = qgetenv("XDG_DATA_HOME");
    const QByteArray system = qgetenv("XDG_DATA_DIRS");
    qputenv("XDG_DATA_HOME", "/user");
    qputenv("XDG_DATA_DIRS", "/local:/shared");
    Files wanted;
    for (const char* base : {"/user", "/local", "/shared"})
        for (const char* sub : {"sounds/sf2", "sounds/sf3", "soundfonts"})
            wanted.push_back(fs::path(base) / sub);
    EXPECT_EQ(systemBankFolders(), wanted);
    home.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", home);
    system.isNull() ? qunsetenv("XDG_DATA_DIRS") : qputenv("XDG_DATA_DIRS", system);
}

} // namespace
} // namespace tabrova
