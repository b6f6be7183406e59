// `picMarkers`: a neck of real proportions with its inlays, for the right or the left hand, and a mark for
// each fret of each string, of which those of the scale are visible.
#pragma once

#include "forms/round_mark.h"
#include "tools/scale_manager/scale_calculator.h"

namespace tabrova {

class ScaleNeck : public QWidget {
  public:
    explicit ScaleNeck(QWidget* parent);

    void showMarks(const ScaleDisplay& display);
    // Visible marks stay visible.
    void setView(NeckView view);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // The wire behind the fret, 0 for the nut, in pixels.
    int wireX(std::size_t fret) const;
    void paintInlays(QPainter& painter) const;

    NeckView view_ = NeckView::RightHanded;
    std::array<std::array<RoundMark*, ScaleMarks>, ScaleStrings> marks_;
};

} // namespace tabrova
