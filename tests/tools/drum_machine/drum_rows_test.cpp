// Writing steps by hand: drawing over them, and keys.
#include "tests/tools/drum_machine/drum_window.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QToolTip>

namespace tabrova::testing {
namespace {

class WrittenSteps : public DrumWindow {
  protected:
    QPoint middle(int row, int at) {
        QWidget& button = step(row, at);
        return button.mapTo(form.get(), button.rect().center());
    }
    // The mouse as the window system reports it: to the button that was pressed, until it is let go.
    void mouse(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons held) {
        QWidget* to = pressed_ ? pressed_ : form->childAt(place);
        const QPoint local = to->mapFrom(form.get(), place);
        QMouseEvent event(type, local, form->mapToGlobal(place), button, held, Qt::NoModifier);
        QApplication::sendEvent(to, &event);
        pressed_ = held == Qt::NoButton ? nullptr : to;
    }
    void down(int row, int at) {
        mouse(QEvent::MouseButtonPress, middle(row, at), Qt::LeftButton, Qt::LeftButton);
    }
    void moveTo(int row, int at) { mouse(QEvent::MouseMove, middle(row, at), Qt::NoButton, Qt::LeftButton); }
    void up(int row, int at) {
        mouse(QEvent::MouseButtonRelease, middle(row, at), Qt::LeftButton, Qt::NoButton);
    }
    QWidget* focused() { return form->focusWidget(); }

