// Drawing over the step buttons with the mouse held down, on ways that leave them.
#include "tests/tools/drum_machine/drum_window_acts.h"

namespace tabrova::testing {
namespace {

class DrumDrawing : public DrumWindowActs {
  protected:
    DrumDrawing() { open(); }
    QPoint middleOf(std::size_t row, std::size_t step) const {
        return buttons[row][step]->mapTo(window.get(), buttons[row][step]->rect().center());
    }
    void draw(const std::vector<QPoint>& way) {
        QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, way.front());
        for (const QPoint place : way)
            QTest::mouseMove(window->windowHandle(), place);
        QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, way.back());
    }
};

TEST_F(DrumDrawing, ReachesTheEdgeWhenTheMouseHasLeftTheButtons) {
    const QPoint start = middleOf(3, 10);
    draw({start, {window->width() - 5, start.y()}});
    for (std::size_t step = 10; step < 16; ++step)
        model->press(3, step);
    EXPECT_TRUE(sameAsModel());
}

TEST_F(DrumDrawing, TakesNoShorterWayThanTheMouseThatGoesRoundTheButtons) {
    const QPoint start = middleOf(10, 14), end = middleOf(0, 4);
    const int above = end.y() - 24;
    draw({start, {start.x(), above}, {end.x(), above}, end});
    for (std::size_t row = 0; row <= 10; ++row)
        model->press(row, 14);
    model->press(0, 4);
    EXPECT_TRUE(sameAsModel());
}

TEST_F(DrumDrawing, IsForTheLeftMouseButtonAlone) {
    QTest::mousePress(window->windowHandle(), Qt::RightButton, {}, middleOf(2, 2));
    QTest::mouseMove(window->windowHandle(), middleOf(2, 9));
    QTest::mouseRelease(window->windowHandle(), Qt::RightButton, {}, middleOf(2, 9));
    EXPECT_TRUE(sameAsModel());
    // Without any button held down.
    QTest::mouseMove(window->windowHandle(), middleOf(2, 2));
    EXPECT_TRUE(sameAsModel());
}

TEST_F(DrumDrawing, BeginsAndEndsOnTheButtons) {
    const QPoint beside(middleOf(5, 15).x() + 25, middleOf(5, 15).y());
    draw({beside, middleOf(5, 15), middleOf(5, 3)});
    EXPECT_TRUE(sameAsModel());
}

} // namespace
} // namespace tabrova::testing
