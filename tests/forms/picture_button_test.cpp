// A picture that acts as a button: what presses it, what it looks like, and what it is called.
#include "core/language/language_file.h"
#include "forms/picture_button.h"

#include "forms/captions.h"
#include "tests/forms/demo_form.h"

#include <QAccessible>
#include <QIconEngine>
#include <QPainter>
#include <QPushButton>

#include <cmath>
#include <fstream>
#include <map>

namespace tabrova {
namespace {

using testing::DemoForm;

const QColor PictureColor(200, 30, 40);

// Fills its place, and remembers how it was asked.
struct Painted {
    QRect place;
    bool on = false;
    int count = 0;
};

// A picture of which every second pixel of the screen is black.
class Checkerboard : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        painter->drawImage(rect.topLeft(), board(rect.size()));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
        return QPixmap::fromImage(board(size));
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode, QIcon::State, qreal) override {
        return QPixmap::fromImage(board(size));
    }
    QIconEngine* clone() const override { return new Checkerboard; }

    static QImage board(QSize size) {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                image.setPixelColor(x, y, (x + y) % 2 == 0 ? Qt::black : Qt::white);
        return image;
    }
};

QImage shown(QWidget& widget, qreal scale = 1) {
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(widget.palette().color(QPalette::Window));
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

QIcon plainIcon(const QColor& off, const QColor& on) {
    QIcon icon;
    for (const auto& [color, state] : {std::pair(off, QIcon::Off), std::pair(on, QIcon::On)}) {
        QPixmap pixels(16, 16);
        pixels.fill(color);
        icon.addPixmap(pixels, QIcon::Normal, state);
    }
    return icon;
}

class PictureButtons : public testing::FormTest {
  protected:
    // Beside another control, which has the focus at first.
    PictureButton& make(QSize size = {16, 16}) {
        form.add<QPushButton>("other");
        button = new PictureButton(
            "picture",
            [this](QPainter& painter, QRect place, bool on) {
                painted = {place, on, painted.count + 1};
                painter.fillRect(place, PictureColor);
            },
            size, &form);
        form.column->addWidget(button);
        button->Click = [this] { ++clicks; };
        form.present();
        moveMouse({1, 1});
        return *button;
    }
    void moveMouse(QPoint place) {
        QCursor::setPos(form.mapToGlobal(place));
        QApplication::processEvents();
    }
    QColor at(QPoint place) { return shown(*button).pixelColor(place); }

    DemoForm form{folder()};
    PictureButton* button = nullptr;
    Painted painted;
    int clicks = 0;
};

// Pressing

TEST_F(PictureButtons, ActAsTheMouseGoesDownIfThatIsWanted) {
    make();
    int acts = 0;
    button->MouseDown = [&] { ++acts; };
    QTest::mousePress(button, Qt::LeftButton);
    EXPECT_EQ(acts, 1);
    QTest::mouseMove(button, {-30, -30});
    QTest::mouseMove(button, button->rect().center());
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_EQ(acts, 1);
    QTest::mouseClick(button, Qt::RightButton);
    EXPECT_EQ(acts, 2);
    QTest::keyClick(button, Qt::Key_Space);
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(acts, 4);
    button->setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(acts, 4);
}

TEST_F(PictureButtons, ArePressedBySpaceReturnEnterAndTheMouseOnceEach) {
    make().setFocus();
    int expected = 0;
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        form.press(key);
        EXPECT_EQ(clicks, ++expected) << key;
    }
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks, ++expected);
    QTest::mouseClick(button, Qt::RightButton);
    for (const auto key : {Qt::Key_A, Qt::Key_Delete})
        form.press(key);
    EXPECT_EQ(clicks, expected);
    QTest::mousePress(button, Qt::LeftButton);
    EXPECT_EQ(clicks, expected); // not before it is let go
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(500, 500));
    EXPECT_EQ(clicks, expected);
}

