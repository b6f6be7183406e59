// One text on paper: what the user chooses, and where the text stands on the sheet of a PDF file.
#include "platform/text_printer.h"
#include "tests/platform/when_shown.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtEndian>

namespace tabrova {
namespace {

// What the PDF engine writes of a sheet, in points: the sheet's origin, the size of the first text and its
// letters.
struct Sheet {
    double left = -1;
    double bottom = -1;
    double fontSize = -1;
    QStringList letters;
};

QByteArray unpacked(QByteArray packed) {
    const auto size = qToBigEndian<quint32>(1 << 20); // a guess at the length comes first, it may be too high
    packed.prepend(reinterpret_cast<const char*>(&size), sizeof size);
    return qUncompress(packed);
}

Sheet sheetOf(const QByteArray& pdf) {
    static const QRegularExpression origin("-?[\\d.]+ 0 0 -?[\\d.]+ (-?[\\d.]+) (-?[\\d.]+) cm");
    static const QRegularExpression font("/F\\d+ ([\\d.]+) Tf");
    static const QRegularExpression letter("<([0-9a-f]+)> Tj");
    for (qsizetype at = pdf.indexOf("stream\n"); at >= 0; at = pdf.indexOf("stream\n", at + 1)) {
        const qsizetype begin = at + 7;
        const QString commands = unpacked(pdf.mid(begin, pdf.indexOf("endstream", begin) - begin));
        const auto placed = origin.match(commands);
        if (!placed.hasMatch() || !commands.contains("Tj")) continue;
        Sheet sheet{placed.captured(1).toDouble(),
                    placed.captured(2).toDouble(),
                    font.match(commands).captured(1).toDouble(),
                    {}};
        for (auto found = letter.globalMatch(commands.left(commands.indexOf("ET"))); found.hasNext();)
            sheet.letters.append(found.next().captured(1));
        return sheet;
    }
    return {};
}

class Printing : public ::testing::Test {
  protected:
    Sheet printed(const PrintJob& job) {
        {
            const WhenShown<QPrintDialog> user([this](QPrintDialog& dialog) {
                // Printing to a file is the last entry, whatever printers there are.
                auto* printers = dialog.findChild<QComboBox*>("printers");
                printers->setCurrentIndex(printers->count() - 1);
                dialog.findChild<QLineEdit*>("filename")->setText(path);
                dialog.accept();
            });
            DesktopTextPrinter().print(job);
        }
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const Sheet sheet = sheetOf(file.readAll());
        file.remove();
        return sheet;
    }

    QTemporaryDir folder;
    const QString path = folder.filePath("printed.pdf");
};

constexpr double Rounding = 1.0; // the engine's pixels

TEST_F(Printing, MovesTheTextByLeftAndTop) {
    const Sheet plain = printed({"text", "DejaVu Sans", 10, 0, 0});
    ASSERT_GT(plain.left, 0);
    const Sheet moved = printed({"text", "DejaVu Sans", 10, 90, 40});
    EXPECT_NEAR(moved.left, plain.left + 90, Rounding);
    EXPECT_NEAR(moved.bottom, plain.bottom - 40, Rounding);
}

TEST_F(Printing, PutsTheTextOnPaperAsItStands) {
    const QStringList letters = printed({"<b>a</b>", "DejaVu Sans", 10, 0, 0}).letters;
    ASSERT_EQ(letters.size(), 8);
    EXPECT_EQ(letters[0], letters[4]); // <
    EXPECT_EQ(letters[1], letters[6]); // b
    EXPECT_EQ(letters[2], letters[7]); // >
    EXPECT_NE(letters[0], letters[1]);
}

TEST_F(Printing, TakesTheSizeOfTheFont) {
    const Sheet small = printed({"text", "DejaVu Sans", 10, 0, 0});
    const Sheet large = printed({"text", "DejaVu Sans", 30, 0, 0});
    EXPECT_NEAR(large.fontSize / small.fontSize, 3, 0.1);
}

TEST_F(Printing, PrintsNothingWhenItIsCancelled) {
    {
        const WhenShown<QPrintDialog> user([this](QPrintDialog& dialog) {
            dialog.printer()->setOutputFileName(path);
            dialog.reject();
        });
        DesktopTextPrinter().print({"text", "DejaVu Sans", 10, 0, 0});
    }
    EXPECT_FALSE(QFile::exists(path));
}

TEST(RecordedPrinter, KeepsJobsUntilTheyAreTaken) {
    RecordingTextPrinter printer;
    printer.print({"text", "DejaVu Sans", 10, 1, 2});
    const auto jobs = printer.take();
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(jobs[0].text, "text");
    EXPECT_EQ(jobs[0].top, 2);
    EXPECT_TRUE(printer.take().isEmpty());
}

TEST(PageOfAPrintJob, HasItsOffsetInsideTheLeftAndTopMarginsAlone) {
    const QPageLayout own(QPageSize(QPageSize::A4), QPageLayout::Portrait, {1, 2, 3, 4}, QPageLayout::Inch);
    PrintJob job;
    job.left = 10;
    job.top = 20;
    const QPageLayout page = layoutFor(job, own);
    EXPECT_EQ(page.units(), QPageLayout::Point);
    EXPECT_EQ(page.margins(), QMarginsF(72 + 10, 144 + 20, 216, 288));
    EXPECT_EQ(page.pageSize(), own.pageSize());
}

} // namespace
} // namespace tabrova
