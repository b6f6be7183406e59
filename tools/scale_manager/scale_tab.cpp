#include "tools/scale_manager/scale_tab.h"

#include "forms/named.h"
#include "forms/paper.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace tabrova {

namespace {

constexpr int LineGap = 18; // pixels, as all below
constexpr int Top = 14;
constexpr int Side = 10;
constexpr int FirstNote = 34;
constexpr int NoteGap = 26;     // of the slots of a string
constexpr int StringShift = 86; // each string's first slot stands so far right of the lower one's
constexpr QSize LabelSize = {24, 17};
constexpr int DigitPixels = 13;
constexpr int LetterPixels = 20;
constexpr QRgb LineColor = 0xFF9A9A9A;

int noteX(std::size_t label) {
    return FirstNote + static_cast<int>(label / ScaleSlots) * StringShift +
           static_cast<int>(label % ScaleSlots) * NoteGap;
}

int lineY(std::size_t string) { return Top + static_cast<int>(ScaleStrings - 1 - string) * LineGap; }

void setInk(QLabel& label, QRgb color) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, QColor::fromRgb(color));
    label.setPalette(palette);
}

} // namespace

ScaleTab::ScaleTab(QWidget* parent) : QWidget(parent) {
    setObjectName("Picture2");
    makePaper(*this);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(noteX(Labels - 1) + LabelSize.width() + Side,
                 2 * Top + (static_cast<int>(ScaleStrings) - 1) * LineGap + 1);
    QFont digits = font();
    digits.setPixelSize(DigitPixels);
    digits.setBold(true);
    for (std::size_t label = 0; label < Labels; ++label) {
        const std::size_t string = label / ScaleSlots;
        const QString name = QString("%1(%2)").arg(ScaleStringTable[string].labels).arg(label % ScaleSlots);
        labels_[label] = named(new QLabel(this), name);
        labels_[label]->setGeometry(noteX(label), lineY(string) - LabelSize.height() / 2, LabelSize.width(),
                                    LabelSize.height());
        labels_[label]->setAlignment(Qt::AlignCenter);
        labels_[label]->setFont(digits);
        labels_[label]->setMouseTracking(true);
        labels_[label]->installEventFilter(this);
    }
}

void ScaleTab::showLabels(const ScaleDisplay& display) {
    for (std::size_t label = 0; label < Labels; ++label) {
        const std::string& fret = display.labels[label / ScaleSlots][label % ScaleSlots];
        labels_[label]->setText(QString::fromStdString(fret));
        labels_[label]->setCursor(fret.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    }
    keyboardAt_ = 0;
    if (labels_[0]->text().isEmpty()) moveKeyboard(1);
    update();
}

void ScaleTab::blackenLabels() {
    for (QLabel* label : labels_)
        setInk(*label, 0xFF000000);
}

bool ScaleTab::eventFilter(QObject* watched, QEvent* event) {
    const auto found = std::find(labels_.begin(), labels_.end(), watched);
    if (found == labels_.end()) return false;
    if (event->type() == QEvent::MouseMove) {
        setInk(**found, 0xFFFF0000);
        return true; // the panel would blacken it
    }
    if (event->type() == QEvent::MouseButtonPress) return true; // the release is the click
    if (event->type() != QEvent::MouseButtonRelease) return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const bool inside = (*found)->rect().contains(mouse->position().toPoint());
    if (inside && mouse->button() == Qt::LeftButton) click(static_cast<std::size_t>(found - labels_.begin()));
    return true;
}

void ScaleTab::click(std::size_t label) {
    if (noteClicked) noteClicked(label / ScaleSlots, labels_[label]->text());
}

void ScaleTab::mouseMoveEvent(QMouseEvent*) { blackenLabels(); }

void ScaleTab::leaveEvent(QEvent*) { blackenLabels(); }

void ScaleTab::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return moveKeyboard(1);
    case Qt::Key_Left:
    case Qt::Key_Up:
        return moveKeyboard(-1);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return event->isAutoRepeat() ? void() : click(keyboardAt_);
    default:
        QWidget::keyPressEvent(event);
    }
}

void ScaleTab::moveKeyboard(int step) {
    for (int at = static_cast<int>(keyboardAt_) + step; at >= 0 && at < static_cast<int>(Labels); at += step)
        if (!labels_[static_cast<std::size_t>(at)]->text().isEmpty()) {
            keyboardAt_ = static_cast<std::size_t>(at);
            break;
        }
    update();
}

void ScaleTab::focusInEvent(QFocusEvent*) { update(); }
void ScaleTab::focusOutEvent(QFocusEvent*) { update(); }

// A line stops beside the note that stands on it.
void ScaleTab::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPaper(painter, rect());
    for (std::size_t string = 0; string < ScaleStrings; ++string)
        fillSharp(painter, QRectF(Side, lineY(string), width() - 2 * Side, 1), LineColor);
    for (const QLabel* label : labels_)
        if (!label->text().isEmpty())
            painter.fillRect(label->geometry().adjusted(1, 4, -1, -4), QColor::fromRgb(ChartPaper));
    QFont letters = font();
    letters.setPixelSize(LetterPixels);
    letters.setBold(true);
    painter.setFont(letters);
    painter.setPen(QColor::fromRgb(ChartInk));
    int y = Top + LineGap / 2;
    for (const char letter : {'T', 'A', 'B'}) {
        painter.drawText(QRect(Side + 2, y, LetterPixels, LetterPixels + 2), Qt::AlignCenter,
                         QString(QLatin1Char(letter)));
        y += LetterPixels + 5;
    }
    if (hasFocus()) paintFocusMark(painter);
}

// Around the note that the keyboard is at; around all while there are no notes.
void ScaleTab::paintFocusMark(QPainter& painter) const {
    const QLabel& label = *labels_[keyboardAt_];
    const QRect place = label.text().isEmpty() ? rect().adjusted(1, 1, -1, -1) : label.geometry();
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
}

} // namespace tabrova
