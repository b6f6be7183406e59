#include "organisers/track_properties/frmTrackProperties.h"

#include "core/document/track_table.h"
#include "editing/track_texts.h"
#include "forms/code_page_text.h"
#include "forms/named.h"
#include "forms/text_edges.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

namespace tabrova {

frmTrackProperties::frmTrackProperties(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmTrackProperties", context, parent) {
    setWindowModality(Qt::WindowModal);
    buildControls();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 14, 16, 14);
    grid->setVerticalSpacing(8);
    grid->setHorizontalSpacing(10);
    grid->addWidget(labelOf(txtTrackName_, "Label1", this), 0, 0);
    grid->addWidget(txtTrackName_, 0, 1);
    grid->addWidget(Command9_, 0, 2);
    grid->addWidget(lblPatchDisplay_, 1, 0, 1, 2);
    grid->addWidget(Command2_, 1, 2);
    grid->addWidget(Label6_, 2, 0);
    grid->addWidget(lblTuning_, 2, 1);
    grid->addWidget(Command1_, 2, 2);
    grid->addWidget(labelOf(tVolume_, "Label2", this), 3, 0);
    grid->addWidget(tVolume_, 3, 1);
    grid->addWidget(lblVolume_, 3, 2, Qt::AlignCenter);
    grid->setRowMinimumHeight(3, Command1_->sizeHint().height());
    grid->setRowMinimumHeight(4, 6);
    grid->addWidget(Command3_, 5, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(4, 1);
    connectControls();
    setFirstFocus(txtTrackName_);
    context_.bench.acts.add(*this);
}

frmTrackProperties::~frmTrackProperties() { context_.bench.acts.remove(*this); }

void frmTrackProperties::actEnded(std::string_view, const Changes& changes) {
    if (changes.instrument) showPatch();
    if (changes.tuning) showTuning();
}

void frmTrackProperties::takeMessage(std::string_view name, const QString& text) {
    if (name == "title") titleWords_ = text;
    if (name == "patch") patchWord_ = text;
}

// In the order of the Tab key.
void frmTrackProperties::buildControls() {
    txtTrackName_ = named(new QLineEdit(this), "txtTrackName");
    restrictToCodePage(*txtTrackName_,
                       [this] { return QString::fromStdString(context_.words.foreignCharacter); });
    Command9_ = named(new QPushButton(this), "Command9");
    lblPatchDisplay_ = named(new QLabel(this), "lblPatchDisplay");
    Command2_ = named(new QPushButton(this), "Command2");
    lblTuning_ = named(new QLabel(this), "lblTuning");
    Command1_ = named(new QPushButton(this), "Command1");
    Label6_ = labelOf(Command1_, "Label6", this);
    tVolume_ = named(new QSlider(Qt::Horizontal, this), "tVolume");
    tVolume_->setRange(LeastVolume, MostVolume);
    tVolume_->setMinimumWidth(180);
    lblVolume_ = named(new QLabel(this), "lblVolume");
    Command3_ = named(new QPushButton(this), "Command3");
    for (QLabel* label : {lblPatchDisplay_, lblTuning_, lblVolume_})
        label->setTextFormat(Qt::PlainText);
    Command3_->setDefault(true);
}

void frmTrackProperties::connectControls() {
    connect(Command9_, &QPushButton::clicked, this, [this] { Command9_Click(); });
    connect(Command3_, &QPushButton::clicked, this, [this] {
        Command9_Click();
        close();
    });
    connect(Command1_, &QPushButton::clicked, this,
            [this] { context_.tools.open("frmTuningManager", {this}); });
    connect(Command2_, &QPushButton::clicked, this,
            [this] { context_.tools.open("frmInstrumentSelector", {this}); });
    connect(tVolume_, &QSlider::valueChanged, this, [this](int volume) { tVolume_Change(volume); });
    // An act that leaves the slider at its end sets a volume that the slider could not show.
    connect(tVolume_, &QSlider::actionTriggered, this,
            [this] { tVolume_Change(tVolume_->sliderPosition()); });
}

void frmTrackProperties::tVolume_Change(int volume) {
    lblVolume_->setNum(volume);
    context_.commands.tracks.setVolume(volume);
}

void frmTrackProperties::Form_Load() {
    LoadLanguage();
    txtTrackName_->setText(shownName(trackName(document(), document().CurrentTrack)));
    showPatch();
    showTuning();
    {
        // A volume that the slider cannot show stays until the user moves it.
        const QSignalBlocker quiet(tVolume_);
        tVolume_->setValue(trackVolume(document(), document().CurrentTrack).value_or(MostVolume));
        lblVolume_->setNum(tVolume_->value());
    }
    showKindOfTrack();
    resize(sizeHint().expandedTo({420, 0}));
}

void frmTrackProperties::showPatch() {
    const auto program = trackProgram(document(), document().CurrentTrack);
    lblPatchDisplay_->setText(patchWord_ + (program ? context_.bench.instruments.name(*program) : QString()));
}

void frmTrackProperties::showTuning() {
    lblTuning_->setText(QString::fromStdString(tuningNames(document(), document().CurrentTrack)));
}

void frmTrackProperties::showKindOfTrack() {
    const bool guitar = document().isGuitarTrack(document().CurrentTrack);
    const QString name = shownName(trackName(document(), document().CurrentTrack));
    setTitleOf(*this, titleWords_ + name + (guitar ? "" : " (Perc.)"));
    for (QLabel* label : {Label6_, lblTuning_, lblPatchDisplay_})
        label->setVisible(guitar);
    Command1_->setEnabled(guitar && context_.tools.has("frmTuningManager"));
    Command2_->setEnabled(guitar);
}

// An empty name leaves the old one, and so does one that is not changed, whatever the box can show of it.
void frmTrackProperties::Command9_Click() {
    if (txtTrackName_->text().isEmpty()) return;
    const QString shown = shownName(trackName(document(), document().CurrentTrack));
    const bool changed = txtTrackName_->text() != shown;
    context_.commands.tracks.setName(changed ? std::optional(toCodePage(txtTrackName_->text()))
                                             : std::nullopt);
    showKindOfTrack();
}

} // namespace tabrova
