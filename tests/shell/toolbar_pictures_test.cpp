// The toolbar's icons against a picture of them all that was looked at: one row of 32, each 48 pixels high. A
// test that fails writes the new picture beside the program; if it is as it should be, it takes the place of
// fixtures/toolbar_icons.png.
#include "shell/icons/toolbar_icons.h"
#include "tests/shell/likeness.h"
#include "tests/tabview/plain_blitter.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

namespace tabrova {
namespace {

constexpr int Side = 48;

QImage allIcons() {
    QImage row(Side * static_cast<int>(toolbarIconWords.size()), Side, QImage::Format_RGB32);
    row.fill(QColor(0xef, 0xef, 0xef));
    QPainter painter(&row);
    int left = 0;
    for (const std::string_view word : toolbarIconWords) {
        toolbarIcon(QString::fromUtf8(word.data(), static_cast<qsizetype>(word.size())))
            .paint(&painter, QRect(left, 0, Side, Side));
        left += Side;
    }
    return row;
}

TEST(ToolbarPictures, AreThoseThatWereLookedAt) {
    const QPalette before = QApplication::palette();
    QPalette theme(QColor(0xef, 0xef, 0xef));
    theme.setColor(QPalette::ButtonText, QColor(0x20, 0x20, 0x20));
    QApplication::setPalette(theme);
    const QImage seen = allIcons();
    QApplication::setPalette(before);
    const QImage wanted = QImage(TABROVA_FIXTURES "/toolbar_icons.png").convertToFormat(QImage::Format_RGB32);
    EXPECT_TRUE(
        testing::sameImage(testing::withSmallDifferencesTakenOut(seen, wanted), wanted, "toolbar_icons"));
}

} // namespace
} // namespace tabrova
