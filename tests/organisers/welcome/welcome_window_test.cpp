// The welcome window: its picture, its four ways, and that it tells one choice and no second.
#include "organisers/welcome/frmAltSplash.h"
#include "tests/shell/likeness.h"
#include "tests/tabview/plain_blitter.h"
#include "tests/workbench/tool_bench.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QTemporaryDir>
#include <QTest>

namespace tabrova {
namespace {

const QColor Ink(0xF4, 0xEF, 0xE0);

enum class Way { NewTablature, OpenTablature, Learn, CloseWindow };

class Welcome : public testing::ToolBench {
  protected:
    Welcome() {
        splash.Form_Load();
        splash.show();
        splash.activateWindow();
    }
    QWidget& option(int index) { return *splash.findChild<QWidget*>(QString("imgOptions(%1)").arg(index)); }
    QWidget& highlight() { return *splash.findChild<QWidget*>("imgHighlight"); }
    QString named() { return splash.findChild<QLabel*>("lblTooltip")->text(); }
    void send(int index, QEvent::Type type) {
        QEvent event(type);
        QApplication::sendEvent(&option(index), &event);
    }

    // What was done since the last call, by what it asked for: first the window goes, then the main one
    // comes.
    std::vector<Way> ways() {
        std::vector<Way> taken;
        for (const std::string& step : std::exchange(log, {})) {
            if (step == "show main") taken.push_back(Way::CloseWindow);
            if (step == "open frmFileProperties") taken.back() = Way::NewTablature;
            if (step == "open frmHelp") taken.back() = Way::Learn;
        }
        if (!files.take().isEmpty()) taken.back() = Way::OpenTablature;
        return taken;
    }

