#include "organisers/instruments/frmInstrumentSelector.h"

#include "editing/track_texts.h"
#include "forms/named.h"
#include "sound/pitch.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace tabrova {

namespace {

constexpr int LowestSample = 40; // MIDI notes
constexpr int SampleRange = 34;
constexpr int SampleMilliseconds = 2000;

} // namespace

frmInstrumentSelector::frmInstrumentSelector(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmInstrumentSelector", context, parent) {
    setWindowModality(Qt::ApplicationModal);
    lst_Instrument_ = new ListBox("lst_Instrument", this);
    lst_Instrument_->Click = [this] { lst_Instrument_Click(); };
    Command1_ = named(new QPushButton(this), "Command1");
    Command2_ = named(new QPushButton(this), "Command2");
    Command2_->setDefault(true);
    tmrNoteStopper_ = new WindowTimer(
        services().timers, "tmrNoteStopper", SampleMilliseconds,
        [this] {
            tmrNoteStopper_->setEnabled(false);
            sound().AllNotesOff();
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
    setFirstFocus(lst_Instrument_);
    context_.bench.acts.add(*this);
}

frmInstrumentSelector::~frmInstrumentSelector() { context_.bench.acts.remove(*this); }

void frmInstrumentSelector::Form_Load() {
    LoadLanguage();
    lst_Instrument_->addItems(context_.bench.instruments.names());
}

void frmInstrumentSelector::Form_Opened(const ToolOpener::Opening&) {
    LoadLanguage();
    editor().refreshdrawing();
    showProgram();
    resize(sizeHint().expandedTo({300, 400}));
}

void frmInstrumentSelector::actEnded(std::string_view, const Changes& changes) {
    if (changes.trackChosen) showProgram();
}

void frmInstrumentSelector::showProgram() {
    const int row = trackProgram(document(), document().CurrentTrack).value_or(-1);
    lst_Instrument_->setCurrentRow(row >= 0 && row < lst_Instrument_->count() ? row : -1);
}

void frmInstrumentSelector::lst_Instrument_Click() {
    const int program = lst_Instrument_->chosenRow();
    if (program < 0) return;
    context_.commands.tracks.setInstrument(program);
}

void frmInstrumentSelector::sample() {
    const int note = static_cast<int>(services().randomness.fraction() * SampleRange) + LowestSample;
    sound().AllNotesOff();
    sound().NoteOn(GuitarChannel, note, sound().FixedVelocity);
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
    ToolWindow::done(result);
    context_.commands.tracks.instrumentChosen();
}

} // namespace tabrova
