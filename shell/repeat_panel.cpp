#include "shell/repeat_panel.h"

#include "core/document/bar_marks.h"
#include "forms/captions.h"

#include <QKeyEvent>
#include <QLabel>

namespace tabrova {

namespace {

constexpr int PanelWidth = 170;
constexpr int PanelHeight = 62;

QLabel* addLabel(const char* name, const QRect& place, QWidget* panel) {
    auto* label = new QLabel(panel);
    label->setObjectName(name);
    QFont small = label->font();
    small.setPixelSize(11);
    label->setFont(small);
    label->setGeometry(place);
    return label;
}

} // namespace

RepeatScroller::RepeatScroller(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
    setObjectName("RepeatScroller");
    setRange(1, MostRepeats);
    nameAfter(this, "lblToolTip2(0)");
    setFocusPolicy(Qt::StrongFocus);
}

void RepeatScroller::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return entered();
    case Qt::Key_Right:
    case Qt::Key_Down:
        return setValue(value() + 1);
    case Qt::Key_Left:
    case Qt::Key_Up:
        return setValue(value() - 1);
    default:
        QScrollBar::keyPressEvent(event);
    }
}

RepeatPanel::RepeatPanel(QWidget* parent) : QFrame(parent), scroller_(new RepeatScroller(this)) {
    setObjectName("picRepeat");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setFixedSize(PanelWidth, PanelHeight);
    addLabel("lblToolTip2(0)", {1, 2, 130, 15}, this);
    lblRepeatTimes_ = addLabel("lblRepeatTimes", {132, 2, 28, 15}, this);
    lblRepeatTimes_->setAlignment(Qt::AlignRight);
    lblRepeatTimes_->setText("1");
    addLabel("lblToolTip2(1)", {4, 43, PanelWidth - 6, 15}, this);
    scroller_->setGeometry(6, 22, PanelWidth - 12, 16);
    connect(scroller_, &QScrollBar::valueChanged, this,
            [this](int value) { lblRepeatTimes_->setText(QString::number(value)); });
    scroller_->entered = [this] { chosen(scroller_->value()); };
    zoom_.emplace(*this);
    hide();
}

} // namespace tabrova
