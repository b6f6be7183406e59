// Names come through as texts and back, whatever bytes they are made of.
#include "platform/paths.h"

#include <gtest/gtest.h>

#include <random>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

// A variable of the environment for the length of a test.
class Variable {
  public:
    Variable(const char* name, const QByteArray& value) : name_(name), before_(qgetenv(name)) {
        qputenv(name, value);
    }
    ~Variable() { qputenv(name_, before_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    const char* name_;
    QByteArray before_;
};

TEST(Paths, ReadableNamesAreTheirTexts) {
    for (const char* name : {"song.tr3", "/home/a b/Übung №1 ♯.tr3", "𝄞 clef", ""}) {
        EXPECT_EQ(textOf(fs::path(name)), QString::fromUtf8(name));
        EXPECT_EQ(pathOf(textOf(fs::path(name))).native(), name);
    }
    // The mark that begins some texts is a part of a name.
    EXPECT_EQ(textOf(fs::path("\xEF\xBB\xBFmark")), QChar(0xFEFF) + QString("mark"));
    EXPECT_EQ(pathOf(textOf(fs::path("\xEF\xBB\xBFmark"))).native(), "\xEF\xBB\xBFmark");
}

TEST(Paths, BytesThatAreNoTextComeThrough) {
    for (const std::string name :
         {"\xff\xfe.sf2", "\xff", "a\x80z", "\xC3", "\xC3\xA9\xC3", "\xED\xA0\xBD\xED\xB8\x80",
          "\xF0\x9D\x84", "\xF0\x9D\x84\x9E\xff", "\xC0\xAF", "\xF5\x80\x80\x80"}) {
        EXPECT_EQ(pathOf(textOf(fs::path(name))).native(), name);
        EXPECT_FALSE(textOf(fs::path(name)).contains(QChar::ReplacementCharacter));
    }
    EXPECT_EQ(textOf(fs::path("a\xff")), QString("a") + QChar(0xDCFF));
    EXPECT_EQ(textOf(fs::path("\x80"
                              "a")),
              QChar(0xDC80) + QString("a"));
}

// Beside bytes that are no text the characters of a name stay what they are.
TEST(Paths, CharactersOfEveryLengthStandBesideBytes) {
    for (const char* character : {"a", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xEF\xBF\xBF",
                                  "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        const std::string name = std::string(character) + "\xff" + character;
        const QString text = QString::fromUtf8(character);
        EXPECT_EQ(textOf(fs::path(name)), text + QChar(0xDCFF) + text);
        EXPECT_EQ(pathOf(textOf(fs::path(name))).native(), name);
    }
}

TEST(Paths, AnyBytesAtRandomComeThrough) {
    std::mt19937 random(7);
    const std::string bytes = "ab/\x80\x8f\x9d\xa9\xbf\xc3\xe2\xed\xf0\xff\xef\xbb";
    for (int each = 0; each < 20000; ++each) {
        std::string name;
        for (auto length = random() % 9; length > 0; --length)
            name.push_back(bytes[random() % bytes.size()]);
        ASSERT_EQ(pathOf(textOf(fs::path(name))).native(), name) << testing::PrintToString(name);
    }
}

TEST(Paths, OtherHalvesOfPairsAreNoNames) {
    EXPECT_EQ(pathOf(QString(QChar(0xD800))).native(), "?");
    EXPECT_EQ(pathOf(QString("a") + QChar(0xDC7F)).native(), "a?");
}

TEST(Paths, TheEnvironmentIsReadAsBytes) {
    const Variable variable("TABROVA_TEST_PATH", "/somewhere/\xff\xfe");
    EXPECT_EQ(environmentPath("TABROVA_TEST_PATH").native(), "/somewhere/\xff\xfe");
    EXPECT_TRUE(environmentPath("TABROVA_TEST_NO_SUCH").empty());
}

TEST(Paths, TheUsersDataFolderFollowsTheEnvironment) {
    {
        const Variable data("XDG_DATA_HOME", "/somewhere/data");
        EXPECT_EQ(userDataFolder(), fs::path("/somewhere/data"));
    }
    {
        const Variable data("XDG_DATA_HOME", "/somewhere/\xff");
        EXPECT_EQ(userDataFolder().native(), "/somewhere/\xff");
    }
    const Variable data("XDG_DATA_HOME", "");
    {
        const Variable home("HOME", "/somewhere/me");
        EXPECT_EQ(userDataFolder(), fs::path("/somewhere/me/.local/share"));
    }
    const Variable home("HOME", "/somewhere/\xff\xfe");
    EXPECT_EQ(userDataFolder().native(), "/somewhere/\xff\xfe/.local/share");
}

} // namespace
} // namespace tabrova
