// A widget that shows a drawing surface pixel by pixel, whatever the screen's resolution.
#pragma once

#include "tabview/surface.h"

#include <QWidget>

#include <functional>

namespace tabrova {

class SurfaceWidget : public QWidget {
  public:
    SurfaceWidget(const QString& name, const Surface& surface, QWidget* parent);

    const Surface& surface() const { return surface_; }
    // The screen's pixels that a logical pixel takes.
    void setZoom(qreal zoom);
    // Draws what floats above the surface, in logical pixels.
    std::function<void(QPainter&)> paintObjects;

  protected:
    // The logical pixel under the mouse: on finer screens it lies on fractions of one.
    QPoint pixelAt(const QMouseEvent& event) const;
    void paintEvent(QPaintEvent* event) override;

  private:
    const Surface& surface_;
    qreal zoom_ = 1.0;
};

} // namespace tabrova
