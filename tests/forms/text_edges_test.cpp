// Texts of the user in titles, on tabs and in one line.
#include "forms/text_edges.h"

#include <QTabWidget>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(TextEdges, TitlesAndTabsShowEveryTextAsItIs) {
    QWidget window;
    QTabWidget tabs;
    tabs.addTab(new QWidget, "");
    for (const char* text : {"", "Rock & Roll", "&&", "&", "[*]", "a[*]b[*]", "<b>x</b>"}) {
        setTitleOf(window, text);
        EXPECT_EQ(titleOf(window), text);
        setTabTextOf(tabs, 0, text);
        EXPECT_EQ(tabTextOf(tabs, 0), text);
    }
    setTabTextOf(tabs, 0, "Rock & Roll");
    EXPECT_EQ(tabs.tabText(0), "Rock && Roll"); // no access key
}

TEST(TextEdges, LongTextsAreShortenedBetweenCharacters) {
    EXPECT_EQ(shortened("abc", 3), "abc");
    EXPECT_EQ(shortened("abcd", 3), "abc" + QString(QChar(0x2026)));
    EXPECT_EQ(shortened(QString::fromUtf8("ab🎸d"), 3), "ab" + QString(QChar(0x2026)));
    EXPECT_EQ(shortened(QString::fromUtf8("ab🎸d"), 4), QString::fromUtf8("ab🎸…"));
    EXPECT_EQ(shortened("", 0), "");
}

TEST(TextEdges, LineEndsBecomeBlanks) {
    EXPECT_EQ(inOneLine("a\r\nb\nc\rd"), "a b c d");
    EXPECT_EQ(inOneLine("\ta "), "\ta ");
}

} // namespace
} // namespace tabrova
