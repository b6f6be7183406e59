// How the drum machine's controls are made, placed and connected.
#include "forms/captions.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "tools/drum_machine/drum_rows.h"
#include "tools/drum_machine/frmDrumMachine.h"
#include "tools/drum_machine/pattern_strip.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSlider>
#include <QSpinBox>

namespace tabrova {

namespace {

constexpr int Gap = 10;
constexpr int PatternNumberHeight = 30; // pixels, of its digits
constexpr int SpeedStep = 10;

QSlider* slider(const QString& name, int least, int most, QWidget* parent) {
    auto* made = named(new QSlider(Qt::Horizontal, parent), name);
    made->setRange(least, most);
    return made;
}

} // namespace

frmDrumMachine::frmDrumMachine(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmDrumMachine", context, parent),
      machine_(context.bench.sound, context.services.timers, this) {
    rows_ = new DrumRowsView(this);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(Gap);
    column->addWidget(new Logo(this));
    column->addWidget(rows_, 1);
    column->addLayout(buildPattern());
    column->addLayout(buildSpeed());
    column->addLayout(buildCommands());
    setFirstFocus(rows_->stepWithTabKey());
    connectControls();
}

QLayout* frmDrumMachine::buildPattern() {
    Text1_ = named(new QLineEdit("0", this), "Text1");
    QFont large = Text1_->font();
    large.setPixelSize(PatternNumberHeight);
    large.setBold(true);
    Text1_->setFont(large);
    Text1_->setAlignment(Qt::AlignCenter);
    Text1_->setFixedWidth(QFontMetrics(large).horizontalAdvance("000") + 2 * Gap);
    sldPattern_ = slider("sldPattern", 0, SongPatterns - 1, this);
    nameAfter(sldPattern_, "Label1");
    sldPattern_->setPageStep(PatternSteps);
    picPatterns_ = new PatternStrip(*sldPattern_, this);
    lblSteps_ = named(new QLabel(this), "lblSteps");
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Gap);
    grid->setVerticalSpacing(2);
    grid->addWidget(labelOf(Text1_, "Label1", this), 0, 0);
    grid->addWidget(lblSteps_, 1, 0);
    grid->addWidget(Text1_, 0, 1, 2, 1);
    grid->addWidget(picPatterns_, 0, 2);
    grid->addWidget(sldPattern_, 1, 2);
    grid->setColumnStretch(2, 1);
    return grid;
}

QLayout* frmDrumMachine::buildSpeed() {
    sldSpeed_ = slider("sldSpeed", SlowestSteps, FastestSteps, this);
    nameAfter(sldSpeed_, "Label2");
    sldSpeed_->setPageStep(SpeedStep);
    sldSpeed_->setValue(machine_.song.speed);
    spnSpeed_ = named(new QSpinBox(this), "spnSpeed");
    spnSpeed_->setRange(SlowestSteps, FastestSteps);
    spnSpeed_->setKeyboardTracking(false);
    spnSpeed_->setValue(machine_.song.speed);
    auto* row = new QHBoxLayout;
    row->addWidget(labelOf(spnSpeed_, "Label2", this));
    row->addWidget(spnSpeed_);
    row->addWidget(sldSpeed_, 1);
    return row;
}

QLayout* frmDrumMachine::buildCommands() {
    Command1_ = named(new QPushButton(this), "Command1");
    Command1_->setMinimumWidth(110);
    Command1_->setToolTip("F7");
    chkPlayAll_ = named(new QCheckBox(this), "chkPlayAll");
    Command2_ = named(new QPushButton(this), "Command2");
    Command3_ = named(new QPushButton(this), "Command3");
    auto* row = new QHBoxLayout;
    row->addWidget(Command1_);
    row->addWidget(chkPlayAll_);
    row->addStretch(1);
    row->addWidget(Command3_);
    row->addWidget(Command2_);
    return row;
}

void frmDrumMachine::connectControls() {
    machine_.changed = [this](DrumMachine::Change change) { showChange(change); };
    rows_->Click = [this](int row, int step) { pressStep(row, step); };
    rows_->lstInstrument_Click = [this](int row, int drum) {
        machine_.song.rows[static_cast<std::size_t>(row)].drum = drum;
    };
    rows_->sldVolume_Change = [this](int row, int volume) {
        machine_.song.rows[static_cast<std::size_t>(row)].volume = volume;
    };
    connect(sldPattern_, &QSlider::valueChanged, this,
            [this](int pattern) { machine_.choosePattern(pattern); });
    picPatterns_->chosen = [this](int pattern) {
        if (sldPattern_->isEnabled()) sldPattern_->setValue(pattern);
    };
    connect(Text1_, &QLineEdit::textChanged, this, [this] { Text1_Change(); });
    connect(sldSpeed_, &QSlider::valueChanged, this, [this](int speed) {
        machine_.setSpeed(speed);
        spnSpeed_->setValue(speed);
    });
    connect(spnSpeed_, &QSpinBox::valueChanged, sldSpeed_, &QSlider::setValue);
    connect(chkPlayAll_, &QCheckBox::toggled, this, [this](bool all) { machine_.playsAll = all; });
    connect(Command1_, &QPushButton::clicked, this, [this] { machine_.playOrStop(); });
    connect(new QShortcut(Qt::Key_F7, this), &QShortcut::activated, this, [this] { machine_.playOrStop(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { saveSong(); });
    connect(Command3_, &QPushButton::clicked, this, [this] { openSong(); });
}

} // namespace tabrova
