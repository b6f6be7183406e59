// A widget that shows a drawing surface pixel by pixel, whatever the screen's resolution.
#pragma once

#include "tabview/area_scaling.h"
#include "tabview/surface.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace tabrova {

// A rectangle of one colour that floats above a surface, in logical pixels.
struct FloatingRect {
    Rect place;
    QRgb color;
};

class SurfaceWidget : public QWidget {
  public:
    SurfaceWidget(const QString& name, Surface& surface, QWidget* parent);

    const Surface& surface() const { return surface_; }
    // The screen's pixels that a logical pixel takes.
    void setZoom(qreal zoom);
    // What floats above the surface now.
    std::function<std::vector<FloatingRect>()> objects;
    // Shows what was drawn on the surface since the last time, and the objects where they are now.
    void showChanges();

  protected:
    // The logical pixel under the mouse: on finer screens it lies on fractions of one.
    QPoint pixelAt(const QMouseEvent& event) const;
    void paintEvent(QPaintEvent* event) override;

  private:
    // The toolkit's pixels that show this place, with those that it shares.
    QRect shown(const Rect& place) const;
    // The screen's pixels of a part of the widget.
    QRect onScreen(const QRect& part) const;

    // Image pixels of the screen for one of the surface.
    qreal factor() const { return devicePixelRatioF() * zoom_ / surface_.scale(); }
    // What the screen shows, one image pixel a screen pixel, with all changes of the surface.
    const QImage& screenImage();

    Surface& surface_;
    qreal zoom_ = 1.0;
    QRegion notShown_; // what changed on the surface since showChanges
    QRegion objectsShown_;
    // For the other sizes than the surface's own.
    std::optional<AreaScaling> scaling_;
    qreal scalingFactor_ = 0.0;
    QImage scaled_;
};

} // namespace tabrova
