// Which of the installed languages is the one in use.
#include "core/language/language_file.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

class LanguageInUse : public ::testing::Test {
  protected:
    LanguageInUse() {
        const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
        folder = fs::path(::testing::TempDir()) / (std::string("LanguageInUse.") + test->name());
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~LanguageInUse() override { fs::remove_all(folder); }
    void install(const char* name, const char* text) {
        fs::create_directories(installedLanguages(folder) / name);
        std::ofstream(installedLanguages(folder) / name / "lang.trl", std::ios::binary) << text;
    }
    void activate(const char* text) { std::ofstream(activeLanguageFile(folder), std::ios::binary) << text; }

    fs::path folder;
};

TEST_F(LanguageInUse, IsTheOneWhoseLinesAreTheActiveOnes) {
    install("A", "Tabrova\r\nSame\r\none\r\n");
    install("B", "Tabrova\r\nSame\r\ntwo\r\n");
    activate("Tabrova\nSame\ntwo\n");
    EXPECT_EQ(languageInUse(folder), "B");
}

TEST_F(LanguageInUse, IsTheOneThatCallsItselfTheSameIfTheLinesHaveChanged) {
    install("A", "Tabrova\nFirst\none\n");
    install("B", "Tabrova\nSecond\ntwo\nthree\n");
    activate("Tabrova\nSecond\ntwo\n");
    EXPECT_EQ(languageInUse(folder), "B");
}

TEST_F(LanguageInUse, IsNoneWithoutAFileOrWithOneOfItsOwn) {
    install("A", "");
    install("B", "Tabrova\n\n");
    fs::create_directories(installedLanguages(folder) / "C");
    EXPECT_EQ(languageInUse(folder), "");
    for (const char* text : {"", "Tabrova", "Tabrova\n\nother\n", "Tabrova\nThird\n"}) {
        activate(text);
        EXPECT_EQ(languageInUse(folder), "") << text;
    }
}

} // namespace
} // namespace tabrova
