// How the tuning manager's controls are made, placed and connected.
#include "forms/folder_list.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "forms/picture_button.h"
#include "forms/preset_list.h"
#include "tools/tuning_manager/frmTuningManager.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

namespace tabrova {

namespace {

constexpr char DefaultName[] = "(New Tuning)";
constexpr int Gap = 12;
constexpr QSize PegSize = {30, 30};
constexpr qreal RingWidth = 1.5;
constexpr qreal PressedWidth = 3;

// A peg with the string's letter, or with six lines for all strings; a border around it while it is pressed.
void paintPeg(QPainter& painter, QRect place, bool on, const QWidget& button, const QString& letter) {
    const QColor ink = button.palette().color(button.foregroundRole());
    const QRectF ring = QRectF(place).adjusted(3, 3, -3, -3);
    painter.setPen(QPen(ink, RingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(ring);
    if (letter.isEmpty()) {
        constexpr int Lines = 6, LineGap = 3;
        for (int line = 0; line < Lines; ++line) {
            const qreal y = ring.center().y() + (line - (Lines - 1) / 2.0) * LineGap;
            painter.drawLine(QPointF(ring.left() + 6, y), QPointF(ring.right() - 6, y));
        }
    } else {
        QFont font = button.font();
        font.setPixelSize(15);
        font.setBold(true);
        painter.setFont(font);
        painter.drawText(ring, Qt::AlignCenter, letter);
    }
    if (!on) return;
    painter.setPen(QPen(button.palette().color(QPalette::Highlight), PressedWidth));
    painter.drawEllipse(QRectF(place).adjusted(1.5, 1.5, -1.5, -1.5));
}

PictureButton* pegButton(const QString& name, const QString& letter, QWidget* parent) {
    auto* button = new PictureButton(name, PictureButton::PaintPicture(), PegSize, parent);
    button->setPicture([button, letter](QPainter& painter, QRect place, bool on) {
        paintPeg(painter, place, on, *button, letter);
    });
    button->setCheckable(true);
    return button;
}

} // namespace

frmTuningManager::frmTuningManager(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmTuningManager", context, parent),
      tuner_(context.bench.sound, context.services.timers, this) {
    Command3_ = named(new QPushButton(this), "Command3");
    auto* sides = new QHBoxLayout;
    sides->setSpacing(2 * Gap);
    sides->addWidget(buildStrings());
    sides->addWidget(buildTunings(), 1);
    auto* column = new QVBoxLayout(this);
    column->addWidget(new Logo(this));
    column->addLayout(sides, 1);
    column->addWidget(Command3_, 0, Qt::AlignRight);
    setFirstFocus(Combo1_);
    connectControls();
}

// The highest string on top, as in the tablature.
QWidget* frmTuningManager::buildStrings() {
    auto* strings = new QWidget(this);
    auto* grid = new QGridLayout(strings);
    grid->setContentsMargins(0, 0, 0, 0);
    for (std::size_t string = 0; string < TuningStrings; ++string) {
        const TuningStringRow& row = TuningStringTable[string];
        const int line = static_cast<int>(TuningStrings - 1 - string);
        buttons_[string] = pegButton(row.button, QString(row.name).right(1), strings);
        buttons_[string]->setAccessibleName(row.name);
        buttons_[string]->setToolTip(row.name);
        lists_[string] = named(new QComboBox(strings), row.list);
        for (int item = 0; item < TuningItems; ++item)
            lists_[string]->addItem(QString::fromStdString(tuningItem(string, item)));
        lists_[string]->setMaxVisibleItems(TuningItems);
        lists_[string]->setAccessibleName(row.name);
        grid->addWidget(buttons_[string], line, 0);
        grid->addWidget(lists_[string], line, 1);
    }
    Picture1_ = pegButton("Picture1", QString(), strings);
    grid->addWidget(Picture1_, static_cast<int>(TuningStrings), 0);
    grid->setRowStretch(static_cast<int>(TuningStrings) + 1, 1);
    return strings;
}

QWidget* frmTuningManager::buildTunings() {
    auto* side = new QWidget(this);
    Combo1_ = new PresetList("Combo1", side);
    for (const TuningPreset& preset : tuningPresets())
        Combo1_->addItem(preset.caption);
    Combo1_->setMaxVisibleItems(static_cast<int>(tuningPresets().size()));
    lstTunings_ = new FolderList("lstTunings", EntryKind::Files, side);
    lstTunings_->setMinimumHeight(90);
    txtNAME_ = named(new QLineEdit(DefaultName, side), "txtNAME");
    Command1_ = named(new QPushButton(side), "Command1");
    Command2_ = named(new QPushButton(side), "Command2");
    auto* grid = new QGridLayout(side);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(labelOf(Combo1_, "Label1", side), 0, 0, 1, 2);
    grid->addWidget(Combo1_, 1, 0, 1, 2);
    grid->addWidget(labelOf(lstTunings_, "Label2", side), 2, 0, 1, 2);
    grid->addWidget(lstTunings_, 3, 0, 1, 2);
    grid->addWidget(Command2_, 4, 0, 1, 2);
    grid->addWidget(labelOf(txtNAME_, "Label3", side), 5, 0, 1, 2);
    grid->addWidget(txtNAME_, 6, 0);
    grid->addWidget(Command1_, 6, 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 1);
    return side;
}

void frmTuningManager::connectControls() {
    tuner_.changed = [this] { showTuner(); };
    for (std::size_t string = 0; string < TuningStrings; ++string) {
        connect(lists_[string], &QComboBox::activated, this,
                [this, string](int item) { tuner_.changeList(string, item); });
        buttons_[string]->Click = [this, string] { tuner_.pressString(string); };
    }
    Picture1_->Click = [this] { tuner_.pressAll(); };
    connect(Combo1_, &QComboBox::activated, this, [this](int row) {
        if (row < 0) return;
        preset_ = row;
        tuner_.choosePreset(tuningPresets()[static_cast<std::size_t>(row)]);
    });
    lstTunings_->Click = [this] { loadTuning(); };
    connect(Command1_, &QPushButton::clicked, this, [this] { SaveTuning(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { deleteTuning(); });
    connect(Command3_, &QPushButton::clicked, this, [this] { AssignTuning(); });
}

} // namespace tabrova
