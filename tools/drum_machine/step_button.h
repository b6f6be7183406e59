// One step of a drum's row: blue when it is set, white when it is not, in every theme, since the color is
// what decides. A frame marks the step that sounds. Mouse and keys are the grid's.
#pragma once

#include <QAbstractButton>

namespace tabrova {

constexpr QRgb SetStepColor = 0xFF12378F;
constexpr QRgb ClearStepColor = 0xFFFFFFFF;

class StepButton : public QAbstractButton {
  public:
    StepButton(int row, int step, QWidget* parent);

    int row() const { return row_; }
    int step() const { return step_; }
    void setSet(bool set);
    void setSounding(bool sounding);

    QSize sizeHint() const override { return {27, 24}; }
    QSize minimumSizeHint() const override { return {20, 20}; }

  protected:
    // The window decides what a press does.
    void nextCheckState() override {}
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    int row_;
    int step_;
    bool sounding_ = false;
};

} // namespace tabrova