    frmAltSplash splash{context, nullptr};
};

TEST_F(Welcome, StandsInAPictureOf520By320) {
    EXPECT_EQ(splash.size(), QSize(520, 320));
    EXPECT_EQ(splash.minimumSize(), splash.maximumSize());
    EXPECT_EQ(splash.windowTitle(), "Tabrova");
    EXPECT_EQ(splash.windowModality(), Qt::ApplicationModal);
    for (int index = 0; index < 4; ++index) {
        EXPECT_EQ(option(index).geometry(), QRect(35 + 118 * index, 132, 96, 96));
        EXPECT_EQ(option(index).focusPolicy(), Qt::StrongFocus);
        EXPECT_TRUE(option(index).hasMouseTracking());
    }
    const auto& label = *splash.findChild<QLabel*>("lblTooltip");
    EXPECT_EQ(label.geometry(), QRect(0, 252, 520, 30));
    EXPECT_EQ(label.alignment(), Qt::AlignCenter);
    EXPECT_EQ(label.text(), "Tabrova 3.0");
    EXPECT_TRUE(highlight().isHidden());
    EXPECT_EQ(splash.focusWidget(), &splash);
    EXPECT_EQ(splash.focusPolicy(), Qt::StrongFocus);
    EXPECT_TRUE(splash.hasMouseTracking());
}

TEST_F(Welcome, EveryImageHasAName) {
    QSet<QString> names;
    for (int index = 0; index < 4; ++index) {
        EXPECT_FALSE(option(index).toolTip().isEmpty());
        EXPECT_EQ(option(index).accessibleName(), option(index).toolTip());
        names.insert(option(index).toolTip());
    }
    EXPECT_EQ(names.size(), 4);
}

TEST_F(Welcome, WhatThePointerOrTheKeyboardReachesIsHighlightedAndNamed) {
    for (const QEvent::Type type : {QEvent::MouseMove, QEvent::FocusIn})
        for (int index = 0; index < 4; ++index) {
            if (type == QEvent::FocusIn) {
                QFocusEvent focus(QEvent::FocusIn);
                QApplication::sendEvent(&option(index), &focus);
            } else {
                QTest::mouseMove(&option(index), QPoint(40, 40));
                QTest::mouseMove(&option(index), QPoint(41, 40));
            }
            EXPECT_FALSE(highlight().isHidden());
            EXPECT_EQ(highlight().geometry(), option(index).geometry());
            EXPECT_EQ(named(), option(index).toolTip());
            send(index, QEvent::Leave);
            EXPECT_TRUE(highlight().isHidden());
            EXPECT_EQ(named(), "Tabrova 3.0");
        }
    EXPECT_EQ(splash.childAt(35 + 50, 132 + 50), &option(0)); // not the highlight
    EXPECT_TRUE(ways().empty());
}

TEST_F(Welcome, TellsTheWayOfTheImageThatIsPressedOnce) {
    const Way expected[] = {Way::NewTablature, Way::OpenTablature, Way::Learn, Way::CloseWindow};
    for (int index = 0; index < 4; ++index) {
        frmAltSplash other(context, nullptr);
        other.Form_Load();
        other.show();
        auto* image = other.findChild<QWidget*>(QString("imgOptions(%1)").arg(index));
        QTest::mouseClick(image, Qt::LeftButton);
        QTest::mouseClick(image, Qt::LeftButton);
        QTest::keyClick(&other, Qt::Key_Escape);
        EXPECT_EQ(ways(), std::vector<Way>{expected[index]});
        EXPECT_TRUE(other.isHidden());
    }
}

TEST_F(Welcome, ReturnAndSpacePressTheImageAndOtherKeysDoNot) {
    QTest::keyClick(&option(1), Qt::Key_A);
    EXPECT_TRUE(ways().empty());
    QTest::keyClick(&option(1), Qt::Key_Return);
    EXPECT_EQ(ways(), std::vector<Way>{Way::OpenTablature});
    frmAltSplash other(context, nullptr);
    QTest::keyClick(other.findChild<QWidget*>("imgOptions(2)"), Qt::Key_Space);
    EXPECT_EQ(ways(), std::vector<Way>{Way::Learn});
}

TEST_F(Welcome, TheArrowKeysMoveFromImageToImageAndRoundTheEnds) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&splash));
    for (const auto& [forth, back] : {std::pair{Qt::Key_Right, Qt::Key_Left}, {Qt::Key_Down, Qt::Key_Up}}) {
        splash.setFocus();
        for (const int index : {0, 1, 2, 3, 0}) {
            QTest::keyClick(splash.windowHandle(), forth);
            EXPECT_EQ(splash.focusWidget(), &option(index));
            EXPECT_EQ(named(), option(index).toolTip());
        }
        splash.setFocus();
        for (const int index : {3, 2, 1, 0, 3}) {
            QTest::keyClick(splash.windowHandle(), back);
            EXPECT_EQ(splash.focusWidget(), &option(index));
        }
    }
    EXPECT_TRUE(ways().empty());
}

