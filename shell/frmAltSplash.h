// `frmAltSplash`, the welcome window: a picture with four hot images, a highlight under the mouse and a line
// that names what is there.
#pragma once

#include <QDialog>
#include <QLabel>

#include <array>
#include <filesystem>
#include <functional>

namespace tabrova {

enum class SplashChoice { NewTablature, OpenTablature, Learn, CloseWindow };

class frmAltSplash : public QDialog {
  public:
    frmAltSplash(const std::filesystem::path& programFolder, QWidget* parent);

    // Called once, for a click on an image, on the picture itself or for Escape.
    std::function<void(SplashChoice)> chosen;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void highlight(int index);
    void nameOption(std::string_view message, const QString& text);
    void choose(SplashChoice choice);

    std::array<QWidget*, 4> imgOptions_{};
    QWidget* imgHighlight_;
    QLabel* lblTooltip_;
    bool done_ = false;
};

} // namespace tabrova
