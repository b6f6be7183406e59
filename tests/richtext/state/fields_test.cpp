// Fields: links, and those of which the result alone is shown.
#include "richtext/state/rtf_state.h"
#include "tests/richtext/rich_helpers.h"

#include <gmock/gmock.h>

namespace tabrova {
namespace {

using namespace tests;
using testing::ElementsAre;

QString linkOf(const char* instruction) { return linkOfInstruction(QString::fromUtf8(instruction)); }

std::string field(const std::string& instruction, const std::string& result) {
    return "{\\field{\\*\\fldinst " + instruction + "}{\\fldrslt " + result + "}}";
}

TEST(FieldLinks, AreTheAddressOfAHyperlink) {
    EXPECT_EQ(linkOf("HYPERLINK \"http://a.b/c d\""), "http://a.b/c d");
    EXPECT_EQ(linkOf(" HYPERLINK http://a "), "http://a");
    EXPECT_EQ(linkOf("hyperlink \"mailto:x@y\" "), "mailto:x@y");
    EXPECT_EQ(linkOf("HYPERLINK"), "");
    EXPECT_EQ(linkOf("HYPERLINK \"\""), "");
    EXPECT_EQ(linkOf("HYPERLINK \"\" \"http://a\""), "http://a");
    EXPECT_EQ(linkOf("HYPERLINK \"http://a"), "http://a");
}

TEST(FieldLinks, MayLeadToAPlace) {
    EXPECT_EQ(linkOf("HYPERLINK \\l \"place\""), "#place");
    EXPECT_EQ(linkOf("HYPERLINK \\l place"), "#place");
    EXPECT_EQ(linkOf("HYPERLINK \"http://a\" \\l \"p\""), "http://a#p");
    EXPECT_EQ(linkOf("HYPERLINK \\l \"p\" \"http://a\""), "http://a#p");
    EXPECT_EQ(linkOf("HYPERLINK \"#place\""), "#place");
    EXPECT_EQ(linkOf("HYPERLINK \\l"), "");
}

TEST(FieldLinks, OtherSwitchesAreNoPartOfThem) {
    EXPECT_EQ(linkOf("HYPERLINK \\o \"a hint\" \"http://a\""), "http://a");
    EXPECT_EQ(linkOf("HYPERLINK \"http://a\" \\t \"_blank\" \\n \\h"), "http://a");
    EXPECT_EQ(linkOf("HYPERLINK \\n \"http://a\" \"b\""), "http://a");
    EXPECT_EQ(linkOf("HYPERLINK \"\\l\""), "\\l");
}

TEST(FieldLinks, OtherFieldsAreNone) {
    EXPECT_EQ(linkOf("PAGE"), "");
    EXPECT_EQ(linkOf("HYPERLINKS \"a\""), "");
    EXPECT_EQ(linkOf("INCLUDEPICTURE \"http://a\""), "");
    EXPECT_EQ(linkOf(""), "");
    EXPECT_EQ(linkOf("\""), "");
}

TEST(FieldLinks, HaveALongestLength) {
    EXPECT_EQ(linkOf(("HYPERLINK " + std::string(2000, 'a')).c_str()).size(), 2000);
    EXPECT_EQ(linkOf(("HYPERLINK " + std::string(2001, 'a')).c_str()), "");
}

TEST(Fields, ALinksResultBearsTheLink) {
    const RichText text = readBody("a" + field("HYPERLINK \"http://x\"", "b{\\b c}") + "d");
    EXPECT_EQ(shown(text), "abcd");
    EXPECT_THAT(text.links, ElementsAre("http://x"));
    EXPECT_EQ(described(runAt(text, 0).look), "");
    EXPECT_EQ(described(runAt(text, 1).look), "link=0");
    EXPECT_EQ(described(runAt(text, 2).look), "bold link=0");
    EXPECT_EQ(described(runAt(text, 3).look), "");
}

TEST(Fields, AnInstructionMayComeInPieces) {
    const RichText text = readBody(
        "{\\field{\\*\\fldinst{HYPER}{LINK \"http://x/{\\b \\'e4}\\\\\\u9839?\\~y\" }}{\\fldrslt b}}");
    EXPECT_THAT(text.links, ElementsAre("http://x/ä\\♯\u00A0y"));
    EXPECT_EQ(shown(text), "b");
}

TEST(Fields, OtherFieldsShowTheirResult) {
    const RichText text = readBody(field("PAGE", "7") + field("DATE \\\\@ \"d\"", "1.1."));
    EXPECT_EQ(shown(text), "71.1.");
    EXPECT_TRUE(text.links.empty());
    EXPECT_EQ(described(runAt(text, 0).look), "");
}

TEST(Fields, OneAfterAnotherHasItsOwnLink) {
    const RichText text =
        readBody(field("HYPERLINK a", "x") + field("HYPERLINK b", "y") + field("PAGE", "z"));
    EXPECT_EQ(described(runAt(text, 0).look), "link=0");
    EXPECT_EQ(described(runAt(text, 1).look), "link=1");
    EXPECT_EQ(described(runAt(text, 2).look), "");
}

TEST(Fields, AFieldInALinksResultBelongsToTheLink) {
    const RichText text =
        readBody(field("HYPERLINK a", "x" + field("PAGE", "7") + field("HYPERLINK b", "y") + "z"));
    EXPECT_EQ(shown(text), "x7yz");
    EXPECT_EQ(described(runAt(text, 0).look), "link=0");
    EXPECT_EQ(described(runAt(text, 1).look), "link=1");
    EXPECT_EQ(described(runAt(text, 2).look), "link=0");
}

TEST(Fields, AFieldInAnInstructionIsNoText) {
    const RichText text = readBody(field("HYPERLINK " + field("QUOTE", "a"), "x"));
    EXPECT_EQ(shown(text), "x");
}

TEST(Fields, ALinkMayGoOverParagraphs) {
    const RichText text = readBody(field("HYPERLINK a", "x\\par y"));
    EXPECT_EQ(shown(text), "x/y");
    EXPECT_EQ(described(paragraphAt(text, 0).runs[0].look), "link=0");
    EXPECT_EQ(described(paragraphAt(text, 1).runs[0].look), "link=0");
}

TEST(Fields, OnlyAFieldHasLinks) {
    EXPECT_EQ(described(runAt(readBody("{\\*\\fldinst HYPERLINK a}{\\fldrslt x}"), 0).look), "");
    EXPECT_EQ(described(runAt(readBody("{\\field{\\fldrslt x}{\\*\\fldinst HYPERLINK a}}"), 0).look), "");
}

TEST(Fields, AnInstructionHasALongestLength) {
    EXPECT_TRUE(readBody(field("HYPERLINK a \"" + std::string(5000, 'b') + "\" \\\\l c", "x")).links[0] ==
                "a");
}

// Writers of old left the result of such a field empty.
TEST(Fields, ASymbolIsTheCharacterOfItsFont) {
    EXPECT_EQ(shownBody("a" + field("SYMBOL 183 \\\\f \"Symbol\" \\\\s 10", "\\f2\\fs20") + "b"), "a•b");
    EXPECT_EQ(shownBody("a" + field("SYMBOL 97 \\\\f Symbol", "") + "b"), "aαb");
    EXPECT_EQ(shownBody("a" + field("symbol 252 \\\\f \"Wingdings\"", "") + "b"), "a✓b");
    EXPECT_EQ(shownBody("a" + field("SYMBOL 150", "") + "b"), "a–b");
    EXPECT_EQ(shownBody("a" + field("SYMBOL 9839 \\\\u", "") + "b"), "a♯b");
    EXPECT_EQ(shownBody("a" + field("SYMBOL 183 \\\\f \"Symbol\"", "x") + "b"), "axb");
    EXPECT_EQ(shownBody("a" + field("SYMBOL", "") + field("SYMBOL x", "") + field("SYMBOL 999999", "") + "b"),
              "ab");
}

} // namespace
} // namespace tabrova
