#include "organisers/midi_export/frmMIDIExport.h"

#include "core/text/conversions.h"
#include "forms/button_pictures.h"
#include "forms/code_page_text.h"
#include "forms/elided_label.h"
#include "forms/named.h"
#include "platform/box_title.h"
#include "platform/list_box.h"
#include "platform/paths.h"
#include "sound/midi_export.h"
#include "workbench/proposed_name.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>

namespace tabrova {

namespace {

constexpr char Filter[] = "MIDI Files|*.mid";
constexpr char Extension[] = "mid";
constexpr char FullText[] = "No more than 15 tracks may be exported to a MIDI File.";
constexpr char AlreadyThereText[] = "This track is already in the Exportation Queue.";
constexpr int Gap = 12;
constexpr int Percent = 100;

// Told by the pointer: the export works in one go.
class WaitingPointer {
  public:
    WaitingPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitingPointer() { QApplication::restoreOverrideCursor(); }
    WaitingPointer(const WaitingPointer&) = delete;
    WaitingPointer& operator=(const WaitingPointer&) = delete;
};

} // namespace

frmMIDIExport::frmMIDIExport(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmMIDIExport", context, parent) {
    setWindowModality(Qt::WindowModal);
    buildControls();
    auto* file = new QHBoxLayout;
    file->setSpacing(Gap);
    file->addWidget(Command1_);
    file->addWidget(Label1_, 1);
    auto* ends = new QHBoxLayout;
    ends->addWidget(ProgressBar1_, 1);
    ends->addSpacing(Gap);
    ends->addWidget(Command2_);
    ends->addWidget(Command3_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 14, 16, 14);
    column->setSpacing(Gap);
    column->addLayout(file);
    column->addLayout(buildLists(), 1);
    column->addLayout(buildPriority());
    column->addLayout(ends);
    connectControls();
    setFirstFocus(Command1_);
}

void frmMIDIExport::buildControls() {
    Command1_ = named(new QPushButton(this), "Command1");
    Label1_ = new ElidedLabel("Label1", Qt::ElideMiddle, this);
    lstTracks_ = new ListBox("lstTracks", this);
    lsttoUse_ = new ListBox("lsttoUse", this);
    Command6_ = pictureButton("Command6", ButtonPicture::ArrowRight, this);
    Command7_ = pictureButton("Command7", ButtonPicture::ArrowLeft, this);
    PriorityTrack_ = named(new QLineEdit("0", this), "PriorityTrack");
    PriorityTrack_->setAlignment(Qt::AlignRight);
    PriorityTrack_->setFixedWidth(PriorityTrack_->fontMetrics().horizontalAdvance("0000") + 24);
    Command4_ = pictureButton("Command4", ButtonPicture::ArrowUp, this);
    Command5_ = pictureButton("Command5", ButtonPicture::ArrowDown, this);
    chkReverb_ = named(new QCheckBox(this), "chkReverb");
    ProgressBar1_ = named(new QProgressBar(this), "ProgressBar1");
    ProgressBar1_->setRange(0, Percent);
    ProgressBar1_->setValue(0);
    ProgressBar1_->setTextVisible(false);
    Command2_ = named(new QPushButton(this), "Command2");
    Command2_->setDefault(true);
    Command3_ = named(new QPushButton(this), "Command3");
}

QLayout* frmMIDIExport::buildLists() {
    auto* arrows = new QVBoxLayout;
    arrows->addStretch(1);
    arrows->addWidget(Command6_);
    arrows->addWidget(Command7_);
    arrows->addStretch(1);
    lstTracks_->setMinimumSize(250, 190);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Gap);
    grid->addWidget(labelOf(lstTracks_, "Label2", this), 0, 0);
    grid->addWidget(labelOf(lsttoUse_, "Label3", this), 0, 2);
    grid->addWidget(lstTracks_, 1, 0);
    grid->addLayout(arrows, 1, 1);
    grid->addWidget(lsttoUse_, 1, 2);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(2, 2);
    grid->setRowStretch(1, 1);
    return grid;
}

QLayout* frmMIDIExport::buildPriority() {
    auto* row = new QHBoxLayout;
    row->addWidget(chkReverb_);
    row->addStretch(1);
    row->addSpacing(Gap);
    row->addWidget(labelOf(PriorityTrack_, "Label4", this));
    row->addWidget(PriorityTrack_);
    auto* arrows = new QHBoxLayout;
    arrows->setSpacing(0);
    arrows->addWidget(Command4_);
    arrows->addWidget(Command5_);
    row->addLayout(arrows);
    return row;
}

