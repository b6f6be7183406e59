// The drum machine's steps, patterns and places against those that were looked at.
#include "tests/tools/drum_machine/drum_window.h"
#include "tests/tools/looks.h"

namespace tabrova::testing {
namespace {

constexpr char Tool[] = "drum_machine";

class DrumLooks : public DrumWindow {
  protected:
    DrumLooks() {
        QPalette theme(QColor(0xef, 0xef, 0xef));
        theme.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
        QApplication::setPalette(theme);
    }
    ~DrumLooks() override { QApplication::setPalette(before_); }

  private:
    QPalette before_ = QApplication::palette();
};

TEST_F(DrumLooks, AStepInItsStates) {
    StepButton step(3, 5, nullptr);
    step.resize(step.sizeHint());
    expectPicture(pictured(step, {}), Tool, "step_clear");
    step.setSounding(true);
    expectPicture(pictured(step, {}), Tool, "step_clear_sounding");
    step.setSet(true);
    expectPicture(pictured(step, {}), Tool, "step_set_sounding");
    step.setSounding(false);
    expectPicture(pictured(step, {}), Tool, "step_set");
}

TEST_F(DrumLooks, AStepWithTheKeyboard) {
    open();
    form->activateWindow();
    step(2, 2).setFocus();
    const QImage clear = step(2, 2).grab().toImage();
    EXPECT_NE(clear, step(2, 3).grab().toImage());
    pressStep(2, 2);
    pressStep(2, 3);
    step(2, 2).setFocus();
    EXPECT_NE(step(2, 2).grab().toImage(), step(2, 3).grab().toImage());
}

TEST_F(DrumLooks, ThePatternsThatAreUsedChosenAndSounding) {
    QSlider slider(Qt::Horizontal);
    slider.resize(600, 20);
    PatternStrip strip(slider, nullptr);
    strip.resize(600, strip.sizeHint().height());
    for (int pattern = 0; pattern < 40; ++pattern)
        strip.showSteps(pattern, pattern);
    strip.showChosen(60);
    strip.showSounding(12);
    expectPicture(pictured(strip, {}), Tool, "patterns");
    strip.showSteps(60, 256);
    strip.showSounding(-1);
    strip.setEnabled(false);
    expectPicture(pictured(strip, {}), Tool, "patterns_disabled");
}

TEST_F(DrumLooks, BeatsOfFourStandOnGroundsOfTwoKinds) {
    open();
    QWidget& rows = *step(0, 0).parentWidget();
    const QImage image = rows.grab().toImage();
    const auto ground = [&](int at) {
        return image.pixel(step(4, at).geometry().center().x(), step(4, at).geometry().bottom() + 1);
    };
    EXPECT_EQ(ground(0), ground(2));
    EXPECT_EQ(ground(0), ground(9));
    EXPECT_EQ(ground(5), ground(14));
    EXPECT_NE(ground(0), ground(5));
    const auto gap = [&](int at) { return step(0, at + 1).x() - step(0, at).geometry().right(); };
    for (const int at : {3, 7, 11})
        EXPECT_GT(gap(at), gap(at - 1) + 4);
}

TEST_F(DrumLooks, ItsControlsInTheirPlaces) {
    open();
    expectLayout(*form, Tool, "drum_machine_layout");
}

} // namespace
} // namespace tabrova::testing
