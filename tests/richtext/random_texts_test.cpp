// Texts of pieces at random, and files that are cut or damaged: they are read within the bounds and laid out.
#include "richtext/document/rich_text_document.h"
#include "richtext/state/rtf_reader.h"
#include "richtext/state/rtf_words.h"
#include "tests/richtext/rich_helpers.h"
#include "tests/richtext/rich_rules.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>

namespace tabrova {
namespace {

using namespace tests;

void expectToBeShown(const std::string& bytes) {
    const RichText text = readRichText(bytes);
    RichRules rules(text);
    ASSERT_STREQ(rules.broken(), nullptr) << bytes;
    const auto document = richTextDocument(text, {96, 1.0});
    document->setTextWidth(600);
    ASSERT_FALSE(document->size().isEmpty()) << bytes;
}

std::string readFixture(const std::string& name) {
    std::ifstream file(TABROVA_FIXTURES "/" + name, std::ios::binary);
    std::stringstream bytes;
    bytes << file.rdbuf();
    EXPECT_FALSE(bytes.str().empty()) << name;
    return bytes.str();
}

constexpr const char* Fixtures[] = {"libreoffice.rtf", "pandoc.rtf", "small_editor.rtf", "word_processor.rtf",
                                    "line_writer.rtf"};

class RandomText {
  public:
    explicit RandomText(unsigned seed) : random_(seed) {
        for (const auto rows : {characterWords(), paragraphWords(), tableWords(), textWords(),
                                destinationWords(), headerWords()})
            for (const RtfWordRow& row : rows)
                words_.push_back(row.name);
    }

    std::string text(int pieces) {
        std::string all(Header);
        while (--pieces >= 0)
            all += piece();
        return all;
    }

  private:
    int number(int most) { return std::uniform_int_distribution(0, most)(random_); }

    std::string word() {
        constexpr int Numbers[] = {0,   42,   1,    2,    -1,    5,          23,         120,
                                   720, 2000, 9000, -360, 99999, 2147483647, -2147483647};
        std::string all =
            "\\" + std::string(words_[static_cast<std::size_t>(number(static_cast<int>(words_.size()) - 1))]);
        if (number(1) == 1) all += std::to_string(Numbers[number(std::size(Numbers) - 1)]);
        return all + (number(3) == 0 ? "" : " ");
    }

    std::string piece() {
        constexpr const char* Whole[] = {"word ",
                                         "\\'e4",
                                         "\\u9839?",
                                         "\\u-10179?\\u-8716?",
                                         "\\~",
                                         "\\\\",
                                         "\\\n",
                                         "\t",
                                         "\\cell",
                                         "\\row",
                                         "\\par ",
                                         "\\pard\\intbl ",
                                         "\\trowd\\cellx1000\\clmgf\\cellx2000\\clmrg\\cellx3000 ",
                                         "\\intbl\\itap2 x\\nestcell ",
                                         "{\\*\\nesttableprops\\trowd\\cellx500\\nestrow}",
                                         "{\\pict\\pngblip 89504e47",
                                         "{\\pict\\pngblip\\bin3 }}}}",
                                         "{\\field{\\*\\fldinst HYPERLINK \"http://a\"}{\\fldrslt b}}",
                                         "{\\listtext 1.\\tab}",
                                         "{\\*",
                                         "\\bin5 "};
        switch (number(7)) {
        case 0:
            return "{";
        case 1:
            return "}";
        case 2:
        case 3:
            return Whole[number(std::size(Whole) - 1)];
        default:
            return word();
        }
    }

    std::mt19937 random_;
    std::vector<std::string_view> words_;
};

TEST(RandomTexts, AreShown) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        SCOPED_TRACE(seed);
        expectToBeShown(RandomText(seed).text(150));
    }
}

TEST(RandomTexts, CutFilesAreShown) {
    std::mt19937 random(7);
    for (const char* name : Fixtures) {
        const std::string whole = readFixture(name);
        for (int time = 0; time < 40; ++time)
            expectToBeShown(whole.substr(0, random() % whole.size()));
    }
}

TEST(RandomTexts, DamagedFilesAreShown) {
    std::mt19937 random(8);
    for (const char* name : Fixtures) {
        const std::string whole = readFixture(name);
        for (int time = 0; time < 40; ++time) {
            std::string damaged = whole;
            for (std::size_t change = 0; change < 1 + damaged.size() / 200; ++change)
                damaged[random() % damaged.size()] = "{}\\ 09az\xe4\0"[random() % 11];
            expectToBeShown(damaged);
        }
    }
}

} // namespace
} // namespace tabrova
