#include "core/shell/properties/frmTrackProperties.h"

#include "core/shell/properties/track_texts.h"
#include "core/track_table.h"
#include "forms/captions.h"
#include "forms/code_page_text.h"
#include "forms/named.h"

#include <QGridLayout>
#include <QGroupBox>
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
    Command3_ = named(new QPushButton(this), "Command3");
    Command3_->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 14, 16, 14);
    column->setSpacing(10);
    column->addWidget(buildName());
    column->addWidget(buildSound());
    column->addStretch();
    column->addWidget(Command3_, 0, Qt::AlignRight);
    connectControls();
}

QWidget* frmTrackProperties::buildName() {
    auto* box = new QWidget(this);
    txtTrackName_ = named(new QLineEdit(box), "txtTrackName");
    restrictToCodePage(*txtTrackName_,
                       [this] { return QString::fromStdString(host_.words().foreignCharacter); });
    Command9_ = named(new QPushButton(box), "Command9");
    Command9_->setAutoDefault(false);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(labelOf(txtTrackName_, "Label1", box));
    row->addWidget(txtTrackName_, 1);
    row->addWidget(Command9_);
    return box;
}

QWidget* frmTrackProperties::buildSound() {
    auto* box = new QWidget(this);
    lblPatchDisplay_ = named(new QLabel(box), "lblPatchDisplay");
    lblTuning_ = named(new QLabel(box), "lblTuning");
    lblVolume_ = named(new QLabel(box), "lblVolume");
    for (QLabel* label : {lblPatchDisplay_, lblTuning_, lblVolume_})
        label->setTextFormat(Qt::PlainText);
    lblVolume_->setMinimumWidth(lblVolume_->fontMetrics().horizontalAdvance("000"));
    lblVolume_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    tVolume_ = named(new QSlider(Qt::Horizontal, box), "tVolume");
    tVolume_->setRange(LeastVolume, MostVolume);
    tVolume_->setMinimumWidth(160);
    Command1_ = named(new QPushButton(box), "Command1");
    Command2_ = named(new QPushButton(box), "Command2");
    for (QPushButton* button : {Command1_, Command2_})
        button->setAutoDefault(false);
    Label6_ = labelOf(Command1_, "Label6", box);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(8);
    grid->addWidget(lblPatchDisplay_, 0, 0, 1, 2);
    grid->addWidget(Command2_, 0, 2);
    grid->addWidget(Label6_, 1, 0);
    grid->addWidget(lblTuning_, 1, 1);
    grid->addWidget(Command1_, 1, 2);
    grid->addWidget(labelOf(tVolume_, "Label2", box), 2, 0);
    grid->addWidget(tVolume_, 2, 1);
    grid->addWidget(lblVolume_, 2, 2);
    grid->setColumnStretch(1, 1);
    return box;
}

void frmTrackProperties::connectControls() {
    connect(Command9_, &QPushButton::clicked, this, [this] { Command9_Click(); });
    connect(Command3_, &QPushButton::clicked, this, [this] {
        Command9_Click();
        close();
    });
    connect(Command1_, &QPushButton::clicked, this, [this] { host_.openTuningManager(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { host_.openInstrumentSelector(this); });
    connect(tVolume_, &QSlider::valueChanged, this, [this](int volume) {
        lblVolume_->setNum(volume);
        Document& document = host_.document();
        if (document.TrackCount > 0)
            setCurrentTrackRow(document, document.TrackVolumes, std::to_string(volume));
    });
}

void frmTrackProperties::Form_Load() {
    loadLanguage(*this, programFolder_, [this](std::string_view name, const QString& text) {
        if (name == "title") titleWords_ = text;
        if (name == "patch") patchWord_ = text;
    });
    const Document& document = host_.document();
    txtTrackName_->setText(fromCodePage(trackName(document, document.CurrentTrack)));
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
    const QString name = fromCodePage(trackName(document, document.CurrentTrack));
    setWindowTitle(titleWords_ + name + (guitar ? "" : " (Perc.)"));
    for (QLabel* label : {Label6_, lblTuning_, lblPatchDisplay_})
        label->setVisible(guitar);
    Command1_->setEnabled(guitar && host_.hasTuningManager());
    Command2_->setEnabled(guitar);
}

// An empty name leaves the old one.
void frmTrackProperties::Command9_Click() {
    if (txtTrackName_->text().isEmpty()) return;
    Document& document = host_.document();
    setCurrentTrackRow(document, document.TrackNames, toCodePage(txtTrackName_->text()));
    host_.showTracks();
    host_.selectTrack(document.CurrentTrack - 1);
    showKindOfTrack();
}

} // namespace tabrova
