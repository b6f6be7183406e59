// The beats of a bar as four pictures, `imgMetronome`, and the marker `line_Metronome` that stands over the
// one that sounds. Beats that the bar does not have are faint.
#pragma once

#include <QWidget>

#include <array>

namespace tabrova {

class BeatPicture;

class BeatRow : public QWidget {
  public:
    explicit BeatRow(QWidget* parent);

    // `sounding` counts from 0; with -1 the marker rests over the first picture.
    void showBeat(int sounding, int beatsPerBar);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void placeMarker();

    std::array<BeatPicture*, 4> imgMetronome_;
    QWidget* line_Metronome_;
    int sounding_ = -1;
};

} // namespace tabrova
