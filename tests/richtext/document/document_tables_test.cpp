// The tables of a rich text as tables of the document.
#include "richtext/document/rich_table.h"
#include "richtext/document/rich_text_document.h"
#include "richtext/state/rtf_reader.h"
#include "tests/richtext/rich_helpers.h"

#include <gmock/gmock.h>

#include <QTextCursor>
#include <QTextTable>

namespace tabrova {
namespace {

using namespace tests;
using testing::ElementsAre;

std::unique_ptr<QTextDocument> documentOf(const std::string& body, int pixelsPerInch = 96) {
    return richTextDocument(readBody(body), {pixelsPerInch, 1.0});
}

QTextTable* tableOf(const QTextDocument& document, int at = 0) {
    return qobject_cast<QTextTable*>(document.rootFrame()->childFrames().at(at));
}

std::string textOf(const QTextTableCell& cell) {
    QTextCursor cursor = cell.firstCursorPosition();
    cursor.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
    return cursor.selectedText().toStdString();
}

std::string row(const std::string& looks, const std::string& cells) {
    return "\\trowd" + looks + "\\pard\\intbl " + cells + "\\row\\pard ";
}

std::string grid(const std::string& body, int mostColumns = 64) {
    const RichText text = readBody(body);
    const TableGrid all = tableGrid(tableAt(text, 0), mostColumns);
    std::string described;
    for (const int edge : all.edges)
        described += std::to_string(edge) + " ";
    for (const PlacedCell& cell : all.cells) {
        described +=
            shown(*cell.content) + "@" + std::to_string(cell.row) + "," + std::to_string(cell.column);
        if (cell.rows > 1 || cell.columns > 1)
            described += ":" + std::to_string(cell.rows) + "x" + std::to_string(cell.columns);
        described += " ";
    }
    return described;
}

TEST(TableGrids, HaveTheEdgesOfAllRows) {
    EXPECT_EQ(grid(row("\\cellx1000\\cellx2000", "a\\cell b\\cell") +
                   row("\\cellx1500\\cellx2000", "c\\cell d\\cell")),
              "0 1000 1500 2000 a@0,0 b@0,1:1x2 c@1,0:1x2 d@1,2 ");
    EXPECT_EQ(grid(row("\\trleft-100\\cellx1000", "a\\cell") + row("\\trleft500\\cellx2000", "b\\cell")),
              "-100 500 1000 2000 a@0,0:1x2 b@1,1:1x2 ");
}

TEST(TableGrids, EdgesNearEachOtherAreOne) {
    EXPECT_EQ(grid(row("\\cellx1000", "a\\cell") + row("\\cellx1019", "b\\cell")), "0 1000 a@0,0 b@1,0 ");
    EXPECT_EQ(grid(row("\\cellx1000", "a\\cell") + row("\\cellx1020", "b\\cell")),
              "0 1000 1020 a@0,0 b@1,0:1x2 ");
}

TEST(TableGrids, CellsHaveAWidth) {
    EXPECT_EQ(grid(row("\\cellx1000\\cellx1000\\cellx500\\cellx1100", "a\\cell b\\cell c\\cell d\\cell")),
              "0 1000 1060 1120 1180 a@0,0 b@0,1 c@0,2 d@0,3 ");
    EXPECT_EQ(grid(row("\\trleft300\\cellx300", "a\\cell")), "300 360 a@0,0 ");
}

TEST(TableGrids, CellsGoOnAcross) {
    EXPECT_EQ(grid(row("\\clmgf\\cellx1000\\clmrg\\cellx2000\\cellx3000", "a\\cell\\cell b\\cell")),
              "0 1000 2000 3000 a@0,0:1x2 b@0,2 ");
    EXPECT_EQ(grid(row("\\clmrg\\cellx1000\\clmrg\\cellx2000", "a\\cell b\\cell")), "0 1000 2000 a@0,0:1x2 ");
}

TEST(TableGrids, CellsGoOnDown) {
    const std::string first = row("\\clvmgf\\cellx1000\\cellx2000", "a\\cell b\\cell");
    const std::string next = row("\\clvmrg\\cellx1000\\cellx2000", "x\\cell c\\cell");
    EXPECT_EQ(grid(first + next + next), "0 1000 2000 a@0,0:3x1 b@0,1 c@1,1 c@2,1 ");
    EXPECT_EQ(grid(next + next), "0 1000 2000 x@0,0:2x1 c@0,1 c@1,1 ");
    EXPECT_EQ(grid(first + row("\\clvmrg\\cellx1500\\cellx2000", "x\\cell c\\cell")),
              "0 1000 1500 2000 a@0,0 b@0,1:1x2 x@1,0:1x2 c@1,2 ");
    EXPECT_EQ(grid(first + row("\\cellx1000\\cellx2000", "p\\cell q\\cell") + next),
              "0 1000 2000 a@0,0 b@0,1 p@1,0 q@1,1 x@2,0 c@2,1 ");
    EXPECT_EQ(grid(first + first), "0 1000 2000 a@0,0 b@0,1 a@1,0 b@1,1 ");
}

TEST(TableGrids, CellsGoOnBothWays) {
    EXPECT_EQ(
        grid(row("\\clmgf\\clvmgf\\cellx1000\\clmrg\\clvmrg\\cellx2000\\cellx3000", "a\\cell\\cell b\\cell") +
             row("\\clmgf\\clvmrg\\cellx1000\\clmrg\\clvmrg\\cellx2000\\cellx3000", "\\cell\\cell c\\cell")),
        "0 1000 2000 3000 a@0,0:2x2 b@0,2 c@1,2 ");
}

TEST(TableGrids, HaveSoManyColumnsAtTheMost) {
    const std::string body =
        row("\\cellx1000\\cellx2000\\cellx3000\\cellx4000", "a\\cell b\\cell c\\cell d\\cell");
    EXPECT_EQ(grid(body, 4), "0 1000 2000 3000 4000 a@0,0 b@0,1 c@0,2 d@0,3 ");
    EXPECT_EQ(grid(body, 3), "0 1000 2000 4000 a@0,0 b@0,1 d@0,2 ");
    EXPECT_EQ(grid(body, 1), "0 4000 d@0,0 ");
}

TEST(DocumentTables, StandBetweenTheParagraphs) {
    const auto document =
        documentOf("a\\par " + row("\\cellx1000\\cellx2000", "b\\cell c\\par d\\cell") + "e\\par");
    const QTextTable* table = tableOf(*document);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->rows(), 1);
    EXPECT_EQ(table->columns(), 2);
    EXPECT_EQ(textOf(table->cellAt(0, 0)), "b");
    EXPECT_EQ(textOf(table->cellAt(0, 1)), "c\u2029d");
    EXPECT_EQ(document->begin().text(), "a");
    EXPECT_EQ(document->lastBlock().text(), "e");
    EXPECT_EQ(document->blockCount(), 5);
}

TEST(DocumentTables, ABlockThatNobodyWroteIsFlat) {
    const auto document =
        documentOf(row("\\cellx1000", "a\\cell") + "\\pard\\par" + row("\\cellx1000", "b\\cell"));
    EXPECT_EQ(document->begin().blockFormat().lineHeight(), 1);
    EXPECT_EQ(document->begin().blockFormat().lineHeightType(), QTextBlockFormat::FixedHeight);
    EXPECT_EQ(document->begin().charFormat().fontPointSize(), 1);
    EXPECT_EQ(document->lastBlock().blockFormat().lineHeight(), 1);
    EXPECT_EQ(document->begin().next().next().blockFormat().lineHeight(), 0); // the one between the tables
    EXPECT_EQ(tableOf(*document)->cellAt(0, 0).firstCursorPosition().blockFormat().lineHeight(), 0);
}

TEST(DocumentTables, ColumnsAreAsWideAsTold) {
    for (const int pixelsPerInch : {96, 144}) {
        const auto document =
            documentOf(row("\\trleft150\\cellx1650\\cellx2400", "a\\cell b\\cell"), pixelsPerInch);
        const QTextTableFormat format = tableOf(*document)->format();
        const double scale = pixelsPerInch / 96.0;
        EXPECT_THAT(format.columnWidthConstraints(),
                    ElementsAre(QTextLength(QTextLength::FixedLength, 100 * scale),
                                QTextLength(QTextLength::FixedLength, 50 * scale)));
        EXPECT_EQ(format.leftMargin(), 10 * scale);
    }
    EXPECT_EQ(tableOf(*documentOf(row("\\trleft-150\\cellx900", "a\\cell")))->format().leftMargin(), 0);
}

TEST(DocumentTables, HaveASideAndNoBordersOfTheirOwn) {
    const auto format = [](const std::string& words) {
        const auto document = documentOf(row(words + "\\cellx900", "a\\cell"));
        return tableOf(*document)->format();
    };
    EXPECT_EQ(format("\\trqc").alignment(), Qt::AlignHCenter);
    EXPECT_EQ(format("\\trqr").alignment(), Qt::AlignRight);
    EXPECT_FALSE(format("\\trql").alignment() & (Qt::AlignHCenter | Qt::AlignRight));
    EXPECT_EQ(format("").border(), 0);
    EXPECT_EQ(format("").borderStyle(), QTextFrameFormat::BorderStyle_None);
    EXPECT_TRUE(format("").borderCollapse());
    EXPECT_EQ(format("").cellSpacing(), 0);
    EXPECT_EQ(format("").cellPadding(), 0);
}

TEST(DocumentTables, KeepTheSpaceAboveThem) {
    const auto document =
        documentOf("\\sa300 a\\par\\sa0 " + row("\\cellx900", "a\\cell") + row("\\cellx900", "b\\cell"));
    EXPECT_EQ(tableOf(*document)->format().topMargin(), 20);
    const auto second = documentOf("\\sa300 a\\par " + row("\\cellx900", "a\\cell") + "\\sa0\\par" +
                                   row("\\cellx900", "b\\cell"));
    EXPECT_EQ(tableOf(*second, 1)->format().topMargin(), 0);
}

QTextTableCellFormat cellFormatOf(const std::string& words, const std::string& text = "a") {
    const auto document = documentOf(row(words + "\\cellx900", text + "\\cell"));
    return tableOf(*document)->cellAt(0, 0).format().toTableCellFormat();
}

TEST(DocumentTables, CellsHaveGapsPlacesAndBackgrounds) {
    EXPECT_EQ(cellFormatOf("\\trgaph150").leftPadding(), 10);
    EXPECT_EQ(cellFormatOf("\\trgaph150").rightPadding(), 10);
    EXPECT_EQ(cellFormatOf("\\trgaph150\\clpadl300").leftPadding(), 20);
    EXPECT_EQ(cellFormatOf("\\trgaph0").leftPadding(), 2);
    EXPECT_EQ(cellFormatOf("").topPadding(), 2);
    EXPECT_EQ(cellFormatOf("").bottomPadding(), 2);
    EXPECT_EQ(cellFormatOf("").verticalAlignment(), QTextCharFormat::AlignTop);
    EXPECT_EQ(cellFormatOf("\\clvertalc").verticalAlignment(), QTextCharFormat::AlignMiddle);
    EXPECT_EQ(cellFormatOf("\\clvertalb").verticalAlignment(), QTextCharFormat::AlignBottom);
    EXPECT_EQ(cellFormatOf("\\clcbpat1").background().color(), QColor(255, 0, 0));
    EXPECT_FALSE(cellFormatOf("").hasProperty(QTextFormat::BackgroundBrush));
}

TEST(DocumentTables, ACellsFormatOutlivesThatOfItsText) {
    const QTextTableCellFormat format = cellFormatOf("\\clvertalb\\clcbpat1", "\\cb2\\super\\cf2 a");
    EXPECT_EQ(format.background().color(), QColor(255, 0, 0));
    EXPECT_EQ(format.verticalAlignment(), QTextCharFormat::AlignBottom);
    EXPECT_FALSE(cellFormatOf("", "\\cb2 a").hasProperty(QTextFormat::BackgroundBrush));
    const auto document = documentOf(row("\\cellx900", "\\cb2\\b a\\cell"));
    const QTextCharFormat text =
        tableOf(*document)->cellAt(0, 0).firstCursorPosition().block().begin().fragment().charFormat();
    EXPECT_EQ(text.background().color(), QColor(0, 0, 255));
    EXPECT_EQ(text.fontWeight(), QFont::Bold);
}

TEST(DocumentTables, CellsHaveBorders) {
    const QTextTableCellFormat format =
        cellFormatOf("\\clbrdrt\\brdrs\\brdrw30\\brdrcf1\\clbrdrl\\brdrs\\brdrw1\\clbrdrb\\brdrs\\brdrw45\\cl"
                     "brdrr\\brdrs\\brdrw60\\brdrcf2");
    EXPECT_EQ(format.topBorder(), 2);
    EXPECT_EQ(format.leftBorder(), 1);
    EXPECT_EQ(format.bottomBorder(), 3);
    EXPECT_EQ(format.rightBorder(), 4);
    EXPECT_EQ(format.topBorderStyle(), QTextFrameFormat::BorderStyle_Solid);
    EXPECT_EQ(format.rightBorderStyle(), QTextFrameFormat::BorderStyle_Solid);
    EXPECT_EQ(format.topBorderBrush().color(), QColor(255, 0, 0));
    EXPECT_EQ(format.leftBorderBrush().color(), QColor(0, 0, 0));
    EXPECT_EQ(format.rightBorderBrush().color(), QColor(0, 0, 255));
    EXPECT_EQ(cellFormatOf("").topBorder(), 0);
    EXPECT_EQ(cellFormatOf("\\clbrdrt\\brdrnone\\brdrw30").topBorder(), 0);
}

TEST(DocumentTables, MergedCellsSpanRowsAndColumns) {
    const auto document = documentOf(
        row("\\clvmgf\\cellx1000\\clmgf\\cellx2000\\clmrg\\cellx3000", "a\\cell b\\cell\\cell") +
        row("\\clvmrg\\clcbpat1\\cellx1000\\cellx2000\\clcbpat1\\cellx3000", "\\cell c\\cell d\\cell"));
    const QTextTable* table = tableOf(*document);
    EXPECT_EQ(table->cellAt(0, 0).rowSpan(), 2);
    EXPECT_EQ(table->cellAt(0, 1).columnSpan(), 2);
    EXPECT_EQ(textOf(table->cellAt(1, 0)), "a");
    EXPECT_EQ(textOf(table->cellAt(1, 1)), "c");
    EXPECT_EQ(textOf(table->cellAt(1, 2)), "d");
    EXPECT_EQ(table->cellAt(1, 2).format().background().color(), QColor(255, 0, 0));
    EXPECT_EQ(textOf(table->cellAt(0, 2)), "b");
}

TEST(DocumentTables, MayStandInCells) {
    const auto document = documentOf(
        "\\trowd\\cellx3000\\pard\\intbl a\\par\\pard\\intbl\\itap2 x\\nestcell{\\*\\nesttableprops"
        "\\trowd\\cellx900\\nestrow}\\pard\\intbl b\\cell\\row\\pard c");
    const QTextTable* outer = tableOf(*document);
    ASSERT_EQ(outer->childFrames().size(), 1);
    EXPECT_EQ(textOf(qobject_cast<QTextTable*>(outer->childFrames()[0])->cellAt(0, 0)), "x");
    EXPECT_EQ(document->lastBlock().text(), "c");
}

TEST(DocumentTables, HaveSoManyColumnsAtTheMost) {
    std::string body;
    for (int at = 0; at < 70; ++at)
        body += row("\\cellx" + std::to_string(1000 + 30 * at) + "\\cellx9000", "a\\cell b\\cell");
    EXPECT_EQ(tableOf(*documentOf(body))->columns(), 64);
}

TEST(DocumentTables, OfManyRowsHaveFewColumns) {
    std::string body;
    for (int at = 0; at < 2000; ++at)
        body += row("\\cellx" + std::to_string(1000 + 30 * (at % 60)) + "\\cellx9000", "a\\cell b\\cell");
    const auto document = documentOf(body);
    EXPECT_EQ(tableOf(*document)->rows(), 2000);
    EXPECT_EQ(tableOf(*document)->columns(), 6);
}

} // namespace
} // namespace tabrova