TEST_F(PictureButtons, ArePressedOutsideAFormToo) {
    PictureButton alone("picture", QIcon(), {16, 16}, nullptr);
    alone.Click = [this] { ++clicks; };
    alone.show();
    QTest::keyClick(&alone, Qt::Key_Return);
    QTest::keyClick(&alone, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(clicks, 2);
    alone.Click = nullptr;
    QTest::keyClick(&alone, Qt::Key_Return);
    EXPECT_EQ(clicks, 2);
}

TEST_F(PictureButtons, AreNotPressedByAKeyThatIsHeldDown) {
    make().setFocus();
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        form.hold(key);
    EXPECT_EQ(clicks, 0);
}

TEST_F(PictureButtons, ThatAreDisabledAreNotPressed) {
    make().setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    button->click();
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(form.walk(Qt::Key_Tab, 1), QStringList{"other"});
}

TEST_F(PictureButtons, TakeTheFocusByTabAndByAClick) {
    make();
    EXPECT_EQ(form.focus(), "other");
    form.press(Qt::Key_Tab);
    EXPECT_EQ(form.focus(), "picture");
    form.press(Qt::Key_Tab);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(form.focus(), "picture");
}

// Names

TEST_F(PictureButtons, AreButtonsToAScreenReader) {
    make().setToolTip("hint");
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(button);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->role(), QAccessible::Button);
    button->setAccessibleName("Move Right");
    EXPECT_EQ(reader->text(QAccessible::Name), "Move Right");
    ASSERT_NE(reader->actionInterface(), nullptr);
    reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([this] { return clicks == 1; }));
    EXPECT_TRUE(reader->state().focusable);
}

TEST_F(PictureButtons, AreNamedByTheLineOfTheirHint) {
    QDialog percussion;
    percussion.setObjectName("frmPercussion");
    PictureButton right("Image1", QIcon(), {16, 16}, &percussion);
    showBuiltInCaptions(percussion);
    EXPECT_EQ(right.toolTip(), "Move Right");
    EXPECT_EQ(right.accessibleName(), "Move Right");
}

TEST_F(PictureButtons, AreNamedByTheLineOfTheirCaptionWithoutItsAccessKey) {
    QDialog wizard;
    wizard.setObjectName("frmFileProperties");
    PictureButton done("Command1", QIcon(), {16, 16}, &wizard);
    showBuiltInCaptions(wizard);
    EXPECT_EQ(done.text(), "Done");
    EXPECT_EQ(done.toolTip(), "Done");
    EXPECT_EQ(done.accessibleName(), "Done");
    const std::map<std::string, QString> captions = {
        {"&Play", "Play"}, {"Pl&ay", "Play"}, {"Rock && Roll", "Rock & Roll"},
        {"&", "&"},        {"a&", "a&"},      {"", ""}};
    for (const auto& [caption, name] : captions) {
        std::ofstream(activeLanguageFile(folder())) << std::string(228, '\n') << caption << "\n";
        loadLanguage(wizard, folder());
        EXPECT_EQ(done.toolTip(), name) << caption;
        EXPECT_EQ(done.accessibleName(), name) << caption;
        EXPECT_EQ(done.text().toStdString(), caption);
    }
    auto* plain = named(new QPushButton(&wizard), "Label1");
    loadLanguage(wizard, folder());
    EXPECT_EQ(plain->toolTip(), ""); // its caption is seen
}

// Sizes

TEST_F(PictureButtons, AreAsLargeAsThePictureAndTheRoomForTheFocusMark) {
    make({24, 10});
    EXPECT_EQ(button->sizeHint(), QSize(32, 18));
    EXPECT_EQ(button->minimumSizeHint(), QSize(32, 18));
    EXPECT_EQ(button->size(), QSize(32, 18)); // however wide the window is
    shown(*button);
    EXPECT_EQ(painted.place, QRect(4, 4, 24, 10));
    button->setFixedSize(41, 31);
    shown(*button);
    EXPECT_EQ(painted.place, QRect(8, 10, 24, 10));
}

