#include "tools/metronome/beat_row.h"

#include "forms/named.h"

#include <QPainter>

#include <algorithm>

namespace tabrova {

namespace {

constexpr int Gap = 10;
constexpr int PictureSize = 84;
constexpr int SmallestPicture = 48;
constexpr int MarkerHeight = 6;
constexpr qreal RingWidth = 2.5;
constexpr qreal FaintOpacity = 0.25;
constexpr qreal NumberOfDisc = 0.5; // the number's height in that of the disc

int across(int picture, int pictures) { return pictures * picture + (pictures - 1) * Gap; }

} // namespace

// A ring with the beat's number, filled while the beat sounds.
class BeatPicture : public QWidget {
  public:
    BeatPicture(int beat, QWidget* parent) : QWidget(parent), beat_(beat) {
        setObjectName(QString("imgMetronome(%1)").arg(beat));
    }

    void show(bool sounding, bool inTheBar) {
        if (sounding == sounding_ && inTheBar == inTheBar_) return;
        sounding_ = sounding;
        inTheBar_ = inTheBar;
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPalette& colors = palette();
        const QColor ink = colors.color(sounding_ ? QPalette::Highlight : QPalette::WindowText);
        const qreal top = 2 * MarkerHeight;
        const qreal size = std::min<qreal>(width(), height() - top) - 2 * RingWidth;
        QRectF disc(0, 0, size, size);
        disc.moveCenter(QPointF(width() / 2.0, (height() + top) / 2.0));
        if (!inTheBar_) painter.setOpacity(FaintOpacity);
        painter.setPen(QPen(ink, RingWidth));
        painter.setBrush(sounding_ ? QBrush(ink) : Qt::NoBrush);
        painter.drawEllipse(disc);
        QFont font = this->font();
        font.setBold(true);
        font.setPixelSize(std::max(8, static_cast<int>(size * NumberOfDisc)));
        painter.setFont(font);
        painter.setPen(colors.color(sounding_ ? QPalette::HighlightedText : QPalette::WindowText));
        painter.drawText(disc, Qt::AlignCenter, QString::number(beat_ + 1));
    }

  private:
    int beat_;
    bool sounding_ = false;
    bool inTheBar_ = true;
};

namespace {

class Marker : public QWidget {
  public:
    explicit Marker(QWidget* parent) : QWidget(parent) { setObjectName("line_Metronome"); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(rect(), MarkerHeight / 2.0, MarkerHeight / 2.0);
    }
};

} // namespace

BeatRow::BeatRow(QWidget* parent) : QWidget(parent) {
    for (std::size_t beat = 0; beat < imgMetronome_.size(); ++beat)
        imgMetronome_[beat] = new BeatPicture(static_cast<int>(beat), this);
    line_Metronome_ = new Marker(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize BeatRow::sizeHint() const {
    return {across(PictureSize, static_cast<int>(imgMetronome_.size())), PictureSize + 2 * MarkerHeight};
}

QSize BeatRow::minimumSizeHint() const {
    return {across(SmallestPicture, static_cast<int>(imgMetronome_.size())),
            SmallestPicture + 2 * MarkerHeight};
}

void BeatRow::showBeat(int sounding, int beatsPerBar) {
    sounding_ = sounding;
    for (std::size_t beat = 0; beat < imgMetronome_.size(); ++beat)
        imgMetronome_[beat]->show(static_cast<int>(beat) == sounding, static_cast<int>(beat) < beatsPerBar);
    placeMarker();
}

void BeatRow::resizeEvent(QResizeEvent*) {
    const auto pictures = static_cast<int>(imgMetronome_.size());
    const int each = (width() - (pictures - 1) * Gap) / pictures;
    const int rest = width() - across(each, pictures);
    for (int beat = 0; beat < pictures; ++beat)
        imgMetronome_[static_cast<std::size_t>(beat)]->setGeometry(rest / 2 + beat * (each + Gap), 0, each,
                                                                   height());
    placeMarker();
}

// Its left and width are those of the picture.
void BeatRow::placeMarker() {
    const auto beat = static_cast<std::size_t>(std::clamp(sounding_, 0, 3));
    const QRect picture = imgMetronome_[beat]->geometry();
    line_Metronome_->setGeometry(picture.left(), picture.top(), picture.width(), MarkerHeight);
}

} // namespace tabrova
