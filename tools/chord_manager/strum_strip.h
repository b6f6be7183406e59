// `Image3`: six strings to strum with the mouse, the highest on top as in the tablature. The string under the
// pointer lights up. It says only where the pointer is; what sounds is its owner's.
#pragma once

#include "tools/chord_manager/chord_tables.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace tabrova {

class StrumStrip : public QWidget {
  public:
    // A string's band, 0 for the highest; nothing between two bands.
    using Band = std::optional<std::size_t>;

    explicit StrumStrip(QWidget* parent);

    std::function<void()> pressed;
    std::function<void(Band)> moved;
    std::function<void(Band)> released;

    QSize sizeHint() const override;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void highlight(Band band);

    std::array<QWidget*, ChordStrings> highlights_;
};

} // namespace tabrova
