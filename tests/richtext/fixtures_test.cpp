// Whole files of several writers. The expected texts were compared with the text that another reader makes of
// them.
#include "richtext/state/rtf_reader.h"
#include "tests/richtext/rich_helpers.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace tabrova {
namespace {

using namespace tests;

RichText readFixture(const std::string& name) {
    std::ifstream file(TABROVA_FIXTURES "/" + name, std::ios::binary);
    std::stringstream bytes;
    bytes << file.rdbuf();
    EXPECT_TRUE(isRichText(bytes.str())) << name;
    return readRichText(bytes.str());
}

// The first run with this text.
std::string lookOf(const RichText& text, const QString& run) {
    for (const RichBlock& block : text.blocks)
        if (const auto* paragraph = std::get_if<RichParagraph>(&block))
            for (const RichRun& at : paragraph->runs)
                if (at.text == run) return described(at.look);
    return "not there";
}

TEST(Fixtures, LibreOffice) {
    const RichText text = readFixture("libreoffice.rtf");
    EXPECT_EQ(
        shown(text),
        "A lesson in many looks/Written for the reader’s sake — “with quotes”, dashes – and a ♯, ♭, ½./This "
        "paragraph is bold, italic, underlined, struck, both, red, marked, large, small, x2 and H2O, Small "
        "Caps, "
        "all caps. It goes on for a while so that it takes more than one line and shows how the lines of a "
        "justified paragraph are set at both edges of the page./To the right. Русский текст, ελληνικά, "
        "čeština, "
        "日本語./•>first bullet/•>second bullet with a text that is long enough to take another line, so "
        "that the "
        "hanging indent can be seen under the first line’s text and not under its bullet/•>inner bullet/ "
        "1.>one/ "
        "2.>two/ 3.>three/A hanging paragraph whose first line begins one centimetre further out than the "
        "others, "
        "which is seen only if the paragraph has more than one line of text./A link to a page and mail to "
        "the "
        "teacher./[String|Note|Fret 5;6|E|A;two columns|two "
        "rows;5|A|]/e|-----0---|/B|---1---1-|/G|-0-------|/<0> "
        "<1>/The end.");
    EXPECT_EQ(lookOf(text, "A lesson in many looks"), "font=7 size=44 bold color=204080");
    EXPECT_EQ(lookOf(text, "underlined"), "font=4 underline=1");
    EXPECT_EQ(lookOf(text, "both"), "font=4 bold italic");
    EXPECT_EQ(lookOf(text, "marked"), "font=4 back=ffff00");
    EXPECT_EQ(lookOf(text, "large"), "font=4 size=36");
    EXPECT_EQ(lookOf(text, "2"), "font=4 raised=8");
    EXPECT_EQ(lookOf(text, "Small Caps"), "font=4 capitals=2");
    EXPECT_EQ(lookOf(text, "a page"), "font=4 underline=1 color=000080 link=0");
    EXPECT_EQ(lookOf(text, "e|-----0---|"), "font=6 size=20");
    EXPECT_EQ(text.links,
              (std::vector<QString>{"https://example.org/tab?x=1&y=2", "mailto:teacher@example.org"}));
    EXPECT_EQ(text.fonts[6].name, "Liberation Mono");
    EXPECT_EQ(described(paragraphAt(text, 4).look), "left=709 first=-283 spacing=3 line=276 tab=709L");
    EXPECT_EQ(described(paragraphAt(text, 6).look),
              "left=1418 first=-283 below=140 spacing=3 line=276 tab=1418L");
    const RichTable& table = tableAt(text, 12);
    EXPECT_EQ(described(table.rows[0].look.cells[1]), "place=1 gap=28 back=d0e0ff");
    EXPECT_EQ(table.rows[2].look.cells[0].end, 1337);
    EXPECT_EQ(described(table.rows[2].look.cells[1]), "down=1 place=1 gap=28");
    EXPECT_EQ(described(table.rows[3].look.cells[2]), "down=2 place=1 gap=28");
    ASSERT_EQ(text.pictures.size(), 2U);
    EXPECT_EQ(text.pictures[0].kind, PictureKind::Png);
    EXPECT_EQ(text.pictures[1].kind, PictureKind::Jpeg);
    EXPECT_EQ(text.pictures[0].width, 1800);
    EXPECT_EQ(text.pictures[0].height, 1200);
}

TEST(Fixtures, Pandoc) {
    const RichText text = readFixture("pandoc.rtf");
    EXPECT_EQ(
        shown(text),
        "Pandoc writes a lesson/Italic, bold, struck, fixed, x2 and H2O. “Quotes”, an em—dash, ♯ and "
        "Русский./•>bullet one/•>bullet two/–>inner bullet/1.>number one/2.>number two/[String/|Note/|Fret "
        "5/;6/|E/|A/;5/|A/|D/]//A quoted paragraph./e|-----0---|^B|---1---1-|/A link, and pictures: <0> "
        "<1>/Last "
        "line.");
    EXPECT_EQ(lookOf(text, "Pandoc writes a lesson"), "size=36 bold");
    EXPECT_EQ(lookOf(text, "fixed"), "font=1");
    EXPECT_EQ(lookOf(text, "link"), "underline=1 link=0");
    EXPECT_EQ(described(paragraphAt(text, 4).look), "left=720 first=-360 below=180 tab=360L");
    const RichTable& table = tableAt(text, 7);
    EXPECT_EQ(described(table.rows[0].look.cells[0]), "B(drawn)");
    EXPECT_EQ(described(table.rows[1].look.cells[0]), "");
    EXPECT_EQ(described(std::get<RichParagraph>(table.rows[0].cells[1][0]).look), "side=2");
    EXPECT_EQ(text.pictures[1].kind, PictureKind::Jpeg);
    EXPECT_EQ(text.pictures[0].width, 2400);
}

TEST(Fixtures, ASmallEditor) {
    const RichText text = readFixture("small_editor.rtf");
    EXPECT_EQ(shown(text), "Open strings/The six strings are tuned in fourths, but for one “third”./•>E and "
                           "A/•>D and G/1.>Tune the "
                           "low E/2.>Go on from there/струна means string./e|--0--2--|^B|--1--3--|/Pages: "
                           "http://example.org/strings");
    EXPECT_EQ(lookOf(text, "Open strings"), "size=32 bold");
    EXPECT_EQ(lookOf(text, "fourths"), "size=22 italic");
    EXPECT_EQ(lookOf(text, "струна"), "font=2 size=22 color=c00000");
    EXPECT_EQ(described(paragraphAt(text, 2).look), "left=720 first=-360 below=200 spacing=3 line=276");
    EXPECT_EQ(lookOf(text, "http://example.org/strings"), "size=22 link=0");
    EXPECT_EQ(text.links, std::vector<QString>{"http://example.org/strings"});
}

TEST(Fixtures, AWordProcessor) {
    const RichText text = readFixture("word_processor.rtf");
    EXPECT_EQ(
        shown(text),
        "Chords/A chord is three notes or more–major or minor. See this page or the top./1.>Major: 1, 3, "
        "5/a.>C, E, G/2.>Minor: 1, ♭3, 5^with a flat third/[Chord|Frets;C|x32010]/<0>");
    EXPECT_EQ(lookOf(text, "Chords"), "size=32 bold");
    EXPECT_EQ(paragraphAt(text, 0).anchors, std::vector<QString>{"_Toc1"});
    EXPECT_EQ(text.links, (std::vector<QString>{"http://example.org/chords", "#_Toc1"}));
    EXPECT_EQ(lookOf(text, "the top"), "font=2 size=22 underline=1 color=0000ff link=1");
    EXPECT_EQ(described(paragraphAt(text, 3).look), "left=1440 first=-360");
    const RichTable& table = tableAt(text, 5);
    EXPECT_EQ(table.rows[0].look.left, -108);
    EXPECT_EQ(table.rows[0].look.gap, 108);
    EXPECT_EQ(described(table.rows[0].look.cells[0]), "back=d9e2f3 T(drawn width=10) B(drawn width=10)");
    EXPECT_EQ(described(table.rows[1].look.cells[0]), "");
    ASSERT_EQ(text.pictures.size(), 1U);
    EXPECT_EQ(text.pictures[0].width, 900);
}

TEST(Fixtures, AWriterOfLines) {
    const RichText text = readFixture("line_writer.rtf");
    EXPECT_EQ(shown(text),
              "Scales//It’s a row of notes — whole and half steps, ♯ and ♭, 🎵./>•>major/>•>minor/e|-0-1-3-|/"
              "B|-0-1-3-|");
    EXPECT_EQ(lookOf(text, "Scales"), "font=1 size=36 bold color=000000");
    EXPECT_EQ(lookOf(text, "e|-0-1-3-|"), "font=2 size=22 color=000000");
    EXPECT_EQ(described(paragraphAt(text, 3).look), "left=720 first=-720 tab=220L tab=720L");
}

} // namespace
} // namespace tabrova
