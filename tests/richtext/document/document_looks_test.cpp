// The looks of characters and paragraphs as formats of the document, and where their text is laid.
#include "richtext/document/rich_formats.h"
#include "richtext/document/rich_text_document.h"
#include "richtext/state/rtf_reader.h"
#include "tests/richtext/rich_helpers.h"

#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QUrl>

namespace tabrova {
namespace {

using namespace tests;

std::unique_ptr<QTextDocument> documentOf(const std::string& body, int pixelsPerInch = 96) {
    return richTextDocument(readBody(body), {pixelsPerInch, 1.0});
}

QTextCharFormat characterFormatOf(const std::string& words) {
    return documentOf(words + " x")->begin().begin().fragment().charFormat();
}

QTextBlockFormat blockFormatOf(const std::string& words, int pixelsPerInch = 96) {
    return documentOf(words + " x\\par", pixelsPerInch)->begin().blockFormat();
}

TEST(DocumentLooks, TextIsTheParagraphs) {
    EXPECT_EQ(documentOf("a\\par b\\line c\\par\\tab d")->toPlainText(), "a\nb\nc\n\td");
    EXPECT_EQ(documentOf("")->toPlainText(), "");
    EXPECT_EQ(documentOf("a\\par\\par")->blockCount(), 2);
    EXPECT_FALSE(documentOf("a")->isUndoRedoEnabled());
}

TEST(DocumentLooks, AFontHasANameAKindAndASize) {
    const QTextCharFormat format = characterFormatOf("\\f1\\fs21");
    EXPECT_EQ(format.fontFamilies().toStringList(), QStringList{"Fixed"});
    EXPECT_EQ(format.fontStyleHint(), QFont::TypeWriter);
    EXPECT_TRUE(format.fontFixedPitch());
    EXPECT_EQ(format.fontPointSize(), 10.5);
    const QTextCharFormat serif = characterFormatOf("\\f0");
    EXPECT_EQ(serif.fontStyleHint(), QFont::Serif);
    EXPECT_FALSE(serif.fontFixedPitch());
    EXPECT_EQ(serif.fontPointSize(), 12);
    EXPECT_FALSE(characterFormatOf("\\f9").hasProperty(QTextFormat::FontFamilies));
}

TEST(DocumentLooks, FontsOfAllKinds) {
    RichText text;
    const std::pair<FontKind, QFont::StyleHint> Kinds[] = {
        {FontKind::Any, QFont::AnyStyle},    {FontKind::Roman, QFont::Serif},
        {FontKind::Swiss, QFont::SansSerif}, {FontKind::Modern, QFont::TypeWriter},
        {FontKind::Script, QFont::Cursive},  {FontKind::Decorative, QFont::Decorative}};
    for (const auto& [kind, hint] : Kinds) {
        text.fonts = {{"", kind}};
        CharacterLook look;
        look.font = 0;
        const QTextCharFormat format = characterFormat(look, {text, 96});
        EXPECT_EQ(format.fontStyleHint(), hint);
        EXPECT_FALSE(format.hasProperty(QTextFormat::FontFamilies));
    }
}

TEST(DocumentLooks, OfCharacters) {
    EXPECT_EQ(characterFormatOf("\\b").fontWeight(), QFont::Bold);
    EXPECT_TRUE(characterFormatOf("\\i").fontItalic());
    EXPECT_TRUE(characterFormatOf("\\strike").fontStrikeOut());
    EXPECT_EQ(characterFormatOf("\\caps").fontCapitalization(), QFont::AllUppercase);
    EXPECT_EQ(characterFormatOf("\\scaps").fontCapitalization(), QFont::SmallCaps);
    EXPECT_EQ(characterFormatOf("\\ul").underlineStyle(), QTextCharFormat::SingleUnderline);
    EXPECT_EQ(characterFormatOf("\\uldash").underlineStyle(), QTextCharFormat::DashUnderline);
    EXPECT_EQ(characterFormatOf("\\uld").underlineStyle(), QTextCharFormat::DotLine);
    EXPECT_EQ(characterFormatOf("\\ulwave").underlineStyle(), QTextCharFormat::WaveUnderline);
    EXPECT_EQ(characterFormatOf("\\super").verticalAlignment(), QTextCharFormat::AlignSuperScript);
    EXPECT_EQ(characterFormatOf("\\sub").verticalAlignment(), QTextCharFormat::AlignSubScript);
    EXPECT_EQ(characterFormatOf("\\up6").baselineOffset(), 25);
    EXPECT_EQ(characterFormatOf("\\fs12\\dn6").baselineOffset(), -50);
    EXPECT_EQ(characterFormatOf("\\fs20\\dn1").baselineOffset(), -5);
    EXPECT_EQ(characterFormatOf("\\cf1").foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(characterFormatOf("\\cb2").background().color(), QColor(0, 0, 255));
    const QTextCharFormat plain = characterFormatOf("");
    EXPECT_FALSE(plain.hasProperty(QTextFormat::ForegroundBrush));
    EXPECT_FALSE(plain.hasProperty(QTextFormat::BackgroundBrush));
    EXPECT_FALSE(plain.isAnchor());
    EXPECT_EQ(plain.baselineOffset(), 0);
    EXPECT_EQ(plain.underlineStyle(), QTextCharFormat::NoUnderline);
    EXPECT_NE(plain.fontWeight(), QFont::Bold);
}

TEST(DocumentLooks, ALinkLooksLikeOneUnlessItsAuthorSaysOtherwise) {
    const auto link = [](const std::string& words) {
        return characterFormatOf("{\\field{\\*\\fldinst HYPERLINK \"http://a/?b&c\"}{\\fldrslt" + words +
                                 " x}}");
    };
    EXPECT_TRUE(link("").isAnchor());
    EXPECT_EQ(link("").anchorHref(), "http://a/?b&c");
    EXPECT_EQ(link("").toolTip(), "http://a/?b&amp;c");
    EXPECT_EQ(link("").foreground().color(), QColor(0x0B, 0x57, 0xC2));
    EXPECT_EQ(link("").underlineStyle(), QTextCharFormat::SingleUnderline);
    EXPECT_EQ(link("\\cf1\\ulwave").foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(link("\\cf1\\ulwave").underlineStyle(), QTextCharFormat::WaveUnderline);
}

TEST(DocumentLooks, PlacesThatLinksLeadTo) {
    const auto document = documentOf("a\\par{\\*\\bkmkstart one}{\\*\\bkmkstart two}b");
    const QTextBlock second = document->begin().next();
    EXPECT_EQ(second.charFormat().anchorNames(), (QStringList{"one", "two"}));
    EXPECT_TRUE(second.charFormat().isAnchor());
    EXPECT_FALSE(document->begin().charFormat().isAnchor());
}

TEST(DocumentLooks, OfParagraphs) {
    EXPECT_EQ(blockFormatOf("\\ql").alignment(), Qt::AlignLeft | Qt::AlignAbsolute);
    EXPECT_EQ(blockFormatOf("\\qr").alignment(), Qt::AlignRight | Qt::AlignAbsolute);
    EXPECT_EQ(blockFormatOf("\\qc").alignment(), Qt::AlignHCenter);
    EXPECT_EQ(blockFormatOf("\\qj").alignment(), Qt::AlignJustify);
    EXPECT_EQ(blockFormatOf("\\rtlpar").layoutDirection(), Qt::RightToLeft);
    EXPECT_NE(blockFormatOf("").layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(blockFormatOf("\\cbpat1").background().color(), QColor(255, 0, 0));
    EXPECT_FALSE(blockFormatOf("").hasProperty(QTextFormat::BackgroundBrush));
}

TEST(DocumentLooks, LengthsAreInPixelsOfThePage) {
    const QTextBlockFormat format = blockFormatOf("\\li1440\\ri720\\fi360\\sb150\\sa300");
    EXPECT_EQ(format.leftMargin(), 96);
    EXPECT_EQ(format.rightMargin(), 48);
    EXPECT_EQ(format.textIndent(), 24);
    EXPECT_EQ(format.topMargin(), 10);
    EXPECT_EQ(format.bottomMargin(), 20);
    const QTextBlockFormat larger = blockFormatOf("\\li1440\\ri720\\fi360\\sb150\\sa300", 144);
    EXPECT_EQ(larger.leftMargin(), 144);
    EXPECT_EQ(larger.textIndent(), 36);
    EXPECT_EQ(larger.bottomMargin(), 30);
}

TEST(DocumentLooks, NoLineBeginsLeftOfThePage) {
    EXPECT_EQ(blockFormatOf("\\li-720").leftMargin(), 0);
    EXPECT_EQ(blockFormatOf("\\ri-720").rightMargin(), 0);
    EXPECT_EQ(blockFormatOf("\\fi-720").textIndent(), 0);
    EXPECT_EQ(blockFormatOf("\\li360\\fi-720").textIndent(), -24);
    EXPECT_EQ(blockFormatOf("\\li-720\\fi-720").textIndent(), 0);
}

TEST(DocumentLooks, LinesHaveAHeight) {
    const auto height = [](const std::string& words) {
        const QTextBlockFormat format = blockFormatOf(words);
        return std::pair(format.lineHeightType(), format.lineHeight());
    };
    using Height = std::pair<int, double>;
    EXPECT_EQ(height(""), Height(QTextBlockFormat::SingleHeight, 0));
    EXPECT_EQ(height("\\sl300"), Height(QTextBlockFormat::MinimumHeight, 20));
    EXPECT_EQ(height("\\sl-300"), Height(QTextBlockFormat::FixedHeight, 20));
    EXPECT_EQ(height("\\sl360\\slmult1"), Height(QTextBlockFormat::ProportionalHeight, 150));
}

QList<QTextOption::Tab> tabsOf(const std::string& words, int pixelsPerInch = 96) {
    return documentOf(words + " a\\tab b\\par", pixelsPerInch)->begin().blockFormat().tabPositions();
}

TEST(DocumentLooks, TabsStandWhereTheirAuthorSays) {
    const auto tabs = tabsOf("\\tqr\\tx1440\\tqdec\\tx3000\\tx2880\\tqc\\tx4000");
    EXPECT_EQ(tabs[0], QTextOption::Tab(96, QTextOption::RightTab, '.'));
    EXPECT_EQ(tabs[1], QTextOption::Tab(192, QTextOption::LeftTab, '.'));
    EXPECT_EQ(tabs[2], QTextOption::Tab(200, QTextOption::DelimiterTab, '.'));
    EXPECT_EQ(tabs[3].type, QTextOption::CenterTab);
    EXPECT_EQ(tabs[4], QTextOption::Tab(288, QTextOption::LeftTab, '.')); // the text's own go on behind them
    EXPECT_EQ(tabs[5].position, 336);
    EXPECT_EQ(tabsOf("\\tx1440", 144)[0].position, 144);
    EXPECT_TRUE(
        blockFormatOf("\\tx1440").tabPositions().isEmpty()); // without a tab in the text they do not matter
}

TEST(DocumentLooks, OrdinaryTabsStandAtTheTextsDistance) {
    const auto tabs = tabsOf("\\deftab360");
    ASSERT_EQ(tabs.size(), 39);
    EXPECT_EQ(tabs[0].position, 24);
    EXPECT_EQ(tabs[38].position, 39 * 24);
}

TEST(DocumentLooks, TabsCountFromWhereTheFirstLineBegins) {
    EXPECT_EQ(tabsOf("\\li720\\tx1440")[0].position, 48);
    EXPECT_EQ(tabsOf("\\fi360\\tx1440")[0].position, 72);
    EXPECT_EQ(tabsOf("\\li720\\tx500\\tx1440")[0].position, 48);
    EXPECT_EQ(tabsOf("\\li720\\fi-360")[0].position, 24); // the edge of the lines that follow
    EXPECT_EQ(tabsOf("\\li720\\fi-360")[1].position, 72); // then the ordinary ones
    EXPECT_EQ(tabsOf("\\li720\\fi-720\\tx220\\tx720")[0].position, 220.0 / 15);
}

// Where the text behind a list's sign begins, and the lines below it.
TEST(DocumentLooks, AListItemsTextBeginsWhereItsLinesBegin) {
    for (const char* words :
         {"\\li720\\fi-360", "\\li720\\fi-360\\tx720", "\\li709\\fi-283\\tx709", "\\li1418\\fi-283"})
        for (const int pixelsPerInch : {96, 144}) {
            const auto document =
                documentOf(std::string("\\pard") + words + "{\\listtext\\'95\\tab}" + repeated("word ", 80),
                           pixelsPerInch);
            document->setTextWidth(400);
            document->size();
            const QTextLayout& layout = *document->begin().layout();
            ASSERT_GE(layout.lineCount(), 2);
            EXPECT_NEAR(layout.lineAt(0).cursorToX(2),
                        layout.lineAt(1).cursorToX(layout.lineAt(1).textStart()), 1)
                << words;
        }
}

TEST(DocumentLooks, AnEmptyParagraphIsAsHighAsItsEnd) {
    const auto document = documentOf("\\fs60\\par\\fs20\\par");
    EXPECT_EQ(document->begin().charFormat().fontPointSize(), 30);
    EXPECT_EQ(document->begin().next().charFormat().fontPointSize(), 10);
}

TEST(DocumentLooks, OfThousandsTheLaterOnesArePlain) {
    RichText text;
    const RichScale scale{text, 96};
    RichFormats formats(scale);
    CharacterLook look;
    for (int size = 1; size <= 400; ++size) {
        look.halfPoints = size;
        EXPECT_EQ(formats.of(look).fontPointSize(), size / 2.0);
    }
    look = {};
    look.halfPoints = 401;
    look.bold = look.italic = look.strikeOut = true;
    const QTextCharFormat plain = formats.of(look);
    EXPECT_EQ(plain.fontPointSize(), 12);
    EXPECT_TRUE(plain.fontItalic());
    EXPECT_EQ(plain.fontWeight(), QFont::Bold);
    EXPECT_FALSE(plain.fontStrikeOut());
    look = {};
    look.halfPoints = 7;
    EXPECT_EQ(formats.of(look).fontPointSize(), 3.5);
    ParagraphLook paragraph;
    for (int left = 1; left <= 401; ++left) {
        paragraph.left = left * 15;
        EXPECT_EQ(formats.of(paragraph, true).tabPositions().isEmpty(), left == 401);
    }
    EXPECT_EQ(formats.of(paragraph, true).leftMargin(), 401);
    CellLook cell;
    for (QRgb color = 1; color <= 401; ++color) {
        cell.background = color;
        EXPECT_EQ(formats.plainIfTooMany(cell).background.has_value(), color <= 400);
    }
}

TEST(DocumentLooks, EveryPartOfACellsLookCounts) {
    RichText text;
    const RichScale scale{text, 96};
    const auto differs = [&](auto change) {
        RichFormats formats(scale);
        CellLook look;
        look.borders[0].drawn = true;
        for (QRgb color = 1; color <= 400; ++color) {
            look.background = color;
            formats.plainIfTooMany(look);
        }
        change(look);
        return !formats.plainIfTooMany(look).background;
    };
    EXPECT_FALSE(differs([](CellLook&) {}));
    EXPECT_TRUE(differs([](CellLook& look) { look.gap = 5; }));
    EXPECT_TRUE(differs([](CellLook& look) { look.place = CellPlace::Bottom; }));
    EXPECT_TRUE(differs([](CellLook& look) { look.borders[0].width = 7; }));
    EXPECT_TRUE(differs([](CellLook& look) { look.borders[0].drawn = false; }));
    EXPECT_TRUE(differs([](CellLook& look) { look.borders[3].color = 0xFF000000; }));
    EXPECT_FALSE(differs([](CellLook& look) { look.borders[3].width = 7; })); // of one that is not drawn
}

TEST(DocumentLooks, EveryPartOfALookCounts) {
    RichText text;
    const RichScale scale{text, 96};
    const auto differs = [&](auto change) {
        RichFormats formats(scale);
        CharacterLook look;
        for (int size = 1; size <= 400; ++size) {
            look.halfPoints = size;
            formats.of(look);
        }
        look.halfPoints = 1;
        change(look);
        return formats.of(look).fontPointSize() == 12;
    };
    EXPECT_FALSE(differs([](CharacterLook&) {}));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.font = 0; }));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.bold = true; }));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.italic = true; }));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.strikeOut = true; }));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.underline = UnderlineLook::Wavy; }));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.script = ScriptPlace::Above; }));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.capitals = Capitals::All; }));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.raised = 1; }));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.color = 0xFF000000; }));
    EXPECT_TRUE(differs([](CharacterLook& look) { look.background = 0xFF000000; }));
}

TEST(ClosedDocuments, LoadNothing) {
    const auto document = documentOf("a");
    EXPECT_FALSE(document->resource(QTextDocument::ImageResource, QUrl("file:///etc/hostname")).isValid());
    EXPECT_FALSE(
        document->resource(QTextDocument::StyleSheetResource, QUrl("http://example.org/a.css")).isValid());
    EXPECT_FALSE(document->resource(QTextDocument::ImageResource, QUrl("picture:0")).isValid());
}

TEST(ClosedDocuments, TextIsNoMarkup) {
    const std::string markup = "<img src=\"file:///etc/hostname\"><b>b</b>&amp;";
    const auto document = documentOf(markup);
    EXPECT_EQ(document->toPlainText().toStdString(), markup);
    EXPECT_FALSE(document->begin().begin().fragment().charFormat().isImageFormat());
}

} // namespace
} // namespace tabrova
