// A mark of a chart: a control of its own above what its parent draws, seen as its ground's color alone. It
// lets the mouse through.
#pragma once

#include <QPainter>
#include <QWidget>

namespace tabrova {

class RoundMark : public QWidget {
  public:
    enum class Shape { Disc, Ring, Cross };

    // Hidden. A cross is of ink, whatever its color.
    RoundMark(const QString& name, Shape shape, QRgb color, QWidget* parent);

    void setMarkColor(QRgb color);
    // The disc's, in the middle; as large as the mark unless told.
    void setDiameter(qreal pixels) { diameter_ = pixels; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Shape shape_;
    qreal diameter_ = 0;
};

// On a string that is not played, in ink.
void paintCross(QPainter& painter, const QRectF& place);

constexpr QRgb PlainMarkColor = 0xFF549BF1;
constexpr QRgb RootMarkColor = 0xFFFF0000;

} // namespace tabrova
