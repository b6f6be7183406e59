#include "tools/scale_manager/frmScaleWizard.h"

#include "core/files/entry_file.h"
#include "forms/entry_path.h"
#include "forms/folder_list.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "platform/paths.h"
#include "tools/scale_manager/new_scale_panel.h"
#include "tools/scale_manager/scale_neck.h"
#include "tools/scale_manager/scale_tab.h"

#include <QGridLayout>
#include <QPushButton>

namespace tabrova {

namespace {

constexpr int ScaleChannel = 14;
constexpr int ScaleProgram = 24;      // acoustic guitar with nylon strings
constexpr int StopperInterval = 2000; // ms
constexpr int Gap = 12;
constexpr int TitlePixels = 20;
constexpr char LeftHandedCaption[] = "LH"; // what a click leads to
constexpr char RightHandedCaption[] = "RH";

} // namespace

// Its notes are on a channel that `AllNotesOff` does not reach and die away by themselves, deliberately.
frmScaleWizard::frmScaleWizard(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmScaleWizard", context, parent),
      tmrscaleStopper_(
          context.services.timers, "tmrscaleStopper", StopperInterval,
          [this] {
              tmrscaleStopper_.setEnabled(false);
              sound().AllNotesOff();
          },
          this) {
    auto* sides = new QHBoxLayout(this);
    sides->setSpacing(Gap);
    sides->addWidget(buildChoice(), 1);
    sides->addWidget(buildScale());
    setFirstFocus(ScKey_);
    connectControls();
}

QWidget* frmScaleWizard::buildChoice() {
    auto* side = new QWidget(this);
    ScKey_ = new ListBox("ScKey", side);
    for (const ScaleKeyRow& key : ScaleKeyTable)
        ScKey_->addItem(key.name);
    constexpr int KeyMargins = 28;
    ScKey_->setFixedWidth(ScKey_->sizeHintForColumn(0) + KeyMargins);
    scType_ = new FolderList("scType", EntryKind::Files, side);
    scType_->setMinimumWidth(190);
    Command2_ = named(new QPushButton(side), "Command2");
    auto* grid = new QGridLayout(side);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(new Logo(side), 0, 0, 1, 2);
    grid->addWidget(ScKey_, 1, 0);
    grid->addWidget(scType_, 1, 1);
    grid->addWidget(Command2_, 2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    return side;
}

QWidget* frmScaleWizard::buildScale() {
    auto* side = new QWidget(this);
    lblTitle_ = named(new QLabel(side), "lblTitle");
    QFont titleFont = lblTitle_->font();
    titleFont.setPixelSize(TitlePixels);
    titleFont.setBold(true);
    lblTitle_->setFont(titleFont);
    lblTitle_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    picMarkers_ = new ScaleNeck(side);
    Command3_ = named(new QPushButton(LeftHandedCaption, side), "Command3");
    Picture2_ = new ScaleTab(side);
    creator_ = new NewScalePanel(side);
    auto* neck = new QHBoxLayout;
    neck->addWidget(picMarkers_);
    neck->addStretch(1);
    neck->addWidget(Command3_);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(lblTitle_);
    column->addLayout(neck);
    column->addSpacing(Gap);
    column->addWidget(labelOf(Picture2_, "Label1", side));
    column->addWidget(Picture2_);
    column->addSpacing(Gap);
    column->addStretch(1);
    column->addWidget(creator_);
    return side;
}

void frmScaleWizard::connectControls() {
    ScKey_->Click = [this] { ShowScale(); };
    scType_->Click = [this] { ShowScale(); };
    Picture2_->noteClicked = [this](std::size_t string, const QString& fret) { playNote(string, fret); };
    creator_->save = [this] { SaveNewScale(); };
    connect(Command2_, &QPushButton::clicked, this, [this] { deleteScale(); });
    connect(Command3_, &QPushButton::clicked, this, [this] { switchView(); });
}

// Nothing is shown until a key or a scale is chosen.
void frmScaleWizard::Form_Load() {
    LoadLanguage();
    Picture2_->blackenLabels();
    ClearScaleDisplay();
    std::error_code failed;
    std::filesystem::create_directory(folder(), failed);
    for (const ScaleTypeRow& scale : builtInScales())
        writeEntryFile(folder() / scale.name, scaleLine(scale.fields));
    scType_->showFolder(folder());
    sound().ProgramChange(ScaleChannel, ScaleProgram);
}

void frmScaleWizard::showDisplay(const ScaleDisplay& display) {
    picMarkers_->showMarks(display);
    Picture2_->showLabels(display);
}

// A file that cannot be read leaves the scale that was read before.
void frmScaleWizard::ShowScale() {
    if (ScKey_->chosenRow() < 0) ScKey_->setCurrentRow(0);
    const ScaleKeyRow& key = ScaleKeyTable[static_cast<std::size_t>(ScKey_->chosenRow())];
    if (const auto line = readFirstItem(ScaleFile())) txt_scale = *line;
    LayScale(key.shift);
    lblTitle_->setText(QString(key.name) + " " + textOf(scType_->chosenName()));
}

void frmScaleWizard::LayScale(int shift) {
    ClearScaleDisplay();
    showDisplay(layScale(shift, txt_scale));
}

std::filesystem::path frmScaleWizard::ScaleFile() const { return folder() / scType_->chosenName(); }

// Earlier notes ring on. The timer starts for an empty label too.
void frmScaleWizard::playNote(std::size_t string, const QString& fret) {
    if (const auto note = scaleNote(string, fret.toStdString()))
        sound().NoteOn(ScaleChannel, *note, sound().FixedVelocity);
    if (!tmrscaleStopper_.timerEnabled()) tmrscaleStopper_.setEnabled(true);
}

void frmScaleWizard::switchView() {
    const bool toLeft = view_ == NeckView::RightHanded;
    view_ = toLeft ? NeckView::LeftHanded : NeckView::RightHanded;
    Command3_->setText(toLeft ? RightHandedCaption : LeftHandedCaption);
    picMarkers_->setView(view_);
}

bool frmScaleWizard::WriteScaleFile(const QString& name, std::string_view line) {
    const auto file = newEntryPath(folder(), name);
    if (!file || !writeEntryFile(*file, line)) return false;
    scType_->readAgain();
    return true;
}

// The words of both boxes are no lines of the language.
void frmScaleWizard::SaveNewScale() {
    const auto line = newScaleLine(creator_->entries());
    const QString name = creator_->name();
    if (!line || !WriteScaleFile(name, *line)) {
        services().boxes.ask({"Error", "Scale was not saved, Please check your input.", BoxIcon::Critical});
        return;
    }
    services().boxes.ask({"Scale Added",
                          "The new scale '" + name + "' has successfully been added to your list.",
                          BoxIcon::Information});
    creator_->ResetScaleEntry();
}

// With nothing chosen the removal fails without a word, and the list is read again all the same.
void frmScaleWizard::deleteScale() {
    removeEntryFile(ScaleFile());
    scType_->readAgain();
}

} // namespace tabrova