TEST_F(Welcome, HasACloseButtonInItsFrameAndNoOther) {
    EXPECT_TRUE(splash.windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(splash.windowFlags() & Qt::WindowMinMaxButtonsHint);
}

TEST_F(Welcome, StandsInTheMiddleOfTheMainWindowAlsoWhenThatGetsItsPlaceLater) {
    QWidget main;
    main.setGeometry(40, 30, 700, 500);
    main.show();
    frmAltSplash other(context, &main);
    other.Form_Load();
    other.show();
    EXPECT_EQ(other.frameGeometry().center(), main.frameGeometry().center());
    main.setGeometry(10, 20, 760, 560);
    QApplication::processEvents();
    EXPECT_EQ(other.frameGeometry().center(), main.frameGeometry().center());
}

TEST_F(Welcome, APressOnThePictureClosesIt) {
    QTest::mouseClick(&splash, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(ways(), std::vector<Way>{Way::CloseWindow});
}

TEST_F(Welcome, EscapeClosesItAndOtherKeysDoNot) {
    QTest::keyClick(&splash, Qt::Key_A);
    EXPECT_TRUE(ways().empty());
    QTest::keyClick(&splash, Qt::Key_Escape);
    EXPECT_EQ(ways(), std::vector<Way>{Way::CloseWindow});
}

void drawTitleAndStrings(QPainter& painter, const QFont& font) {
    QLinearGradient wood(0, 0, 0, 320);
    wood.setColorAt(0, QColor(0x3B, 0x26, 0x1A));
    wood.setColorAt(1, QColor(0x1E, 0x13, 0x0D));
    painter.fillRect(0, 0, 520, 320, wood);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int string = 0; string < 6; ++string) {
        painter.setPen(QPen(QColor(0xF4, 0xEF, 0xE0, 45), 1.0 + string * 0.35));
        painter.drawLine(0, 126 + 22 * string, 520, 126 + 22 * string);
    }
    QFont title = font;
    title.setPixelSize(44);
    title.setBold(true);
    painter.setFont(title);
    painter.setPen(Ink);
    painter.drawText(QRect(0, 34, 520, 64), Qt::AlignCenter, "Tabrova");
}

// A sheet of paper with four lines, an open folder, a question mark and a cross.
std::array<QPainterPath, 4> drawings() {
    std::array<QPainterPath, 4> all;
    all[0].addRoundedRect(30, 22, 36, 52, 3, 3);
    for (const int y : {36, 45, 54, 63}) {
        all[0].moveTo(37, y);
        all[0].lineTo(59, y);
    }
    all[1].addPolygon(QPolygonF({{22, 68}, {22, 32}, {40, 32}, {45, 38}, {72, 38}, {72, 68}, {22, 68}}));
    all[1].moveTo(22, 48);
    all[1].lineTo(72, 48);
    all[2].moveTo(37, 38);
    all[2].cubicTo(37, 22, 61, 22, 60, 38);
    all[2].cubicTo(59, 48, 48, 47, 48, 59);
    all[2].addEllipse(QPointF(48, 70), 1.6, 1.6);
    for (const auto& [from, to] :
         {std::pair{QPointF(34, 34), QPointF(62, 62)}, {QPointF(62, 34), QPointF(34, 62)}}) {
        all[3].moveTo(from);
        all[3].lineTo(to);
    }
    return all;
}

TEST_F(Welcome, IsDrawnOnWoodWithSixStrings) {
    splash.findChild<QLabel*>("lblTooltip")->hide();
    QImage expected(520, 320, QImage::Format_RGB32);
    QPainter painter(&expected);
    drawTitleAndStrings(painter, splash.font());
    painter.setPen(QPen(Ink, 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto paths = drawings();
    for (int index = 0; index < 4; ++index)
        painter.drawPath(paths[static_cast<std::size_t>(index)].translated(35 + 118 * index, 132));
    painter.end();
    const QImage seen = splash.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_TRUE(testing::sameImage(seen, expected, "welcome"));
}

TEST_F(Welcome, TheHighlightIsARoundedFrame) {
    splash.findChild<QLabel*>("lblTooltip")->hide();
    QImage expected = splash.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QTest::mouseMove(&option(2), QPoint(40, 40));
    QTest::mouseMove(&option(2), QPoint(41, 40));
    {
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0xE8, 0xB0, 0x4A), 2.0));
        painter.setBrush(QColor(0xE8, 0xB0, 0x4A, 40));
        painter.drawRoundedRect(QRectF(35 + 236 + 2, 134, 92, 92), 10, 10);
    }
    // The drawing stands over the highlight.
    const QRect frame(35 + 236, 132, 30, 96);
    const QImage seen = splash.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QImage wanted = expected.copy(frame);
    EXPECT_TRUE(testing::sameImage(testing::withSmallDifferencesTakenOut(seen.copy(frame), wanted), wanted,
                                   "welcome_highlight"));
}

} // namespace
} // namespace tabrova
