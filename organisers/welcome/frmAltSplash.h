// `frmAltSplash`, the welcome window: a picture with four hot images, a highlight under the mouse and a line
// that names what is there; below it the documents that were opened last, and the examples.
#pragma once

#include "forms/picture_button.h"
#include "workbench/tool_window.h"

#include <QLabel>

#include <array>

namespace tabrova {

enum class SplashChoice { NewTablature, OpenTablature, Learn, CloseWindow };

class frmAltSplash : public ToolWindow {
  public:
    frmAltSplash(const ToolContext& context, QWidget* parent);

  protected:
    void takeMessage(std::string_view name, const QString& text) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    // The arrow keys move as the Tab key does; at an image they come from the image.
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    // Of the main window.
    void moveToMiddle();
    void highlight(int index);
    // Once, for a click on an image, on the picture itself or for Escape: the window goes first.
    void choose(SplashChoice choice);
    void leaveTo(const std::function<void()>& act);
    void offerDocuments();
    void run(SplashChoice choice);

    std::array<QWidget*, 4> imgOptions_{};
    QWidget* imgHighlight_;
    QLabel* lblTooltip_;
    bool done_ = false;
};

} // namespace tabrova