class PictureScales : public PictureButtons, public ::testing::WithParamInterface<double> {};

// The pixels of the picture that are no mixture of their neighbours'.
TEST_P(PictureScales, AreCrisp) {
    const qreal scale = GetParam();
    for (const int side : {16, 17, 18})
        for (const QPoint place : {QPoint(0, 0), QPoint(1, 0), QPoint(3, 1)}) {
            QWidget window;
            window.resize(60, 60);
            PictureButton picture("picture", QIcon(new Checkerboard), {side, side}, &window);
            picture.setGeometry(QRect(place, picture.sizeHint()));
            const QImage image = shown(window, scale);
            const QPoint corner = ((QPointF(place) + QPointF(4, 4)) * scale).toPoint();
            const int pixels = static_cast<int>(std::floor(side * scale));
            int wrong = 0;
            for (int y = 0; y < pixels; ++y)
                for (int x = 0; x < pixels; ++x) {
                    const QRgb expected = (x + y) % 2 == 0 ? 0xFF000000U : 0xFFFFFFFFU;
                    wrong += image.pixel(corner + QPoint(x, y)) != expected;
                }
            EXPECT_EQ(wrong, 0) << side << " at " << place.x() << "," << place.y();
        }
}

TEST_P(PictureScales, ArePaintedOnWholePixels) {
    const qreal scale = GetParam();
    QWidget window;
    window.resize(60, 60);
    QPointF corner;
    PictureButton picture(
        "picture",
        [&corner](QPainter& painter, QRect place, bool) {
            corner = painter.deviceTransform().map(QPointF(place.topLeft()));
        },
        {16, 16}, &window);
    for (const int x : {0, 1, 2, 3}) {
        picture.setGeometry(QRect(QPoint(x, 5), picture.sizeHint()));
        shown(window, scale);
        EXPECT_NEAR(corner.x(), std::round((x + 4) * scale), 1e-6);
        EXPECT_NEAR(corner.y(), std::round(9 * scale), 1e-6);
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, PictureScales, ::testing::Values(1.0, 1.5, 2.0));

// Looks

TEST_F(PictureButtons, ShowTheirPictureAndNothingElseAtRest) {
    make();
    const QImage image = shown(*button);
    const QColor ground = form.palette().color(QPalette::Window);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            EXPECT_EQ(image.pixelColor(x, y), painted.place.contains(x, y) ? PictureColor : ground);
    EXPECT_FALSE(painted.on);
}

TEST_F(PictureButtons, LookOtherwiseUnderTheMouseWhenHeldDownAndWhenDisabled) {
    make().setFocus();
    std::vector<QImage> looks = {shown(*button)};
    moveMouse(button->mapTo(&form, QPoint(8, 8)));
    EXPECT_TRUE(button->underMouse());
    looks.push_back(shown(*button));
    QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, button->mapTo(&form, QPoint(8, 8)));
    EXPECT_TRUE(button->isDown());
    looks.push_back(shown(*button));
    EXPECT_TRUE(painted.on);
    QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, button->mapTo(&form, QPoint(8, 8)));
    EXPECT_EQ(clicks, 1);
    button->setEnabled(false);
    looks.push_back(shown(*button));
    EXPECT_EQ(at({1, 8}), form.palette().color(QPalette::Window)); // no ground, though the mouse is there
    EXPECT_NE(at({8, 8}), PictureColor);
    for (std::size_t one = 0; one < looks.size(); ++one)
        for (std::size_t other = one + 1; other < looks.size(); ++other)
            EXPECT_TRUE(looks[one] != looks[other]) << one << " and " << other;
}

TEST_F(PictureButtons, AreRepaintedWhenTheMouseComesAndGoes) {
    make();
    for (const QPoint place : {button->mapTo(&form, QPoint(8, 8)), QPoint(1, 1)}) {
        const int before = painted.count;
        moveMouse(place);
        EXPECT_TRUE(QTest::qWaitFor([this, before] { return painted.count > before; }));
    }
}

