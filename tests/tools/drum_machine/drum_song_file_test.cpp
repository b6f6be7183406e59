// The file of a drum song: its lines, and what short, long and damaged files give.
#include "tools/drum_machine/drum_song_file.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace tabrova {
namespace {

constexpr int Lines = 25633;

std::string bytesOf(const DrumSong& song) {
    std::ostringstream stream;
    drumSongText(song).writeTo(stream);
    return stream.str();
}

std::vector<std::string> linesOf(const DrumSong& song) {
    std::vector<std::string> lines;
    std::istringstream stream(bytesOf(song));
    for (std::string line; std::getline(stream, line);) {
        EXPECT_EQ(line.back(), '\r');
        line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

bool read(DrumSong& song, const std::vector<std::string>& lines, const std::string& end = "\r\n") {
    std::string text;
    for (const std::string& line : lines)
        text += line + end;
    std::istringstream stream(text);
    return readDrumSong(song, stream);
}

DrumSong randomSong(unsigned seed) {
    std::mt19937 chance(seed);
    DrumSong song;
    for (DrumRow& row : song.rows) {
        row.drum = static_cast<int>(chance() % 46);
        row.volume = 20 + static_cast<int>(chance() % 108);
        for (std::size_t position = 0; position < row.Steps.size(); ++position)
            row.Steps[position] = chance() % 3 == 0;
    }
    song.speed = 20 + static_cast<int>(chance() % 1181);
    return song;
}

bool same(const DrumSong& one, const DrumSong& other) { return bytesOf(one) == bytesOf(other); }

TEST(DrumSongFile, OfAnEmptySong) {
    const auto lines = linesOf(DrumSong());
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(Lines));
    for (std::size_t line = 0; line < lines.size(); ++line)
        EXPECT_EQ(lines[line], line < 16    ? std::to_string(line)
                               : line < 32  ? "100"
                               : line == 32 ? "480"
                                            : "False");
}

TEST(DrumSongFile, HoldsTheStepsRowByRow) {
    DrumSong song;
    song.rows[0].Steps[1] = true;
    song.rows[1].Steps[0] = true;
    song.rows[15].Steps[1599] = true;
    const auto lines = linesOf(song);
    for (std::size_t line = 33; line < lines.size(); ++line)
        EXPECT_EQ(lines[line], line == 34 || line == 33 + 1600 || line == 25632 ? "True" : "False");
}

TEST(DrumSongFile, IsReadAsItWasWritten) {
    for (unsigned seed = 0; seed < 5; ++seed) {
        const DrumSong song = randomSong(seed);
        DrumSong again = randomSong(seed + 100);
        EXPECT_TRUE(read(again, linesOf(song)));
        EXPECT_TRUE(same(again, song));
        DrumSong plain;
        EXPECT_TRUE(read(plain, linesOf(song), "\n"));
        EXPECT_TRUE(same(plain, song));
    }
}

TEST(DrumSongFile, ThatIsShortGivesWhatItHas) {
    const DrumSong song = randomSong(1);
    const auto lines = linesOf(song);
    for (const int count : {0, 1, 15, 16, 17, 31, 32, 33, 34, 40, 1632, 1633, 1634, 20000, 25632}) {
        const DrumSong before = randomSong(2);
        DrumSong after = before;
        const std::vector<std::string> part(lines.begin(), lines.begin() + count);
        EXPECT_FALSE(read(after, part)) << count;
        auto expected = linesOf(before);
        std::copy(part.begin(), part.end(), expected.begin());
        EXPECT_EQ(linesOf(after), expected) << count;
    }
}

TEST(DrumSongFile, ThatIsLongIsReadUpToItsLastStep) {
    const DrumSong song = randomSong(3);
    auto lines = linesOf(song);
    lines.insert(lines.end(), {"", "True", "rubbish"});
    DrumSong again;
    EXPECT_TRUE(read(again, lines));
    EXPECT_TRUE(same(again, song));
}

TEST(DrumSongFile, ThatIsDamagedIsReadUpToTheDamage) {
    const auto lines = linesOf(randomSong(4));
    const std::pair<int, const char*> damages[] = {
        {0, ""},       {3, "x"},     {15, "46"},  {15, "-2"},    {7, "99999999999"},
        {16, "loud"},  {31, ""},     {32, "1 2"}, {33, ""},      {33, "yes"},
        {1700, "Tru"}, {25632, "-"}, {5, "3,5"},  {20, "1e400"}, {25632, "1e9 "}};
    for (const auto& [line, damage] : damages) {
        auto damaged = lines;
        damaged[static_cast<std::size_t>(line)] = damage;
        const DrumSong before = randomSong(5);
        DrumSong after = before;
        const bool good = std::string(damage) == "1e9 ";
        EXPECT_EQ(read(after, damaged), good) << line << " " << damage;
        auto expected = linesOf(before);
        std::copy(lines.begin(), lines.begin() + line, expected.begin());
        if (good) expected.back() = "True";
        EXPECT_EQ(linesOf(after), expected) << line << " " << damage;
    }
}

TEST(DrumSongFile, TakesBlanksAndOtherFormsOfNumbersAndBooleans) {
    auto lines = linesOf(DrumSong());
    lines[0] = " 7 ";
    lines[1] = "2.5";
    lines[2] = "-1";
    lines[16] = " 64";
    lines[17] = "1e2";
    lines[32] = "300.5 ";
    const std::pair<const char*, bool> booleans[] = {{"true", true}, {"TRUE", true},   {" True ", true},
                                                     {"-1", true},   {"0", false},     {"1", true},
                                                     {"0.4", true},  {"false", false}, {"FaLsE", false}};
    std::size_t line = 33;
    for (const auto& each : booleans)
        lines[line++] = each.first;
    DrumSong song;
    ASSERT_TRUE(read(song, lines));
    EXPECT_EQ(song.rows[0].drum, 7);
    EXPECT_EQ(song.rows[1].drum, 2);
    EXPECT_EQ(song.rows[2].drum, -1);
    EXPECT_EQ(song.rows[0].volume, 64);
    EXPECT_EQ(song.rows[1].volume, 100);
    EXPECT_EQ(song.speed, 300);
    for (std::size_t step = 0; step < std::size(booleans); ++step)
        EXPECT_EQ(song.rows[0].Steps[step], booleans[step].second) << booleans[step].first;
}

TEST(DrumSongFile, BringsNumbersIntoTheirSliders) {
    const std::tuple<const char*, int, int> numbers[] = {
        {"19", 20, 20},      {"-5", 20, 20}, {"128", 127, 128}, {"40000", 127, 1200},
        {"1201", 127, 1200}, {"20", 20, 20}, {"127", 127, 127}};
    for (const auto& [text, volume, speed] : numbers) {
        auto lines = linesOf(DrumSong());
        lines[31] = lines[32] = text;
        DrumSong song;
        ASSERT_TRUE(read(song, lines));
        EXPECT_EQ(song.rows[15].volume, volume) << text;
        EXPECT_EQ(song.speed, speed) << text;
    }
}

TEST(DrumSongFile, OfRubbishChangesNothing) {
    std::mt19937 chance(6);
    for (int round = 0; round < 50; ++round) {
        std::string bytes(chance() % 3000, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(chance());
        if (!bytes.empty()) bytes.front() = '?';
        std::istringstream stream(bytes);
        DrumSong song;
        EXPECT_FALSE(readDrumSong(song, stream));
        EXPECT_TRUE(same(song, DrumSong()));
    }
}

} // namespace
} // namespace tabrova
