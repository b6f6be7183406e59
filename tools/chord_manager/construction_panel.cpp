#include "tools/chord_manager/construction_panel.h"

#include "core/text/conversions.h"
#include "forms/captions.h"
#include "forms/named.h"

#include <QCheckBox>
#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace tabrova {

namespace {

constexpr double TwipsPerPixel = 15;
constexpr double Step = 400; // twips: the height of a box, and of the heading above them
constexpr int LeastVisibleBoxes = 6;
constexpr int Margin = 6;
constexpr int WheelStep = 120;

int pixels(double twips) { return static_cast<int>(roundHalfToEven(twips / TwipsPerPixel)); }

} // namespace

ConstructionPanel::ConstructionPanel(QWidget* parent) : QFrame(parent) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    Picture2_ = named(new QWidget(this), "Picture2");
    Picture2_->setAutoFillBackground(true);
    Picture2_->setBackgroundRole(QPalette::Window);
    Picture3_ = named(new QWidget(Picture2_), "Picture3");
    for (std::size_t interval = 0; interval < ChordIntervals; ++interval) {
        QCheckBox* box = named(new QCheckBox(Picture3_), QString("cCheck(%1)").arg(interval));
        box->setFocusPolicy(Qt::NoFocus);
        box->setAttribute(Qt::WA_TransparentForMouseEvents);
        cCheck_[interval] = box;
    }
    Label11_ = named(new QLabel(Picture2_), "Label11");
    Label11_->setAutoFillBackground(true);
    Label11_->setBackgroundRole(QPalette::Window);
    VScroll1_ = named(new QScrollBar(Qt::Vertical, Picture2_), "VScroll1");
    VScroll1_->setFocusPolicy(Qt::NoFocus);
    nameAfter(VScroll1_, "Label11");
    connect(VScroll1_, &QScrollBar::valueChanged, this, [this](int value) { VScroll1_Change(value); });
    arrange();
}

void ConstructionPanel::showValues(const ChordValues& values) {
    for (std::size_t interval = 0; interval < ChordIntervals; ++interval)
        if (values[interval] <= 2)
            cCheck_[interval]->setCheckState(values[interval] == 1   ? Qt::Checked
                                             : values[interval] == 2 ? Qt::PartiallyChecked
                                                                     : Qt::Unchecked);
}

void ConstructionPanel::arrange() {
    int widest = Label11_->sizeHint().width();
    for (const QCheckBox* box : cCheck_)
        widest = std::max(widest, box->sizeHint().width());
    for (std::size_t interval = 0; interval < ChordIntervals; ++interval) {
        const double top = Step * static_cast<double>(interval);
        cCheck_[interval]->setGeometry(Margin, pixels(top), widest, pixels(top + Step) - pixels(top));
    }
    Picture3_->resize(widest + 2 * Margin, pixels(Step * ChordIntervals) + Margin);
    setFixedWidth(Picture3_->width() + VScroll1_->sizeHint().width() + 2 * frameWidth());
    setMinimumHeight(pixels(Step * (LeastVisibleBoxes + 1)));
    layOut();
}

void ConstructionPanel::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    layOut();
}

void ConstructionPanel::layOut() {
    Picture2_->setGeometry(contentsRect());
    const QSize room = Picture2_->size();
    const int heading = pixels(Step);
    const int barWidth = VScroll1_->sizeHint().width();
    Label11_->setGeometry(Margin, 0, room.width() - Margin, heading);
    VScroll1_->setGeometry(room.width() - barWidth, heading, barWidth, room.height() - heading);
    const int visibleBoxes = (room.height() - heading) / heading;
    VScroll1_->setPageStep(std::max(visibleBoxes, 1));
    VScroll1_->setRange(0, std::max(static_cast<int>(ChordIntervals) - visibleBoxes, 0));
    VScroll1_Change(VScroll1_->value());
}

// At 0 the first box stands right below the heading.
void ConstructionPanel::VScroll1_Change(int value) { Picture3_->move(0, pixels(Step - Step * value)); }

void ConstructionPanel::wheelEvent(QWheelEvent* event) {
    const int steps = event->angleDelta().y() / WheelStep;
    VScroll1_->setValue(VScroll1_->value() - steps);
    event->accept();
}

} // namespace tabrova
