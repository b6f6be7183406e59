// A small panel of fixed places that can be shown larger: its own size, and places and letters of its parts.
#pragma once

#include <QFont>
#include <QList>
#include <QRect>

class QWidget;

namespace tabrova {

// The font at this zoom.
QFont zoomedFont(QFont font, int percent);

class PanelZoom {
  public:
    // The panel and the parts that it has by now stand as they shall at 100 percent.
    explicit PanelZoom(QWidget& panel);

    void set(int percent);
    QSize unzoomedSize() const { return size_; }
    QFont font(const QFont& unzoomed) const { return zoomedFont(unzoomed, percent_); }
    QRect zoomed(const QRect& place) const;
    QPoint unzoomed(const QPointF& place) const;

  private:
    struct Part {
        QWidget* widget;
        QRect place;
        QFont font;
    };

    QWidget& panel_;
    QSize size_;
    QList<Part> parts_;
    int percent_ = 100;
};

} // namespace tabrova