  private:
    QWidget* pressed_ = nullptr;
};

TEST_F(WrittenSteps, AreDrawnOverWithTheMouse) {
    open();
    down(2, 1);
    EXPECT_EQ(blue(), (Places{{2, 1}}));
    moveTo(2, 2);
    moveTo(2, 3);
    moveTo(3, 3);
    up(3, 3);
    EXPECT_EQ(blue(), (Places{{2, 1}, {2, 2}, {2, 3}, {3, 3}}));
    moveTo(5, 5);
    EXPECT_EQ(blue().size(), 4u);
}

TEST_F(WrittenSteps, BecomeLikeTheFirstOne) {
    open();
    pressStep(4, 6);
    down(4, 4);
    moveTo(4, 5);
    moveTo(4, 6);
    moveTo(4, 7);
    up(4, 7);
    EXPECT_EQ(blue(), (Places{{4, 4}, {4, 5}, {4, 6}, {4, 7}}));
    down(4, 5);
    moveTo(4, 8);
    up(4, 8);
    EXPECT_EQ(blue(), (Places{{4, 4}}));
}

TEST_F(WrittenSteps, OnTheStraightWayOfAFastMouseAreWritten) {
    open();
    down(0, 0);
    moveTo(0, 15);
    up(0, 15);
    EXPECT_EQ(blue().size(), 16u);
    down(15, 2);
    moveTo(9, 5);
    up(9, 5);
    Places drawn = blue();
    drawn.erase(drawn.begin(), drawn.begin() + 16);
    EXPECT_EQ(drawn, (Places{{9, 5}, {10, 5}, {11, 4}, {12, 4}, {13, 3}, {14, 3}, {15, 2}}));
}

TEST_F(WrittenSteps, OnTheWayOutOfTheGridAreWrittenAndNoneOutside) {
    open();
    const int y = middle(3, 2).y();
    down(3, 2);
    mouse(QEvent::MouseMove, QPoint(2, y), Qt::NoButton, Qt::LeftButton);
    mouse(QEvent::MouseMove, QPoint(-9999, y), Qt::NoButton, Qt::LeftButton);
    mouse(QEvent::MouseMove, QPoint(-9999, 99999), Qt::NoButton, Qt::LeftButton);
    mouse(QEvent::MouseMove, QPoint(99999, 99999), Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(blue(), (Places{{3, 0}, {3, 1}, {3, 2}}));
    const QPoint below(middle(15, 15).x(), middle(15, 15).y() + 99);
    mouse(QEvent::MouseMove, below, Qt::NoButton, Qt::LeftButton);
    moveTo(14, 15);
    up(14, 15);
    EXPECT_EQ(blue(), (Places{{3, 0}, {3, 1}, {3, 2}, {14, 15}, {15, 15}}));
}

TEST_F(WrittenSteps, InAGapBetweenTwoBeatsTheNearestIsWritten) {
    open();
    const QPoint third = middle(0, 3), fourth = middle(0, 4);
    down(0, 2);
    mouse(QEvent::MouseMove, QPoint((third.x() + fourth.x()) / 2 - 2, third.y()), Qt::NoButton,
          Qt::LeftButton);
    EXPECT_EQ(blue(), (Places{{0, 2}, {0, 3}}));
    mouse(QEvent::MouseMove, QPoint((third.x() + fourth.x()) / 2 + 2, third.y()), Qt::NoButton,
          Qt::LeftButton);
    up(0, 4);
    EXPECT_EQ(blue(), (Places{{0, 2}, {0, 3}, {0, 4}}));
}

TEST_F(WrittenSteps, TakeTheLeftButtonOnly) {
    open();
    QTest::mouseClick(&step(0, 0), Qt::RightButton);
    QTest::mouseClick(&step(0, 0), Qt::MiddleButton);
    EXPECT_TRUE(blue().empty());
    QTest::mouseClick(step(0, 0).parentWidget(), Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_TRUE(blue().empty());
}

TEST_F(WrittenSteps, ADoubleClickPressesTwice) {
    open();
    QTest::mouseClick(&step(0, 0), Qt::LeftButton);
    QTest::mouseDClick(&step(0, 0), Qt::LeftButton); // its second half
    EXPECT_TRUE(blue().empty());
}

TEST_F(WrittenSteps, AreReachedByTheArrowKeysAndPressedBySpace) {
    open();
    QTest::keyClick(focused(), Qt::Key_Space);
    QTest::keyClick(focused(), Qt::Key_Right);
    QTest::keyClick(focused(), Qt::Key_Down);
    QTest::keyClick(focused(), Qt::Key_Space);
    QTest::keyClick(focused(), Qt::Key_End);
    QTest::keyClick(focused(), Qt::Key_Space);
    QTest::keyClick(focused(), Qt::Key_Left);
    QTest::keyClick(focused(), Qt::Key_Up);
    QTest::keyClick(focused(), Qt::Key_Return);
    QTest::keyClick(focused(), Qt::Key_Home);
    QTest::keyClick(focused(), Qt::Key_Space);
    EXPECT_EQ(blue(), (Places{{0, 14}, {1, 1}, {1, 15}}));
}

TEST_F(WrittenSteps, EndAtTheEdgesOfTheGrid) {
    open();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up}) {
        QTest::keyClick(focused(), key);
        EXPECT_EQ(focused(), &step(0, 0));
    }
    for (int press = 0; press < 20; ++press) {
        QTest::keyClick(focused(), Qt::Key_Down);
        QTest::keyClick(focused(), Qt::Key_Right);
    }
    EXPECT_EQ(focused(), &step(15, 15));
}

TEST_F(WrittenSteps, AreOneStopOfTheTabKey) {
    open();
    QTest::mouseClick(&step(6, 7), Qt::LeftButton);
    EXPECT_EQ(focused(), &step(6, 7));
    int stops = 0;
    for (QAbstractButton* button : form->findChildren<QAbstractButton*>())
        if (dynamic_cast<StepButton*>(button) && (button->focusPolicy() & Qt::TabFocus)) ++stops;
    EXPECT_EQ(stops, 1);
    QTest::keyClick(focused(), Qt::Key_Tab);
    EXPECT_EQ(focused(), &control("lstInstrument", 7));
    QTest::keyClick(focused(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), &step(6, 7));
}

TEST_F(WrittenSteps, LeaveKeysWithModifiersAlone) {
    open();
    QTest::keyClick(focused(), Qt::Key_Space, Qt::ControlModifier);
    QTest::keyClick(focused(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(focused(), &step(0, 0));
    EXPECT_TRUE(blue().empty());
}

TEST_F(WrittenSteps, AHeldSpaceBarPressesOnce) {
    open();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
    QApplication::sendEvent(focused(), &held);
    EXPECT_TRUE(blue().empty());
}

class UsedPatterns : public DrumWindow {
  protected:
    PatternStrip& strip() { return static_cast<PatternStrip&>(control("picPatterns")); }
    QPoint barOf(int pattern) { return strip().barPlace(pattern).center().toPoint(); }
    QImage bar(int pattern) {
        return strip().grab().toImage().copy(strip().barPlace(pattern).toAlignedRect());
    }
};

TEST_F(UsedPatterns, AreSeenByTheirBars) {
    open();
    setPattern(50);
    const QImage empty = bar(20);
    setPattern(20);
    pressStep(0, 0);
    setPattern(50);
    const QImage one = bar(20);
    EXPECT_NE(one, empty);
    setPattern(20);
    for (int at = 1; at < 16; ++at)
        pressStep(0, at);
    setPattern(50);
    EXPECT_NE(bar(20), one);
}

TEST_F(UsedPatterns, StandOverTheSlidersPlaces) {
    open();
    auto& slider = control<QSlider>("sldPattern");
    for (const int pattern : {0, 17, 50, 99}) {
        slider.setValue(pattern);
        QStyleOptionSlider option;
        option.initFrom(&slider);
        option.minimum = 0;
        option.maximum = 99;
        option.sliderPosition = option.sliderValue = pattern;
        option.subControls = QStyle::SC_All;
        option.orientation = Qt::Horizontal;
        option.state |= QStyle::State_Horizontal;
        const QRect handle =
            slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider);
        EXPECT_NEAR(strip().barPlace(pattern).center().x(), handle.center().x() + 0.5, 2.0) << pattern;
    }
    EXPECT_EQ(slider.x(), strip().x());
    EXPECT_EQ(slider.width(), strip().width());
}

TEST_F(UsedPatterns, AreChosenByAClick) {
    open();
    for (const int pattern : {3, 99, 0, 42}) {
        QTest::mouseClick(&strip(), Qt::LeftButton, {}, barOf(pattern));
        EXPECT_EQ(control<QSlider>("sldPattern").value(), pattern);
    }
    QTest::mouseClick(&strip(), Qt::LeftButton, {}, QPoint(strip().width() - 1, 3));
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 99);
    QTest::mouseClick(&strip(), Qt::LeftButton, {}, QPoint(0, 3));
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 0);
    QTest::mouseClick(&strip(), Qt::RightButton, {}, barOf(7));
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 0);
    press("Command1");
    QTest::mouseClick(&strip(), Qt::LeftButton, {}, barOf(7));
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 0);
    EXPECT_TRUE(timers.timers()["tmrplayback"]->timerEnabled());
}

