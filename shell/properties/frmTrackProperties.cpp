#include "shell/properties/frmTrackProperties.h"

#include "core/document/track_table.h"
#include "forms/captions.h"
#include "forms/code_page_text.h"
#include "forms/named.h"
#include "forms/text_edges.h"
#include "shell/properties/track_texts.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

namespace tabrova {

frmTrackProperties::frmTrackProperties(PropertiesHost& host, const std::filesystem::path& programFolder,
                                       QWidget* parent)
    : QDialog(parent), host_(host), programFolder_(programFolder) {
    setObjectName("frmTrackProperties");
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
}

// In the order of the Tab key.
void frmTrackProperties::buildControls() {
    txtTrackName_ = named(new QLineEdit(this), "txtTrackName");
    restrictToCodePage(*txtTrackName_,
                       [this] { return QString::fromStdString(host_.words().foreignCharacter); });
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
    for (QPushButton* button : {Command9_, Command2_, Command1_})
        button->setAutoDefault(false);
    Command3_->setDefault(true);
}

void frmTrackProperties::connectControls() {
    connect(Command9_, &QPushButton::clicked, this, [this] { Command9_Click(); });
    connect(Command3_, &QPushButton::clicked, this, [this] {
        Command9_Click();
        close();
    });
    connect(Command1_, &QPushButton::clicked, this, [this] { host_.openTuningManager(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { host_.openInstrumentSelector(this); });
    connect(tVolume_, &QSlider::valueChanged, this, [this](int volume) { tVolume_Change(volume); });
    // An act that leaves the slider at its end sets a volume that the slider could not show.
    connect(tVolume_, &QSlider::actionTriggered, this,
            [this] { tVolume_Change(tVolume_->sliderPosition()); });
}

void frmTrackProperties::tVolume_Change(int volume) {
    lblVolume_->setNum(volume);
    Document& document = host_.document();
    if (document.TrackCount > 0) setCurrentTrackRow(document, document.TrackVolumes, std::to_string(volume));
}

void frmTrackProperties::Form_Load() {
    loadLanguage(*this, programFolder_, [this](std::string_view name, const QString& text) {
        if (name == "title") titleWords_ = text;
        if (name == "patch") patchWord_ = text;
    });
    const Document& document = host_.document();
    txtTrackName_->setText(shownName(trackName(document, document.CurrentTrack)));
    showPatch();
    showTuning();
    {
        // A volume that the slider cannot show stays until the user moves it.
        const QSignalBlocker quiet(tVolume_);
        tVolume_->setValue(trackVolume(document, document.CurrentTrack).value_or(MostVolume));
        lblVolume_->setNum(tVolume_->value());
    }
    showKindOfTrack();
    resize(sizeHint().expandedTo({420, 0}));
    txtTrackName_->setFocus();
    txtTrackName_->selectAll();
}

void frmTrackProperties::showPatch() {
    const Document& document = host_.document();
    const auto program = trackProgram(document, document.CurrentTrack);
    lblPatchDisplay_->setText(patchWord_ + (program ? host_.instrumentName(*program) : QString()));
}

void frmTrackProperties::showTuning() {
    const Document& document = host_.document();
    lblTuning_->setText(QString::fromStdString(tuningNames(document, document.CurrentTrack)));
}

void frmTrackProperties::showKindOfTrack() {
    const Document& document = host_.document();
    const bool guitar = document.isGuitarTrack(document.CurrentTrack);
    const QString name = shownName(trackName(document, document.CurrentTrack));
    setTitleOf(*this, titleWords_ + name + (guitar ? "" : " (Perc.)"));
    for (QLabel* label : {Label6_, lblTuning_, lblPatchDisplay_})
        label->setVisible(guitar);
    Command1_->setEnabled(guitar && host_.hasTuningManager());
    Command2_->setEnabled(guitar);
}

// An empty name leaves the old one, and so does one that is not changed, whatever the box can show of it.
void frmTrackProperties::Command9_Click() {
    if (txtTrackName_->text().isEmpty()) return;
    Document& document = host_.document();
    if (txtTrackName_->text() != shownName(trackName(document, document.CurrentTrack)))
        setCurrentTrackRow(document, document.TrackNames, toCodePage(txtTrackName_->text()));
    host_.showTracks();
    host_.selectTrack(document.CurrentTrack - 1);
    showKindOfTrack();
}

} // namespace tabrova
