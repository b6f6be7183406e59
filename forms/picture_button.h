// A picture that acts as a button: an arrow, a bin, the sign to play. Space, Return and a click press it, Tab
// reaches it, and to a screen reader it is a button with the name that its line of the language file gives.
#pragma once

#include <QAbstractButton>
#include <QIcon>

#include <functional>

namespace tabrova {

class PictureButton : public QAbstractButton {
  public:
    // Draws the picture into its place; `on` while the button is held down or stays down.
    using PaintPicture = std::function<void(QPainter& painter, QRect place, bool on)>;

    // `size` is the picture's own, in pixels of the screen's scale; around it is room for the focus mark.
    PictureButton(const QString& name, const QIcon& picture, QSize size, QWidget* parent);
    PictureButton(const QString& name, PaintPicture picture, QSize size, QWidget* parent);

    void setPicture(const QIcon& picture);
    void setPicture(PaintPicture picture);

    // Once for each press.
    std::function<void()> Click;
    // The same as soon as a button of the mouse goes down, whichever it is.
    std::function<void()> MouseDown;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    PictureButton(const QString& name, QSize size, QWidget* parent);
    bool isOn() const { return isDown() || isChecked(); }
    void paintGround(QPainter& painter) const;
    void paintPicture(QPainter& painter) const;
    void paintFocusMark(QPainter& painter) const;

    PaintPicture picture_; // none for an icon
    bool mouseIsDown_ = false;
};

} // namespace tabrova
