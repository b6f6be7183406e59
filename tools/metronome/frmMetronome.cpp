#include "tools/metronome/frmMetronome.h"

#include "core/text/conversions.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "forms/preset_list.h"
#include "forms/text_edges.h"
#include "platform/box_title.h"
#include "platform/list_box.h"
#include "tools/metronome/beat_row.h"
#include "tools/metronome/metronome_tables.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSlider>

namespace tabrova {

namespace {

constexpr char NoPreset[] = "<none specified>"; // no row of the list
constexpr char DefaultBars[] = "8";
constexpr int LowestPitch = 30, HighestPitch = 100, PitchTick = 5; // MIDI
constexpr int Gap = 10;
constexpr int StartHeight = 36; // pixels, of the button
constexpr int ShownRates = 8;   // rows of the list that are seen at least

QSlider* tickedSlider(const QString& name, int lowest, int highest, int tick, QWidget* parent) {
    auto* slider = named(new QSlider(Qt::Horizontal, parent), name);
    slider->setRange(lowest, highest);
    slider->setPageStep(tick);
    slider->setTickInterval(tick);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setMinimumWidth(140);
    return slider;
}

// Wide enough for the longest number that it shows.
QLabel* numberLabel(const QString& name, int widest, QWidget* parent) {
    auto* label = named(new QLabel(parent), name);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QString::number(widest)));
    return label;
}

} // namespace

