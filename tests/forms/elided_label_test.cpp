// A label that shows as much of its text as there is room for.
#include "forms/elided_label.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

QImage imageOf(QWidget& widget) {
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

QImage drawn(const QLabel& like, const QString& text) {
    QImage image(like.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(like.font());
    painter.setPen(like.palette().color(QPalette::Active, QPalette::WindowText));
    painter.drawText(image.rect(), Qt::AlignVCenter | Qt::AlignLeft, text);
    return image;
}

TEST(ElidedLabel, ShowsAShortTextWhole) {
    ElidedLabel label("Label1", Qt::ElideMiddle, nullptr);
    label.setText("<b>short</b>");
    label.resize(200, 20);
    EXPECT_EQ(label.objectName(), "Label1");
    EXPECT_EQ(imageOf(label), drawn(label, "<b>short</b>"));
}

TEST(ElidedLabel, LeavesOutTheSideThatItIsTold) {
    const QString text = "/home/someone/a/very/long/way/to/a/song.mid";
    for (const auto side : {Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideRight}) {
        ElidedLabel label("Label1", side, nullptr);
        label.setText(text);
        label.resize(120, 20);
        EXPECT_EQ(label.text(), text);
        EXPECT_EQ(imageOf(label), drawn(label, label.fontMetrics().elidedText(text, side, 120))) << side;
    }
}

// A long text does not make its window wider.
TEST(ElidedLabel, NeedsNoRoom) {
    ElidedLabel label("Label1", Qt::ElideRight, nullptr);
    label.setText(QString(1000, 'x'));
    EXPECT_EQ(label.minimumWidth(), 0);
    EXPECT_EQ(label.sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
}

} // namespace
} // namespace tabrova
