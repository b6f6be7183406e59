// One text on paper: what the user chooses, and where the text stands on the sheets of a PDF file, as another
// program reads them.
#include "platform/text_printer.h"
#include "tests/platform/when_shown.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace tabrova {
namespace {

constexpr double PointsOfMillimetre = 72 / 25.4;

struct Word {
    int page;                        // from 0
    double left, top, right, bottom; // points from the sheet's corner
    QString text;
};

// The words of the file in their order.
QList<Word> wordsOf(const QString& pdf) {
    QProcess reader;
    reader.start("pdftotext", {"-bbox", pdf, "-"});
    EXPECT_TRUE(reader.waitForFinished());
    static const QRegularExpression element("<page |<word xMin=\"(-?[\\d.]+)\" yMin=\"(-?[\\d.]+)\" "
                                            "xMax=\"(-?[\\d.]+)\" yMax=\"(-?[\\d.]+)\">(.*?)</word>");
    QList<Word> words;
    int page = -1;
    const QString text = QString::fromUtf8(reader.readAllStandardOutput());
    for (auto found = element.globalMatch(text); found.hasNext();) {
        const auto match = found.next();
        if (match.captured(0).startsWith("<page")) {
            ++page;
            continue;
        }
        const QString word =
            match.captured(5).replace("&lt;", "<").replace("&gt;", ">").replace("&amp;", "&");
        words.append({page, match.captured(1).toDouble(), match.captured(2).toDouble(),
                      match.captured(3).toDouble(), match.captured(4).toDouble(), word});
    }
    return words;
}

PrintJob job(const QString& text, double left = 0, double top = 0) {
    return {"name", text, "Courier New", 8, left, top};
}

class Printing : public ::testing::Test {
  protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable("pdftotext").isEmpty())
            GTEST_SKIP() << "there is no pdftotext to read the sheets with";
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPageSize(QPageSize(QPageSize::A4));
    }

    QList<Word> printed(const PrintJob& what) {
        printOn(printer, what);
        return wordsOf(path);
    }

    QTemporaryDir folder;
    const QString path = folder.filePath("printed.pdf");
    QPrinter printer{QPrinter::HighResolution};
};

TEST_F(Printing, TheTextStandsWhereTheOffsetsTell) {
    const auto words = printed(job("first\nsecond", 17, 14));
    ASSERT_EQ(words.size(), 2);
    EXPECT_NEAR(words[0].left, 17 * PointsOfMillimetre, 0.5);
    EXPECT_NEAR(words[0].top, 14 * PointsOfMillimetre, 1.5);
    EXPECT_EQ(words[1].left, words[0].left);
    EXPECT_GT(words[1].top, words[0].top);
}

TEST_F(Printing, OffsetsMoveTheTextByMillimetres) {
    const auto near = printed(job("word", 10, 10));
    const auto far = printed(job("word", 30, 25));
    ASSERT_EQ(near.size() + far.size(), 2);
    EXPECT_NEAR(far[0].left - near[0].left, 20 * PointsOfMillimetre, 0.1);
    EXPECT_NEAR(far[0].top - near[0].top, 15 * PointsOfMillimetre, 0.1);
}

TEST_F(Printing, TheTextIsPrintedAsItStands) {
    const auto words = printed(job("<b>a</b> & b\u00BD"));
    ASSERT_EQ(words.size(), 3);
    EXPECT_EQ(words[0].text, "<b>a</b>");
    EXPECT_EQ(words[1].text, "&");
    EXPECT_EQ(words[2].text, QString::fromUtf8("b½"));
}

TEST_F(Printing, EveryCharacterTakesTheSameWidth) {
    const auto words = printed(job("iiiiiiiiii x\nWWWWWWWWWW x\n-12-|  |-- x"));
    QList<double> lefts;
    for (const Word& word : words)
        if (word.text == "x") lefts.append(word.left);
    ASSERT_EQ(lefts.size(), 3);
    EXPECT_NEAR(lefts[1], lefts[0], 0.05);
    EXPECT_NEAR(lefts[2], lefts[0], 0.05);
}

TEST_F(Printing, TakesTheSizeOfTheFont) {
    PrintJob larger = job("word");
    larger.pointSize = 24;
    const auto small = printed(job("word"));
    const auto large = printed(larger);
    ASSERT_EQ(small.size() + large.size(), 2);
    EXPECT_NEAR((large[0].right - large[0].left) / (small[0].right - small[0].left), 3, 0.02);
}