void frmMIDIExport::connectControls() {
    connect(Command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(Command3_, &QPushButton::clicked, this, [this] { close(); });
    Command4_->Click = [this] { changePriority(raisedPriority); };
    Command5_->Click = [this] { changePriority(loweredPriority); };
    Command6_->Click = lstTracks_->DoubleClick = [this] { Command6_Click(); };
    Command7_->Click = lsttoUse_->DoubleClick = [this] { Command7_Click(); };
    connect(new QShortcut(Qt::Key_Delete, lsttoUse_, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, [this] { Command7_Click(); });
}

void frmMIDIExport::takeMessage(std::string_view name, const QString& text) {
    if (name == "noFile") noFileText_ = text;
    if (name == "exported") exportedText_ = text;
}

void frmMIDIExport::Form_Load() {
    LoadLanguage();
    noNameText_ = Label1_->text();
    resize(sizeHint().expandedTo({520, 400}));
}

// An export that ended early has left the window hidden, with its queue; the document may be another by now.
void frmMIDIExport::Form_Opened(const ToolOpener::Opening&) {
    fillTracks();
    ProgressBar1_->setValue(0);
}

void frmMIDIExport::fillTracks() {
    const int row = lstTracks_->chosenRow();
    lstTracks_->clear();
    const auto& names = document().TrackNames;
    for (std::size_t track = 0; track < names.size(); ++track)
        lstTracks_->addItem(QString::number(track) + " - " + shownName(names[track]));
    if (row >= 0 && row < lstTracks_->count()) lstTracks_->setCurrentRow(row);
}

void frmMIDIExport::showQueue() {
    lsttoUse_->clear();
    for (const int track : queue_.tracks())
        lsttoUse_->addItem(QString::number(track));
}

void frmMIDIExport::Command1_Click() {
    const QString name = CommonDialog1_.isEmpty()
                             ? proposedName(context_.commands.documents.CommonDialog1.fileName, Extension)
                             : CommonDialog1_;
    const auto answer = services().files.choose({FileQuestion::Kind::Save, Filter, Extension, name});
    if (!answer) return;
    CommonDialog1_ = *answer;
    Label1_->setText(CommonDialog1_);
    Label1_->setToolTip(CommonDialog1_);
}

void frmMIDIExport::Command6_Click() {
    if (queue_.isFull()) {
        services().boxes.ask({BoxTitle, FullText, BoxIcon::Exclamation});
        return;
    }
    if (lstTracks_->chosenRow() < 0) lstTracks_->setCurrentRow(0);
    const int track = lstTracks_->chosenRow();
    if (track < 0) return;
    if (!queue_.add(track)) {
        services().boxes.ask({BoxTitle, AlreadyThereText, BoxIcon::Exclamation});
        return;
    }
    showQueue();
    if (track + 1 < lstTracks_->count()) lstTracks_->setCurrentRow(track + 1);
}

void frmMIDIExport::Command7_Click() {
    if (queue_.tracks().empty()) return;
    queue_.remove(std::max(lsttoUse_->chosenRow(), 0));
    showQueue();
}

void frmMIDIExport::changePriority(int (*change)(int priority, int tracks)) {
    const auto priority = toInteger16(PriorityTrack_->text().toStdString());
    if (priority) PriorityTrack_->setText(QString::number(change(*priority, document().TrackCount)));
}

// The window hides before the file is touched. An export that ends early says nothing.
void frmMIDIExport::Command2_Click() {
    if (Label1_->text() == noNameText_) {
        services().boxes.ask({BoxTitle, noFileText_, BoxIcon::Exclamation});
        return;
    }
    MIDIFile file;
    file.setPath(MIDIFile::Property::FileName, pathOf(CommonDialog1_));
    hide();
    bool exported = false;
    {
        const WaitingPointer waiting;
        exported =
            exportMidiFile(document(),
                           {queue_.tracks(), chkReverb_->isChecked(),
                            [this](double percent) { ProgressBar1_->setValue(static_cast<int>(percent)); }},
                           file);
    }
    if (!exported) return;
    services().boxes.ask({BoxTitle, exportedText_, BoxIcon::Information});
    context_.tools.unload("frmMIDIExport");
}

} // namespace tabrova