TEST_F(PictureButtons, ThatStayDownAreOn) {
    make().setCheckable(true);
    QTest::mouseClick(button, Qt::LeftButton);
    shown(*button);
    EXPECT_TRUE(painted.on);
    QTest::mouseClick(button, Qt::LeftButton);
    shown(*button);
    EXPECT_FALSE(painted.on);
    EXPECT_EQ(clicks, 2);
}

TEST_F(PictureButtons, ShowAnIconInItsStates) {
    make().setCheckable(true);
    button->setPicture(plainIcon(Qt::red, Qt::blue));
    EXPECT_EQ(at({12, 12}), QColor(Qt::red));
    button->setChecked(true);
    EXPECT_EQ(at({12, 12}), QColor(Qt::blue));
    button->setEnabled(false);
    EXPECT_NE(at({12, 12}), QColor(Qt::blue));
}

TEST_F(PictureButtons, ShowAnIconOfOneSizeAsLargeAtEveryScale) {
    make();
    button->setPicture(plainIcon(Qt::red, Qt::red)); // of 16 pixels
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        const QImage image = shown(*button, scale);
        for (const QPointF place : {QPointF(5, 5), QPointF(19, 5), QPointF(5, 19), QPointF(19, 19)})
            EXPECT_EQ(image.pixelColor((place * scale).toPoint()), QColor(Qt::red)) << scale;
    }
}

TEST_F(PictureButtons, TakeAnotherPictureOfEitherKind) {
    make();
    button->setPicture(plainIcon(Qt::green, Qt::green));
    EXPECT_EQ(at({12, 12}), QColor(Qt::green));
    QApplication::processEvents();
    int painting = 0;
    button->setPicture([&painting](QPainter& painter, QRect place, bool) {
        ++painting;
        painter.fillRect(place, Qt::cyan);
    });
    QApplication::processEvents();
    EXPECT_EQ(painting, 1); // by itself
    EXPECT_EQ(at({12, 12}), QColor(Qt::cyan));
}

// Brightness from 0 to 255, as the eye has it.
double brightness(const QColor& color) {
    return 0.299 * color.red() + 0.587 * color.green() + 0.114 * color.blue();
}

TEST_F(PictureButtons, ShowAFocusMarkOnEveryGround) {
    make();
    for (const auto& [window, text] : {std::pair(Qt::white, Qt::black), std::pair(Qt::black, Qt::white)})
        for (const QColor ground : {QColor(Qt::white), QColor(Qt::black), QColor(128, 128, 128)}) {
            QPalette palette;
            palette.setColor(QPalette::Window, window);
            palette.setColor(QPalette::WindowText, text);
            palette.setColor(QPalette::Button, window);
            palette.setColor(QPalette::ButtonText, text);
            button->setPalette(palette);
            button->setPicture([ground](QPainter& painter, QRect, bool) {
                painter.resetTransform();
                painter.fillRect(QRect(-50, -50, 200, 200), ground);
            });
            form.findChild<QWidget*>("other")->setFocus();
            const QImage without = shown(*button);
            button->setFocus();
            const QImage with = shown(*button);
            int seen = 0;
            for (int y = 0; y < with.height(); ++y)
                for (int x = 0; x < with.width(); ++x)
                    seen += std::abs(brightness(with.pixelColor(x, y)) -
                                     brightness(without.pixelColor(x, y))) > 100;
            EXPECT_GT(seen, 40) << window << " on " << ground.red();
        }
}

TEST_F(PictureButtons, HaveTheFocusMarkAroundThePicture) {
    make().setFocus();
    for (const bool down : {false, true}) {
        button->setDown(down);
        const QImage image = shown(*button);
        for (int y = painted.place.top(); y <= painted.place.bottom(); ++y)
            for (int x = painted.place.left(); x <= painted.place.right(); ++x)
                EXPECT_EQ(image.pixelColor(x, y), PictureColor);
    }
}

} // namespace
} // namespace tabrova