// Sixteen columns of tablature take 96 characters.
TEST_F(Printing, ALineOfTablatureFitsOnTheSheet) {
    for (const auto size : {QPageSize::A4, QPageSize::Letter}) {
        printer.setPageSize(QPageSize(size));
        const auto words = printed(job(QString(96, '-'), 17, 14));
        ASSERT_EQ(words.size(), 1) << QPageSize::name(size).toStdString();
        EXPECT_EQ(words[0].text.size(), 96);
        EXPECT_LT(words[0].right, QPageSize(size).size(QPageSize::Point).width());
    }
}

// Each block stands whole on one page, and all of them are there.
TEST_F(Printing, LongTextsBreakBetweenBlocks) {
    constexpr int Blocks = 40;
    QString text;
    for (int block = 0; block < Blocks; ++block) {
        for (int line = 0; line < 6; ++line)
            text += QString("%1-%2\n").arg(block).arg(line);
        text += " \n \n";
    }
    const auto words = printed(job(text, 17, 14));
    ASSERT_EQ(words.size(), Blocks * 6);
    for (int at = 0; at < Blocks * 6; ++at) {
        EXPECT_EQ(words[at].text, QString("%1-%2").arg(at / 6).arg(at % 6));
        EXPECT_EQ(words[at].page, words[at / 6 * 6].page) << at;
    }
    const int pages = words.last().page + 1;
    EXPECT_GE(pages, 3);
    EXPECT_LE(pages, 6);
}

TEST_F(Printing, PrintsTheChosenPagesAlone) {
    QString text;
    for (int block = 0; block < 60; ++block)
        text += QString("%1\n\n\n\n\n\n\n").arg(block);
    const auto all = printed(job(text));
    QStringList second;
    for (const Word& word : all)
        if (word.page == 1) second.append(word.text);
    ASSERT_FALSE(second.isEmpty());
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 2);
    QStringList chosen;
    for (const Word& word : printed(job(text))) {
        EXPECT_EQ(word.page, 0);
        chosen.append(word.text);
    }
    EXPECT_EQ(chosen, second);
    printer.setFromTo(1, 1);
    QStringList first;
    for (const Word& word : printed(job(text)))
        first.append(word.text);
    EXPECT_EQ(first.last().toInt() + 1, second.first().toInt());
    printer.setFromTo(100, 200); // there are fewer
    EXPECT_EQ(printed(job(text)).last().text, "59");
}

TEST_F(Printing, TheUserChoosesThePrinter) {
    const QString chosen = folder.filePath("chosen.pdf");
    {
        const WhenShown<QPrintDialog> user([&](QPrintDialog& dialog) {
            // Printing to a file is the last entry, whatever printers there are.
            auto* printers = dialog.findChild<QComboBox*>("printers");
            printers->setCurrentIndex(printers->count() - 1);
            dialog.findChild<QLineEdit*>("filename")->setText(chosen);
            dialog.accept();
        });
        DesktopTextPrinter().print(job("word"));
    }
    const auto words = wordsOf(chosen);
    ASSERT_EQ(words.size(), 1);
    EXPECT_EQ(words[0].text, "word");
}

TEST_F(Printing, PrintsNothingWhenItIsCancelled) {
    {
        const WhenShown<QPrintDialog> user([this](QPrintDialog& dialog) {
            dialog.printer()->setOutputFileName(path);
            dialog.reject();
        });
        DesktopTextPrinter().print(job("word"));
    }
    EXPECT_FALSE(QFile::exists(path));
}

// A full disk, a folder in its place: nothing is printed, and that is all.
TEST_F(Printing, AFileThatCannotBeWrittenIsNoHarm) {
    printer.setOutputFileName(folder.path());
    printOn(printer, job("word"));
    printer.setOutputFileName("/dev/full");
    printOn(printer, job("word"));
}

TEST(RecordedPrinter, KeepsJobsUntilTheyAreTaken) {
    RecordingTextPrinter printer;
    printer.print(job("text", 1, 2));
    const auto jobs = printer.take();
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(jobs[0].text, "text");
    EXPECT_EQ(jobs[0].top, 2);
    EXPECT_TRUE(printer.take().isEmpty());
}

// From the printable area on; to the right and below the printer's margins stay.
TEST(TextOfAPrintJob, StandsInsideThePrintableAreaByItsOffsets) {
    const QPageLayout own(QPageSize(QPageSize::A4), QPageLayout::Portrait, {5, 6, 7, 8},
                          QPageLayout::Millimeter, {2, 3, 4, 5});
    EXPECT_EQ(textArea(job("", 17, 14), own), QRectF(QPointF(19, 17), QPointF(210 - 7, 297 - 8)));
    QPageLayout inPoints = own;
    inPoints.setUnits(QPageLayout::Point);
    EXPECT_NEAR(textArea(job("", 17, 14), inPoints).left(), 19, 0.2);
}

} // namespace
} // namespace tabrova