frmMetronome::frmMetronome(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmMetronome", context, parent),
      metronome_(context.bench.sound, context.services.timers, this) {
    beats_ = new BeatRow(this);
    Combo1_ = new PresetList("Combo1", this);
    for (int row = 0; row < PresetBeats; ++row)
        Combo1_->addItem(presetText(presetBeat(row)));
    Combo1_->setMaxVisibleItems(static_cast<int>(Tempi.size()) * 2);
    Combo1_->showRow(-1, NoPreset);
    Command1_ = named(new QPushButton(this), "Command1");
    Command1_->setMinimumHeight(StartHeight);
    Command1_->setToolTip("F7");
    auto* presets = new QHBoxLayout;
    presets->addWidget(labelOf(Combo1_, "Label1", this));
    presets->addWidget(Combo1_, 1);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(Gap);
    column->addWidget(new Logo(this));
    column->addWidget(beats_, 1);
    column->addLayout(presets);
    column->addWidget(buildSettings());
    column->addLayout(buildPitch());
    column->addWidget(Command1_);
    setFirstFocus(Command1_);
    connectControls();
}

QWidget* frmMetronome::buildSettings() {
    Frame1_ = named(new QGroupBox(this), "Frame1");
    lst_Metronome_speed_ = new ListBox("lst_Metronome_speed", Frame1_);
    for (const std::int16_t rate : ClickRates)
        lst_Metronome_speed_->addItem(rateText(rate));
    lst_Metronome_speed_->setCurrentRow(rateRow(metronome_.clickRate));
    lst_Metronome_speed_->setFixedHeight(ShownRates * lst_Metronome_speed_->sizeHintForRow(0) +
                                         2 * lst_Metronome_speed_->frameWidth());
    sld_BPB_ = tickedSlider("sld_BPB", 1, MostBeatsPerBar, 1, Frame1_);
    sld_BPB_->setValue(metronome_.beatsPerBar);
    lblBPB_ = numberLabel("lblBPB", MostBeatsPerBar, Frame1_);
    txt_BTp_ = named(new QLineEdit(DefaultBars, Frame1_), "txt_BTp");
    auto* grid = new QGridLayout(Frame1_);
    grid->setHorizontalSpacing(2 * Gap);
    grid->addWidget(labelOf(lst_Metronome_speed_, "Label2", Frame1_), 0, 0);
    grid->addWidget(lst_Metronome_speed_, 1, 0, 5, 1);
    grid->addWidget(labelOf(sld_BPB_, "Label3", Frame1_), 0, 1);
    grid->addWidget(lblBPB_, 0, 2);
    grid->addWidget(sld_BPB_, 1, 1, 1, 2);
    grid->setRowMinimumHeight(2, Gap);
    grid->addWidget(labelOf(txt_BTp_, "Label4", Frame1_), 3, 1, 1, 2);
    grid->addWidget(txt_BTp_, 4, 1, 1, 2);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return Frame1_;
}

// Beside the settings, since it can be changed while the metronome runs.
QLayout* frmMetronome::buildPitch() {
    sld_ClickPitch_ = tickedSlider("sld_ClickPitch", LowestPitch, HighestPitch, PitchTick, this);
    sld_ClickPitch_->setValue(metronome_.clickPitch);
    lblClickPitch_ = numberLabel("lblClickPitch", HighestPitch, this);
    auto* row = new QHBoxLayout;
    row->addWidget(labelOf(sld_ClickPitch_, "Label5", this));
    row->addWidget(sld_ClickPitch_, 1);
    row->addWidget(lblClickPitch_);
    return row;
}

void frmMetronome::connectControls() {
    metronome_.changed = [this] { showMetronome(); };
    lst_Metronome_speed_->Click = [this] { chooseRate(); };
    connect(Combo1_, &QComboBox::activated, this, [this](int row) { choosePreset(row); });
    connect(sld_BPB_, &QSlider::valueChanged, this, [this](int beats) {
        metronome_.beatsPerBar = static_cast<std::int16_t>(beats);
        showMetronome();
    });
    connect(txt_BTp_, &QLineEdit::textChanged, this, [this] { txt_BTp_Change(); });
    connect(sld_ClickPitch_, &QSlider::valueChanged, this, [this](int pitch) {
        metronome_.clickPitch = pitch;
        showMetronome();
    });
    connect(Command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(new QShortcut(Qt::Key_F7, this), &QShortcut::activated, this, [this] { Command1_Click(); });
}

void frmMetronome::LoadLanguage() {
    ToolWindow::LoadLanguage();
    setTitleOf(*this, "Tabrova - " + titleOf(*this));
}

void frmMetronome::takeMessage(std::string_view name, const QString& text) {
    words_[std::string(name)] = text;
}

void frmMetronome::Form_Load() {
    LoadLanguage();
    metronome_.chooseSound();
    showMetronome();
}

void frmMetronome::Form_Unload() { metronome_.leave(); }

void frmMetronome::chooseRate() {
    const int row = lst_Metronome_speed_->chosenRow();
    if (row < 0) return;
    metronome_.clickRate = ClickRates[static_cast<std::size_t>(row)];
    if (metronome_.clickRate == FastRate)
        services().boxes.ask({BoxTitle, words_["fastRate"], BoxIcon::Exclamation});
}

void frmMetronome::choosePreset(int row) {
    if (row < 0) return;
    const PresetBeat preset = presetBeat(row);
    lst_Metronome_speed_->setCurrentRow(rateRow(preset.tempo.clickRate));
    chooseRate();
    sld_ClickPitch_->setValue(PresetClickPitch);
    sld_BPB_->setValue(preset.beatsPerBar);
    txt_BTp_->setText(QString::number(PresetNumberOfBars));
}

void frmMetronome::txt_BTp_Change() {
    const auto bars = toInteger16(txt_BTp_->text().toStdString());
    if (bars) {
        metronome_.numberOfBars = *bars;
    } else {
        txt_BTp_->setText(DefaultBars);
        txt_BTp_->selectAll();
    }
}

void frmMetronome::Command1_Click() { metronome_.running() ? metronome_.stop() : metronome_.start(); }

void frmMetronome::showMetronome() {
    const bool running = metronome_.running();
    Frame1_->setEnabled(!running);
    Combo1_->setEnabled(!running);
    Command1_->setText(words_[running ? "stop" : "start"]);
    lblBPB_->setText(QString::number(metronome_.beatsPerBar));
    lblClickPitch_->setText(QString::number(metronome_.clickPitch));
    beats_->showBeat(metronome_.soundingBeat(), metronome_.beatsPerBar);
}

} // namespace tabrova
