#include "shell/properties/frmInstrumentSelector.h"

#include "core/document/track_table.h"
#include "core/files/text_lines.h"
#include "forms/captions.h"
#include "forms/named.h"
#include "shell/properties/track_texts.h"
#include "sound/pitch.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace tabrova {

namespace {

constexpr std::size_t MostInstruments = 32768;
constexpr qsizetype LongestName = 60; // characters
constexpr int LowestSample = 40;      // MIDI notes
constexpr int SampleRange = 34;
constexpr int SampleMilliseconds = 2000;

} // namespace

frmInstrumentSelector::frmInstrumentSelector(Services& services, PropertiesHost& host, QWidget* parent)
    : QDialog(parent), services_(services), host_(host) {
    setObjectName("frmInstrumentSelector");
    setWindowModality(Qt::ApplicationModal);
    lst_Instrument_ = new ListBox("lst_Instrument", this);
    lst_Instrument_->Click = [this] { lst_Instrument_Click(); };
    Command1_ = named(new QPushButton(this), "Command1");
    Command1_->setAutoDefault(false);
    Command2_ = named(new QPushButton(this), "Command2");
    Command2_->setDefault(true);
    tmrNoteStopper_ = new WindowTimer(
        services.timers, "tmrNoteStopper", SampleMilliseconds,
        [this] {
            tmrNoteStopper_->setEnabled(false);
            host_.sound().AllNotesOff();
        },
        this);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Command1_);
    buttons->addStretch();
    buttons->addWidget(Command2_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 12, 14, 14);
    column->addWidget(labelOf(lst_Instrument_, "Label1", this));
    column->addWidget(lst_Instrument_, 1);
    column->addSpacing(4);
    column->addLayout(buttons);
    connect(Command1_, &QPushButton::clicked, this, [this] { sample(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { accept(); });
    showBuiltInCaptions(*this);
}

void frmInstrumentSelector::fill_sound_list() {
    for (const std::string& name : readTextLines(services_.programFolder / "genmidi.txt", MostInstruments))
        lst_Instrument_->addItem(QString::fromStdString(name).left(LongestName));
}

void frmInstrumentSelector::Form_Load() {
    loadLanguage(*this, services_.programFolder);
    host_.refreshdrawing();
    showProgram(trackProgram(host_.document(), host_.document().CurrentTrack));
    resize(sizeHint().expandedTo({300, 400}));
    lst_Instrument_->setFocus();
}

void frmInstrumentSelector::showProgram(std::optional<int> program) {
    const int row = program.value_or(-1);
    lst_Instrument_->setCurrentRow(row >= 0 && row < lst_Instrument_->count() ? row : -1);
}

QString frmInstrumentSelector::instrumentName(int program) const {
    const QListWidgetItem* item = lst_Instrument_->item(program);
    return item ? item->text() : QString();
}

void frmInstrumentSelector::lst_Instrument_Click() {
    const int program = lst_Instrument_->chosenRow();
    if (program < 0) return;
    Document& document = host_.document();
    setCurrentTrackRow(document, document.TrackInstruments, std::to_string(program));
    host_.sound().ProgramChange(GuitarChannel, program);
}

void frmInstrumentSelector::sample() {
    const int note = static_cast<int>(services_.randomness.fraction() * SampleRange) + LowestSample;
    MidiOutput& sound = host_.sound();
    sound.AllNotesOff();
    sound.NoteOn(GuitarChannel, note, sound.FixedVelocity);
    tmrNoteStopper_->setEnabled(false);
    tmrNoteStopper_->setEnabled(true);
}

// A track whose program the list does not have takes the first one.
void frmInstrumentSelector::accept() {
    if (lst_Instrument_->chosenRow() < 0 && lst_Instrument_->count() > 0) {
        lst_Instrument_->setCurrentRow(0);
        lst_Instrument_Click();
    }
    QDialog::accept();
}

void frmInstrumentSelector::done(int result) {
    QDialog::done(result);
    if (closed) closed();
    host_.refreshdrawing();
}

} // namespace tabrova
