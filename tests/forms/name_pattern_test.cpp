// Which names a pattern of a list lets through.
#include "forms/name_pattern.h"

#include <QString>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(NamePattern, WithoutAStarTheNameIsThePattern) {
    EXPECT_TRUE(fitsPattern(u"Cm", u"Cm"));
    EXPECT_FALSE(fitsPattern(u"Cm7", u"Cm"));
    EXPECT_FALSE(fitsPattern(u"C", u"Cm"));
    EXPECT_TRUE(fitsPattern(u"", u""));
    EXPECT_FALSE(fitsPattern(u"C", u""));
}

TEST(NamePattern, AStarStandsForAnyCharactersAndNone) {
    for (const char16_t* name : {u"C", u"Cm", u"C with a bass"})
        EXPECT_TRUE(fitsPattern(name, u"C*"));
    EXPECT_FALSE(fitsPattern(u"Am", u"C*"));
    EXPECT_TRUE(fitsPattern(u"anything", u"*"));
    EXPECT_TRUE(fitsPattern(u"", u"*"));
    EXPECT_TRUE(fitsPattern(u"C", u"C**"));
    EXPECT_TRUE(fitsPattern(u"a m7 of mine", u"*m7*"));
    EXPECT_FALSE(fitsPattern(u"a m of mine", u"*m7*"));
}

TEST(NamePattern, SeveralStarsAreTriedAtEachPlace) {
    EXPECT_TRUE(fitsPattern(u"aXbXbc", u"a*b*bc"));
    EXPECT_TRUE(fitsPattern(u"ababac", u"*abac"));
    EXPECT_FALSE(fitsPattern(u"ababab", u"*abac"));
    EXPECT_TRUE(fitsPattern(u"abcabd", u"*ab?"));
}

TEST(NamePattern, AQuestionMarkStandsForOneCharacter) {
    EXPECT_TRUE(fitsPattern(u"C7", u"C?"));
    EXPECT_FALSE(fitsPattern(u"C", u"C?"));
    EXPECT_FALSE(fitsPattern(u"C77", u"C?"));
    EXPECT_TRUE(fitsPattern(u"?", u"?"));
}

TEST(NamePattern, CaseDoesNotCount) {
    EXPECT_TRUE(fitsPattern(u"CM7", u"cm*"));
    EXPECT_TRUE(fitsPattern(u"ÉTUDE", u"ét*"));
}

TEST(NamePattern, OtherSignsStandForThemselves) {
    EXPECT_TRUE(fitsPattern(u"F#m7 (barre)", u"F#m7 (b*"));
    EXPECT_TRUE(fitsPattern(u"a.b[c]", u"a.b[c]"));
    EXPECT_FALSE(fitsPattern(u"aXb", u"a.b"));
}

// Would take longer than anybody lives if every star were tried against all others.
TEST(NamePattern, ManyStarsAreNoHazard) {
    EXPECT_FALSE(fitsPattern(QString(200, 'a'), QString("a*").repeated(100) + "b"));
}

} // namespace
} // namespace tabrova