TEST_F(UsedPatterns, AreGoneThroughByTheMouseHeldDown) {
    open();
    QTest::mousePress(&strip(), Qt::LeftButton, {}, barOf(3));
    for (const int pattern : {9, 30, 29}) {
        QMouseEvent move(QEvent::MouseMove, barOf(pattern), strip().mapToGlobal(barOf(pattern)), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&strip(), &move);
        EXPECT_EQ(control<QSlider>("sldPattern").value(), pattern);
    }
    QTest::mouseRelease(&strip(), Qt::LeftButton, {}, barOf(29));
    QMouseEvent move(QEvent::MouseMove, barOf(50), strip().mapToGlobal(barOf(50)), Qt::NoButton, Qt::NoButton,
                     {});
    QApplication::sendEvent(&strip(), &move);
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 29);
}

TEST_F(UsedPatterns, TellTheirStepsToThePointer) {
    open();
    setPattern(12);
    for (int at = 0; at < 3; ++at)
        pressStep(5, at);
    for (const auto& [pattern, text] : {std::pair{12, "12 – Steps: 3"}, {13, "13 – Steps: 0"}}) {
        QHelpEvent help(QEvent::ToolTip, barOf(pattern), strip().mapToGlobal(barOf(pattern)));
        QApplication::sendEvent(&strip(), &help);
        EXPECT_EQ(QToolTip::text().toStdString(), text);
    }
    QToolTip::hideText();
}

TEST_F(UsedPatterns, AreThoseOfTheFileThatWasOpened) {
    open();
    setPattern(4);
    pressStep(0, 0);
    files.queueAnswer(QString::fromStdString(file("song")));
    press("Command2");
    pressStep(0, 0);
    const QImage unused = bar(4);
    files.queueAnswer(QString::fromStdString(file("song")));
    press("Command3");
    EXPECT_EQ(control<QLabel>("lblSteps").text(), "Steps: 1");
    setPattern(50);
    EXPECT_NE(bar(4), unused);
}

TEST_F(UsedPatterns, ShowWhichOneSounds) {
    open();
    const QImage before = bar(3);
    control<QCheckBox>("chkPlayAll").setChecked(true);
    press("Command1");
    for (int position = 0; position < 32; ++position)
        tick();
    EXPECT_EQ(bar(3), before);
    for (int position = 32; position <= 48; ++position)
        tick();
    EXPECT_NE(bar(3), before);
    press("Command1");
    EXPECT_EQ(bar(3), before);
}

} // namespace
} // namespace tabrova::testing
