#include "tools/drum_machine/drum_rows.h"

#include "forms/named.h"
#include "sound/drum_names.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cstdlib>

namespace tabrova {

namespace {

constexpr int StepsOfBeat = 4;
constexpr int InstrumentColumn = 0, VolumeColumn = 1;
constexpr int GroupGap = 8;
constexpr int GroundOpacity = 26; // of 255, behind every other beat
constexpr int GroundMargin = 4;
constexpr qreal GroundRounding = 5;
constexpr int VolumeWidth = 84;

// A gap stands before the first step of each beat.
int columnOf(int step) { return VolumeColumn + 2 + step + step / StepsOfBeat; }

std::size_t at(int index) { return static_cast<std::size_t>(index); }

QLabel* stepNumber(int step, QWidget* parent) {
    auto* label = new QLabel(QString::number(step + 1), parent);
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setBold(step % StepsOfBeat == 0);
    label->setFont(font);
    return label;
}

} // namespace

DrumRowsView::DrumRowsView(QWidget* parent) : QWidget(parent) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, GroundMargin, GroundMargin);
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(1);
    grid->addWidget(named(new QLabel(this), "lblInstrument"), 0, InstrumentColumn);
    grid->addWidget(named(new QLabel(this), "lblVolume"), 0, VolumeColumn, Qt::AlignCenter);
    for (int step = 0; step < PatternSteps; ++step) {
        grid->addWidget(stepNumber(step, this), 0, columnOf(step));
        grid->setColumnStretch(columnOf(step), 1);
        if (step % StepsOfBeat == 0) grid->setColumnMinimumWidth(columnOf(step) - 1, GroupGap);
    }
    QStringList drums;
    for (const char* drum : DrumNames)
        drums.append(drum);
    for (int row = 0; row < DrumRows; ++row) {
        auto* drum = named(new QComboBox(this), QString("lstInstrument(%1)").arg(row));
        drum->addItems(drums);
        auto* volume = named(new QSlider(Qt::Horizontal, this), QString("sldVolume(%1)").arg(row));
        volume->setRange(SoftestDrum, LoudestDrum);
        volume->setFixedWidth(VolumeWidth);
        grid->addWidget(drum, row + 1, InstrumentColumn);
        grid->addWidget(volume, row + 1, VolumeColumn, Qt::AlignCenter);
        lstInstrument_[at(row)] = drum;
        sldVolume_[at(row)] = volume;
        connect(drum, &QComboBox::activated, this, [this, row](int chosen) {
            if (lstInstrument_Click) lstInstrument_Click(row, chosen);
        });
        connect(volume, &QSlider::valueChanged, this, [this, row](int value) {
            sldVolume_[at(row)]->setToolTip(QString::number(value));
            if (sldVolume_Change) sldVolume_Change(row, value);
        });
        for (int step = 0; step < PatternSteps; ++step) {
            auto* button = new StepButton(row, step, this);
            steps_[at(row)][at(step)] = button;
            button->installEventFilter(this);
            connect(button, &QAbstractButton::clicked, this, [this, row, step] {
                if (Click) Click(row, step);
            });
            grid->addWidget(button, row + 1, columnOf(step));
        }
        grid->setRowStretch(row + 1, 1);
    }
    grid->setColumnMinimumWidth(VolumeColumn, VolumeWidth + 2 * GroupGap);
    takeTabKey(button(0, 0));
}

StepButton& DrumRowsView::button(int row, int step) const { return *steps_[at(row)][at(step)]; }

StepButton* DrumRowsView::buttonAt(QPoint place) const { return dynamic_cast<StepButton*>(childAt(place)); }

void DrumRowsView::showStep(int row, int step, bool set) { button(row, step).setSet(set); }

void DrumRowsView::showSounding(int step) {
    if (step == sounding_) return;
    for (int row = 0; row < DrumRows; ++row) {
        if (sounding_ >= 0) button(row, sounding_).setSounding(false);
        if (step >= 0) button(row, step).setSounding(true);
    }
    sounding_ = step;
}

void DrumRowsView::showRow(int row, int drum, int volume) {
    const QSignalBlocker quietDrum(lstInstrument_[at(row)]);
    const QSignalBlocker quietVolume(sldVolume_[at(row)]);
    lstInstrument_[at(row)]->setCurrentIndex(drum);
    sldVolume_[at(row)]->setValue(volume);
    sldVolume_[at(row)]->setToolTip(QString::number(volume));
}

void DrumRowsView::setRowsEnabled(bool enabled) {
    for (int row = 0; row < DrumRows; ++row) {
        lstInstrument_[at(row)]->setEnabled(enabled);
        sldVolume_[at(row)]->setEnabled(enabled);
    }
}

