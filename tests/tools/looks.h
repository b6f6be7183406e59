// Pictures and places of a tool's controls against those that were looked at, in the folder `fixtures` beside
// the tool's tests. A test that fails writes what it sees beside the test program; if it is as it should be,
// it takes the place of the fixture.
#pragma once

#include "tests/forms/described_layout.h"
#include "tests/shell/likeness.h"
#include "tests/tabview/plain_blitter.h"

#include <QApplication>
#include <QFile>
#include <QPainter>

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova::testing {

// At two image pixels a logical one. Letters and digits differ from machine to machine: where they stand is
// left white.
inline QImage pictured(QWidget& widget, const QList<QRect>& letters) {
    QImage image(widget.size() * 2, QImage::Format_RGB32);
    image.setDevicePixelRatio(2);
    image.fill(Qt::white);
    widget.render(&image);
    {
        QPainter painter(&image);
        for (const QRect& place : letters)
            painter.fillRect(place, Qt::white);
    }
    image.setDevicePixelRatio(1);
    return image;
}

inline QString fixture(const char* tool, const QString& file) {
    return QString("%1/tests/tools/%2/fixtures/%3").arg(TABROVA_SOURCE_DIR, tool, file);
}

inline void expectPicture(const QImage& seen, const char* tool, const char* name) {
    const QImage wanted = QImage(fixture(tool, QString(name) + ".png")).convertToFormat(QImage::Format_RGB32);
    EXPECT_TRUE(sameImage(withSmallDifferencesTakenOut(seen, wanted), wanted, name));
}

inline void expectLayout(QWidget& widget, const char* tool, const char* name) {
    QFile file(fixture(tool, QString(name) + ".txt"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    const std::string seen = text(describedTree(*widget.layout()));
    const std::string wanted = file.readAll().toStdString();
    EXPECT_EQ(seen, wanted);
    const QString place = QApplication::applicationDirPath() + "/" + name + "_actual.txt";
    if (seen != wanted) std::ofstream(place.toStdString()) << seen;
}

} // namespace tabrova::testing
