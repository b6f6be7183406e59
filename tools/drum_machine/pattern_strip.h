// Which patterns of the song are used: a bar for each, the higher the more of its steps are set. It stands
// above the slider that chooses one, each bar over the slider's place for it. A click on a bar chooses its
// pattern.
#pragma once

#include "tools/drum_machine/drum_song.h"

#include <QWidget>

#include <functional>

class QSlider;

namespace tabrova {

class PatternStrip : public QWidget {
  public:
    PatternStrip(const QSlider& slider, QWidget* parent);

    std::function<void(int pattern)> chosen;

    void showSteps(int pattern, int set);
    void showChosen(int pattern);
    // The pattern that sounds; -1 for none.
    void showSounding(int pattern);
    void setWord(const QString& stepsSet) { word_ = stepsSet; }

    // The place of the pattern's bar, from the upper to the lower edge.
    QRectF barPlace(int pattern) const;

    QSize sizeHint() const override { return {400, 34}; }
    QSize minimumSizeHint() const override { return {200, 24}; }

  protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    int patternAt(qreal x) const;

    const QSlider& slider_;
    std::array<int, SongPatterns> steps_{};
    int chosen_ = 0;
    int sounding_ = -1;
    QString word_;
};

} // namespace tabrova
