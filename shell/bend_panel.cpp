#include "shell/bend_panel.h"

#include "editing/key_codes.h"
#include "forms/captions.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include <algorithm>

namespace tabrova {

namespace {

constexpr int Columns = 6;
constexpr int CellWidth = 28;
constexpr int FirstTop = 16;
constexpr int CellHeight = 14;
constexpr int PanelWidth = Columns * CellWidth + 2;
constexpr int PanelHeight = 62;
const char* const Sizes[Columns] = {"½", "1", "1½", "2", "2½", "3"};

QRect cellAt(int row, int column) {
    return {column * CellWidth, FirstTop + row * CellHeight, CellWidth, CellHeight};
}

// A label that gives the keyboard back to the panel when it is clicked.
class PanelLabel : public QLabel {
  public:
    PanelLabel(const char* name, QWidget* panel) : QLabel(panel) {
        setObjectName(name);
        QFont small = font();
        small.setPixelSize(11);
        setFont(small);
    }

  protected:
    void mousePressEvent(QMouseEvent*) override { parentWidget()->setFocus(); }
};

} // namespace

BendPanel::BendPanel(QWidget* parent) : QFrame(parent) {
    setObjectName("picBend");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(PanelWidth, PanelHeight);
    auto* title = new PanelLabel("Label1", this);
    title->setGeometry(1, 1, PanelWidth - 2, FirstTop - 2);
    auto* picture = new PanelLabel("Image2", this);
    picture->setGeometry(1, FirstTop, PanelWidth - 2, 2 * CellHeight);
    auto* hint = new PanelLabel("Label2", this);
    hint->setGeometry(4, FirstTop + 2 * CellHeight + 1, PanelWidth - 6, 15);
    zoom_.emplace(*this);
    BendCursor_ = new HighlightShape("BendCursor", this);
    showHighlight();
    nameAfter(this, "Label1");
    hide();
}

void BendPanel::setZoom(int percent) {
    zoom_->set(percent);
    showHighlight();
}

void BendPanel::showHighlight() { BendCursor_->setGeometry(zoom_->zoomed(cellAt(row_, column_))); }

void BendPanel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Right:
        column_ = std::min(column_ + 1, Columns - 1);
        break;
    case Qt::Key_Left:
        column_ = std::max(column_ - 1, 0);
        break;
    case Qt::Key_Up:
        row_ = 0;
        break;
    case Qt::Key_Down:
        row_ = 1;
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        chosen(code::FirstBend + row_ * Columns + column_);
        return;
    default:
        break;
    }
    showHighlight();
}

void BendPanel::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    paintCells(painter);
}

void BendPanel::paintCells(QPainter& painter) const {
    QFont small = font();
    small.setPixelSize(11);
    painter.setFont(zoom_->font(small));
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < Columns; ++column) {
            painter.setPen(palette().color(QPalette::WindowText));
            const QString arrow = row == 0 ? QStringLiteral("↓") : QStringLiteral("↑");
            painter.drawText(zoom_->zoomed(cellAt(row, column)), Qt::AlignCenter,
                             arrow + QString::fromUtf8(Sizes[column]));
        }
    }
}

} // namespace tabrova
