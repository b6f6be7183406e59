// Names of gigs, made and read by position; their dates' digits; their memos.
#include "organisers/band_manager/gig_file.h"

#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> parts(const QString& name) {
    const Gig gig = gigOf(name);
    return {gig.month.toStdString(), gig.day.toStdString(), gig.year.toStdString(), gig.title.toStdString()};
}
using Parts = std::vector<std::string>;

TEST(GigNames, HoldTheTextsAsTheyStand) {
    EXPECT_EQ(gigName({"05", "07", "2002", "Blue Note"}), "05-07-2002 -- Blue Note");
    EXPECT_EQ(gigName({"5", "7", "02", "x"}), "5-7-02 -- x");
    EXPECT_EQ(gigName({"", "", "", ""}), "-- -- ");
    EXPECT_EQ(gigName({"May", "first", "next year", "a -- b"}), "May-first-next year -- a -- b");
}

TEST(GigNames, AreReadByPosition) {
    EXPECT_EQ(parts("05-07-2002 -- Blue Note"), (Parts{"05", "07", "2002", " Blue Note"}));
    EXPECT_EQ(parts("05-07-2002 -- "), (Parts{"05", "07", "2002", " "}));
    EXPECT_EQ(parts("05-07-2002 --"), (Parts{"05", "07", "2002", ""}));
}

TEST(GigNames, OfAnotherFormGiveWhateverStandsThere) {
    EXPECT_EQ(parts("5-7-02 -- Blue Note"), (Parts{"5-", "-0", " -- ", "e Note"}));
    EXPECT_EQ(parts("notes"), (Parts{"no", "es", "", ""}));
    EXPECT_EQ(parts("x"), (Parts{"x", "", "", ""}));
    EXPECT_EQ(parts(""), (Parts{"", "", "", ""}));
}

TEST(GigNames, CountCharacters) {
    EXPECT_EQ(parts(QString::fromUtf8("éé-жж-🎸🎸🎸🎸 -- Ночь 🎸")), (Parts{"éé", "жж", "🎸🎸🎸🎸", " Ночь 🎸"}));
}

TEST(GigNames, HaveAHeadingWithTheBlankBeforeTheTitle) {
    EXPECT_EQ(gigHeading(gigOf("05-07-2002 -- Blue Note")), "05/07/2002:  Blue Note");
    EXPECT_EQ(gigHeading(gigOf("5-7-02 -- Blue Note")), "5-/-0/ -- : e Note");
}

TEST(GigDates, AreDecimalDigitsOfTheDay) {
    const Gig gig = gigOn(QDate(2002, 5, 7));
    EXPECT_EQ(gig.month, "5");
    EXPECT_EQ(gig.day, "7");
    EXPECT_EQ(gig.year, "2002");
    EXPECT_EQ(gig.title, "");
}

TEST(GigDates, AreFilledWithZeros) {
    const std::pair<const char*, const char*> short2[] = {
        {"", ""}, {"5", "05"}, {"12", "12"}, {"123", "123"}, {"x", "0x"}};
    for (const auto& [text, wanted] : short2) {
        EXPECT_EQ(padded({text, "10", "2002", ""}).month, wanted);
        EXPECT_EQ(padded({"10", text, "2002", ""}).day, wanted);
    }
    const std::pair<const char*, const char*> short4[] = {
        {"", ""}, {"7", "0007"}, {"87", "0087"}, {"987", "0987"}, {"1987", "1987"}, {"21987", "21987"}};
    for (const auto& [text, wanted] : short4)
        EXPECT_EQ(padded({"10", "10", text, ""}).year, wanted);
    EXPECT_EQ(gigName(padded(gigOn(QDate(987, 1, 2)))), "01-02-0987 -- ");
}

class GigMemos : public ::testing::Test {
  protected:
    std::string bytes() const {
        std::ifstream input(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    std::string read(const std::string& stored) const {
        std::ofstream(file, std::ios::binary) << stored;
        return readMemo(file).value_or("nothing").toStdString();
    }

    testing::TemporaryFolder folder;
    fs::path file = folder.path() / "gig";
};

TEST_F(GigMemos, AreOneLine) {
    EXPECT_TRUE(writeGig(file, "bring strings, and picks"));
    EXPECT_EQ(bytes(), "bring strings, and picks\r\n");
    EXPECT_EQ(readMemo(file), "bring strings");
    EXPECT_TRUE(writeGig(file, ""));
    EXPECT_EQ(bytes(), "\r\n");
    EXPECT_EQ(readMemo(file), "");
    EXPECT_TRUE(writeGig(file, "a\nb"));
    EXPECT_EQ(bytes(), "a b\r\n");
}

TEST_F(GigMemos, OfEveryLanguageComeBack) {
    for (const char* memo : {"café", "Гитара и усилитель", "Ã©", "🎸", "ï»¿"}) {
        EXPECT_TRUE(writeGig(file, QString::fromUtf8(memo)));
        EXPECT_EQ(readMemo(file), QString::fromUtf8(memo));
    }
    EXPECT_TRUE(writeGig(file, QString::fromUtf8("café")));
    EXPECT_EQ(bytes(), "caf\xE9\r\n");
}

TEST_F(GigMemos, AreReadAsAFirstItem) {
    EXPECT_EQ(read("  memo\r\nmore"), "memo");
    EXPECT_EQ(read("\"a, b\", c\r\n"), "a, b");
    EXPECT_EQ(read("\r\nlater"), "");
    EXPECT_EQ(read(""), "nothing");
}

TEST_F(GigMemos, AreNoneWithoutARegularFile) {
    EXPECT_EQ(readMemo(folder.path() / "missing"), std::nullopt);
    EXPECT_EQ(readMemo(folder.path()), std::nullopt);
    mkfifo(file.c_str(), 0600);
    EXPECT_EQ(readMemo(file), std::nullopt);
    EXPECT_FALSE(writeGig(file, "x"));
    EXPECT_FALSE(writeGig(folder.path(), "x"));
}

} // namespace
} // namespace tabrova
