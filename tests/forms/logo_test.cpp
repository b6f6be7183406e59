// The program's name on six strings, pixel by pixel.
#include "forms/logo.h"

#include "tests/tabview/plain_blitter.h"

#include <QFontMetrics>
#include <QPainter>

namespace tabrova {
namespace {

TEST(Logo, IsNamedAndAsHighAsItsStringsAndLettersNeed) {
    const Logo logo(nullptr);
    EXPECT_EQ(logo.objectName(), "imgLogo");
    EXPECT_EQ(logo.sizeHint(), QSize(200, 46));
    EXPECT_EQ(logo.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(logo.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

TEST(Logo, IsItsNameBetweenTheEndsOfSixStrings) {
    Logo logo(nullptr);
    logo.resize(300, 46);
    QPalette palette = logo.palette();
    palette.setColor(QPalette::Window, QColor(250, 250, 240));
    palette.setColor(QPalette::WindowText, QColor(10, 20, 120));
    logo.setPalette(palette);

    QImage expected(300, 46, QImage::Format_RGB32);
    expected.fill(QColor(250, 250, 240));
    QPainter painter(&expected);
    QFont letters = logo.font();
    letters.setPixelSize(26);
    letters.setBold(true);
    const int name = QFontMetrics(letters).horizontalAdvance("Tabrova");
    QColor line(10, 20, 120);
    line.setAlphaF(0.35F);
    for (const int y : {8, 14, 20, 26, 32, 38}) {
        painter.fillRect(QRect(QPoint(0, y), QPoint(7, y)), line);
        painter.fillRect(QRect(QPoint(14 + name + 6, y), QPoint(299, y)), line);
    }
    painter.setFont(letters);
    painter.setPen(QColor(10, 20, 120));
    painter.drawText(QRect(14, 0, name + 4, 46), Qt::AlignVCenter, "Tabrova");
    painter.end();
    const QImage seen = logo.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_TRUE(testing::sameImage(seen, expected, "logo"));
}

} // namespace
} // namespace tabrova