void DrumRowsView::setWords(const QString& instrument, const QString& volume) {
    for (int row = 0; row < DrumRows; ++row) {
        const QString number = " " + QString::number(row + 1);
        lstInstrument_[at(row)]->setAccessibleName(instrument + number);
        sldVolume_[at(row)]->setAccessibleName(volume + number);
        for (int step = 0; step < PatternSteps; ++step)
            button(row, step).setAccessibleName(instrument + number + ", " + QString::number(step + 1));
    }
}

void DrumRowsView::writeStep(StepButton& step, bool set) {
    if (step.isChecked() != set) step.click();
}

void DrumRowsView::mousePressEvent(QMouseEvent* event) {
    StepButton* pressed = event->button() == Qt::LeftButton ? buttonAt(event->position().toPoint()) : nullptr;
    if (!pressed) return event->ignore();
    draws_ = !pressed->isChecked();
    drawnTo_ = {pressed->row(), pressed->step()};
    pressed->setFocus(Qt::MouseFocusReason);
    writeStep(*pressed, draws_);
}

void DrumRowsView::mouseMoveEvent(QMouseEvent* event) {
    if (!drawnTo_ || !(event->buttons() & Qt::LeftButton)) return event->ignore();
    drawTo(stepAt(event->position().toPoint()));
}

void DrumRowsView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) drawnTo_.reset();
}

StepPlace DrumRowsView::stepAt(QPoint place) const {
    const auto nearest = [](int at, const auto& middleOf, int count) {
        const int last = count - 1;
        const int apart = (middleOf(last) - middleOf(0)) / last;
        if (at < middleOf(0)) return -((middleOf(0) - at + apart / 2) / apart);
        if (at > middleOf(last)) return last + (at - middleOf(last) + apart / 2) / apart;
        int found = 0;
        for (int each = 1; each < count; ++each)
            if (std::abs(middleOf(each) - at) < std::abs(middleOf(found) - at)) found = each;
        return found;
    };
    const auto middleOfRow = [this](int row) { return button(row, 0).geometry().center().y(); };
    const auto middleOfStep = [this](int step) { return button(0, step).geometry().center().x(); };
    return {nearest(place.y(), middleOfRow, DrumRows), nearest(place.x(), middleOfStep, PatternSteps)};
}

// A mouse that is drawn fast passes over steps without an event there: those on the straight way are written.
void DrumRowsView::drawTo(StepPlace to) {
    const int rows = to.row - drawnTo_->row, steps = to.step - drawnTo_->step;
    const int way = std::max(std::abs(rows), std::abs(steps));
    const auto rounded = [way](int part, int whole) {
        return (2 * part * whole + (whole < 0 ? -way : way)) / (2 * way);
    };
    for (int part = 1; part <= way; ++part) {
        const int row = drawnTo_->row + rounded(part, rows), step = drawnTo_->step + rounded(part, steps);
        if (row >= 0 && row < DrumRows && step >= 0 && step < PatternSteps)
            writeStep(button(row, step), draws_);
    }
    drawnTo_ = to;
}

void DrumRowsView::keyPressEvent(QKeyEvent* event) {
    auto* focused = dynamic_cast<StepButton*>(focusWidget());
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (!focused || !plain) return event->ignore();
    int row = focused->row(), step = focused->step();
    switch (event->key()) {
    case Qt::Key_Left:
        --step;
        break;
    case Qt::Key_Right:
        ++step;
        break;
    case Qt::Key_Up:
        --row;
        break;
    case Qt::Key_Down:
        ++row;
        break;
    case Qt::Key_Home:
        step = 0;
        break;
    case Qt::Key_End:
        step = PatternSteps - 1;
        break;
    case Qt::Key_Space:
        if (!event->isAutoRepeat()) focused->click();
        return;
    default:
        return event->ignore();
    }
    button(std::clamp(row, 0, DrumRows - 1), std::clamp(step, 0, PatternSteps - 1))
        .setFocus(Qt::OtherFocusReason);
}

bool DrumRowsView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        if (auto* step = dynamic_cast<StepButton*>(watched)) takeTabKey(*step);
    return QWidget::eventFilter(watched, event);
}

// The steps are one stop of the Tab key.
void DrumRowsView::takeTabKey(StepButton& step) {
    if (current_) current_->setFocusPolicy(Qt::ClickFocus);
    current_ = &step;
    step.setFocusPolicy(Qt::StrongFocus);
}

void DrumRowsView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette().color(QPalette::WindowText);
    ground.setAlpha(GroundOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    for (int step = 0; step < PatternSteps; step += 2 * StepsOfBeat) {
        const QRect beat =
            button(0, step).geometry().united(button(DrumRows - 1, step + StepsOfBeat - 1).geometry());
        painter.drawRoundedRect(beat.adjusted(-GroundMargin, -GroundMargin, GroundMargin, GroundMargin),
                                GroundRounding, GroundRounding);
    }
}

} // namespace tabrova
