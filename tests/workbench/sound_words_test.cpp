// What the sound has to say, in other words.
#include "workbench/sound_words.h"

#include "core/language/language_lines.h"
#include "platform/synthesizer.h"

#include <gtest/gtest.h>

#include <map>

namespace tabrova {
namespace {

using namespace sound_trouble;

LanguageWords foreignWords() {
    LanguageWords words;
    words.noBank = "A";
    words.bankUnreadable = "B";
    words.noOutput = "C";
    words.noAnswer = "D";
    words.noBankHere = "a";
    words.noOutputHere = "c";
    words.noAnswerHere = "d";
    return words;
}

TEST(SoundWords, EverySentenceHasItsTranslation) {
    const LanguageWords words = foreignWords();
    EXPECT_EQ(toldTrouble(NoBank, words), "A");
    EXPECT_EQ(toldTrouble(QString("my.sf2 ") + BankUnreadable + ' ' + NoOutput, words), "my.sf2 B C");
    EXPECT_EQ(toldTrouble(NoAnswer, words), "D");
    EXPECT_EQ(toldTrouble("something else", words), "something else");
    EXPECT_EQ(toldTrouble(NoBank, LanguageWords()), NoBank) << "as long as no language is loaded";
}

TEST(SoundWords, InOneLineOnlyWhatKeepsTheSoundAway) {
    const LanguageWords words = foreignWords();
    EXPECT_EQ(troubleHere(NoBank, words), "a");
    EXPECT_EQ(troubleHere(NoOutput, words), "c");
    EXPECT_EQ(troubleHere(QString("my.sf2 ") + BankUnreadable + ' ' + NoOutput, words), "c");
    EXPECT_EQ(troubleHere(NoAnswer, words), "d");
    EXPECT_EQ(troubleHere(QString("my.sf2 ") + BankUnreadable, words), "") << "another bank sounds";
    EXPECT_EQ(troubleHere("", words), "");
}

TEST(SoundWords, TheDefaultLanguageSaysWhatTheSynthesizerSays) {
    std::map<std::string, std::string> lines;
    for (const LanguageLine& line : languageLinesOf("frmMain"))
        if (line.use == LineUse::Message) lines[line.target] = line.text;
    EXPECT_EQ(lines["noBank"], NoBank);
    EXPECT_EQ(lines["bankUnreadable"], BankUnreadable);
    EXPECT_EQ(lines["noOutput"], NoOutput);
    EXPECT_EQ(lines["noAnswer"], NoAnswer);
}

TEST(SoundWords, TheFilterKeepsItsPatterns) {
    LanguageWords words;
    EXPECT_EQ(soundBankFilter(words), "Sound Banks|*.sf2;*.sf3");
    words.soundBanks = "Klang|bänke";
    EXPECT_EQ(soundBankFilter(words), "Klangbänke|*.sf2;*.sf3");
}

} // namespace
} // namespace tabrova
