// How the chord manager's controls are made, placed and connected.
#include "editing/key_codes.h"
#include "forms/button_pictures.h"
#include "forms/folder_list.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "forms/paper.h"
#include "tools/chord_manager/chord_diagram.h"
#include "tools/chord_manager/chord_staff.h"
#include "tools/chord_manager/construction_panel.h"
#include "tools/chord_manager/frmChordWizard.h"
#include "tools/chord_manager/new_chord_panel.h"
#include "tools/chord_manager/strum_strip.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>
#include <QShortcut>
#include <QSlider>
#include <QTabWidget>

namespace tabrova {

namespace {

constexpr int Gap = 12;
constexpr int LeastSpeed = 50;
constexpr int MostSpeed = 700;
constexpr int StartSpeed = 630;
constexpr int SpeedTick = 20;
constexpr int TitlePixels = 20;
constexpr DiagramLayout ChordLayout = {32, 34, 34, 38, 20};

struct AdderButton {
    const char* name;
    ButtonPicture picture;
    int row;
    int column;
};
// Image5 to Image10, in the grid beside the words.
constexpr std::array<AdderButton, 6> AdderButtons = {{{"Image5", ButtonPicture::ArrowUp, 0, 3},
                                                      {"Image6", ButtonPicture::Bin, 1, 1},
                                                      {"Image7", ButtonPicture::ArrowLeft, 1, 2},
                                                      {"Image8", ButtonPicture::ArrowDown, 2, 3},
                                                      {"Image9", ButtonPicture::ArrowRight, 1, 4},
                                                      {"Image10", ButtonPicture::Plus, 1, 0}}};

} // namespace

frmChordWizard::frmChordWizard(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmChordWizard", context, parent),
      sound_(context.bench.sound, context.services.timers, display_, this) {
    SSTab1_ = named(new QTabWidget(this), "SSTab1");
    SSTab1_->addTab(buildCalculatorTab(), QString());
    SSTab1_->addTab(buildBankTab(), QString());
    SSTab1_->addTab(buildOptionsTab(), QString());
    auto* tools = new QVBoxLayout;
    tools->addWidget(new Logo(this));
    tools->addWidget(SSTab1_, 1);
    auto* sides = new QHBoxLayout(this);
    sides->setSpacing(Gap);
    sides->addLayout(tools, 1);
    sides->addWidget(buildChordSide());
    setFirstFocus(lstKeys_);
    connectCalculator();
    connectBank();
    connectAdder();
    connectKeys();
    context_.bench.acts.add(*this);
}

frmChordWizard::~frmChordWizard() { context_.bench.acts.remove(*this); }

QWidget* frmChordWizard::buildCalculatorTab() {
    auto* tab = new QWidget(this);
    lstKeys_ = new ListBox("lstKeys", tab);
    for (const ChordNoteRow& note : chordNoteTable())
        lstKeys_->addItem(note.name);
    constexpr int KeyMargins = 28;
    lstKeys_->setFixedWidth(lstKeys_->sizeHintForColumn(0) + KeyMargins);
    lstTypes_ = new FolderList("lstTypes", EntryKind::Files, tab);
    lstTypes_->setMinimumWidth(110);
    construction_ = new ConstructionPanel(tab);
    auto* grid = new QGridLayout(tab);
    grid->setContentsMargins(Gap, Gap, Gap, Gap);
    grid->addWidget(labelOf(lstKeys_, "Label1", tab), 0, 0);
    grid->addWidget(labelOf(lstTypes_, "Label2", tab), 0, 1);
    grid->addWidget(lstKeys_, 1, 0);
    grid->addWidget(lstTypes_, 1, 1);
    grid->addWidget(construction_, 0, 2, 2, 1);
    grid->addLayout(buildTypeButtons(tab), 2, 0, 1, 3);
    grid->addLayout(buildStyle(tab), 3, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    return tab;
}

QLayout* frmChordWizard::buildTypeButtons(QWidget* parent) {
    Command1_ = named(new QPushButton(parent), "Command1");
    Command3_ = named(new QPushButton(parent), "Command3");
    auto* row = new QHBoxLayout;
    row->addWidget(Command1_);
    row->addWidget(Command3_);
    row->addStretch(1);
    return row;
}

QLayout* frmChordWizard::buildStyle(QWidget* parent) {
    Combo1_ = named(new QComboBox(parent), "Combo1");
    auto* row = new QHBoxLayout;
    row->addWidget(labelOf(Combo1_, "Label3", parent));
    row->addWidget(Combo1_, 1);
    return row;
}

QWidget* frmChordWizard::buildBankTab() {
    auto* tab = new QWidget(this);
    txt_Find_ = named(new QLineEdit(tab), "txt_Find");
    txt_Find_->setClearButtonEnabled(true);
    lst_Chords_ = new FolderList("lst_Chords", EntryKind::Files, tab);
    lst_Chords_->setMinimumWidth(130);
    cmd_Delete_ = named(new QPushButton(tab), "cmd_Delete");
    Frame5_ = new NewChordPanel(tab);
    auto* find = new QHBoxLayout;
    find->addWidget(labelOf(txt_Find_, "Label7", tab));
    find->addWidget(txt_Find_, 1);
    auto* bank = new QVBoxLayout;
    bank->addLayout(find);
    bank->addWidget(lst_Chords_, 1);
    bank->addWidget(cmd_Delete_);
    auto* sides = new QHBoxLayout(tab);
    sides->setContentsMargins(Gap, Gap, Gap, Gap);
    sides->setSpacing(Gap);
    sides->addLayout(bank, 1);
    sides->addWidget(Frame5_);
    return tab;
}

QWidget* frmChordWizard::buildOptionsTab() {
    auto* tab = new QWidget(this);
    nbnSlider_ = named(new QSlider(Qt::Horizontal, tab), "nbnSlider");
    nbnSlider_->setRange(LeastSpeed, MostSpeed);
    nbnSlider_->setValue(StartSpeed);
    nbnSlider_->setTickInterval(SpeedTick);
    nbnSlider_->setTickPosition(QSlider::TicksBelow);
    nbnSlider_->setPageStep(SpeedTick);
    chkPlayNow_ = named(new QCheckBox(tab), "chkPlayNow");
    chkNotebyNote_ = named(new QCheckBox(tab), "chkNotebyNote");
    chkTranspose_ = named(new QCheckBox(tab), "chkTranspose");
    auto* column = new QVBoxLayout(tab);
    column->setContentsMargins(Gap, Gap, Gap, Gap);
    for (QCheckBox* box : {chkPlayNow_, chkNotebyNote_, chkTranspose_})
        column->addWidget(box);
    column->addSpacing(Gap);
    column->addWidget(labelOf(nbnSlider_, "Label5", tab));
    column->addWidget(nbnSlider_);
    column->addStretch(1);
    return tab;
}

// What the chord is called, looks like and sounds like, beside every tab.
QWidget* frmChordWizard::buildChordSide() {
    auto* side = new QWidget(this);
    cmdPlay_ = pictureButton("cmdPlay", ButtonPicture::Play, side);
    cmdPlay_->setProperty("key", "F7");
    ChordDiagram::MarkNames names;
    for (std::size_t string = 0; string < ChordStrings; ++string)
        names[string] = ChordStringTable[string].marks;
    diagram_ = new ChordDiagram(ChordLayout, names, ChordFretMarks, side);
    Image3_ = new StrumStrip(side);
    auto* grid = new QGridLayout(side);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(8);
    grid->setHorizontalSpacing(8);
    grid->addWidget(buildTitle(side), 0, 0);
    grid->addWidget(cmdPlay_, 0, 1, Qt::AlignRight);
    grid->addWidget(diagram_, 1, 0, Qt::AlignLeft);
    grid->addWidget(buildKeyBoxes(side), 1, 1);
    grid->addLayout(buildViewChoice(side), 2, 0, 1, 2);
    grid->addLayout(buildView(side), 3, 0, 1, 2);
    grid->addWidget(named(new QLabel(side), "Label6"), 4, 0, 1, 2);
    grid->addWidget(Image3_, 5, 0, 1, 2);
    grid->setRowStretch(6, 1);
    return side;
}

QLabel* frmChordWizard::buildTitle(QWidget* parent) {
    lblTitle_ = named(new QLabel(parent), "lblTitle");
    QFont titleFont = lblTitle_->font();
    titleFont.setPixelSize(TitlePixels);
    titleFont.setBold(true);
    lblTitle_->setFont(titleFont);
    lblTitle_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return lblTitle_;
}

QLayout* frmChordWizard::buildViewChoice(QWidget* parent) {
    lstView_ = named(new QComboBox(parent), "lstView");
    auto* row = new QHBoxLayout;
    row->setSpacing(Gap / 2);
    row->addWidget(labelOf(lstView_, "Label4", parent));
    row->addWidget(lstView_, 1);
    return row;
}

// The notation, or in its place the signs that write the chord into the document.
QLayout* frmChordWizard::buildView(QWidget* parent) {
    staff_ = new ChordStaff(parent);
    staff_->setFixedSize(staff_->sizeHint());
    picAdder_ = buildAdder(parent);
    auto* place = new QGridLayout;
    place->addWidget(staff_, 0, 0);
    place->addWidget(picAdder_, 0, 0);
    return place;
}

// They only show.
QWidget* frmChordWizard::buildKeyBoxes(QWidget* parent) {
    auto* sheet = new QFrame(parent);
    makePaper(*sheet);
    sheet->setAutoFillBackground(true);
    sheet->setFrameShape(QFrame::StyledPanel);
    sheet->setFixedHeight(diagram_->height());
    auto* column = new QVBoxLayout(sheet);
    column->setContentsMargins(Gap, 4, Gap, 4);
    column->setSpacing(0);
    for (std::size_t note = 0; note < ChordNotes; ++note) {
        auto* box = named(new QCheckBox(chordNoteTable()[note].name, sheet), QString("chkKey(%1)").arg(note));
        box->setFocusPolicy(Qt::NoFocus);
        box->setAttribute(Qt::WA_TransparentForMouseEvents);
        column->addWidget(box);
        chkKey_[note] = box;
    }
    return sheet;
}

QWidget* frmChordWizard::buildAdder(QWidget* parent) {
    auto* adder = named(new QFrame(parent), "picAdder");
    adder->setFrameShape(QFrame::StyledPanel);
    adder->setAutoFillBackground(true);
    auto* hint = named(new QLabel(adder), "Label10");
    hint->setWordWrap(true);
    auto* buttons = new QGridLayout;
    buttons->setSpacing(2);
    constexpr int AfterAdding = 16;
    for (std::size_t each = 0; each < AdderButtons.size(); ++each) {
        const AdderButton& row = AdderButtons[each];
        adderButtons_[each] = pictureButton(row.name, row.picture, adder);
        buttons->addWidget(adderButtons_[each], row.row, row.column + (row.column > 1 ? 1 : 0));
    }
    buttons->setColumnMinimumWidth(2, AfterAdding);
    auto* sides = new QHBoxLayout(adder);
    sides->addWidget(hint, 1);
    sides->addLayout(buttons);
    adder->hide();
    return adder;
}

void frmChordWizard::connectCalculator() {
    lstKeys_->Click = [this] { lstKeys_Click(); };
    lstTypes_->Click = [this] { LoadChordType(); };
    connect(Combo1_, &QComboBox::activated, this, [this] { LoadChordType(); });
    connect(lstView_, &QComboBox::activated, this, [this](int row) { picAdder_->setVisible(row != 0); });
    connect(nbnSlider_, &QSlider::valueChanged, this, [this](int speed) { sound_.setPlaySpeed(speed); });
    connect(Command1_, &QPushButton::clicked, this,
            [this] { context_.tools.open("frmChordTypeCreator", {this}); });
    connect(Command3_, &QPushButton::clicked, this, [this] { deleteType(); });
    Image3_->pressed = [this] { sound_.strumPressed(); };
    Image3_->moved = [this](StrumStrip::Band band) { sound_.strumMoved(band); };
    Image3_->released = [this](StrumStrip::Band band) { sound_.strumReleased(band); };
    cmdPlay_->Click = [this] { PlayChordNow(); };
}

void frmChordWizard::connectBank() {
    lst_Chords_->Click = [this] { LoadUserChord(); };
    connect(txt_Find_, &QLineEdit::textChanged, this,
            [this](const QString& text) { lst_Chords_->setPattern(text + "*"); });
    connect(cmd_Delete_, &QPushButton::clicked, this, [this] { deleteChord(); });
    Frame5_->badEntry = [this](const char* stringName) { showBadEntry(stringName); };
    Frame5_->changed = [this](const auto& marks) {
        if (chkPlayNow_->isChecked() && !sound_.SavingChord) sound_.playEntered(marks);
    };
    Frame5_->save = [this] { SaveUserChord(); };
}

void frmChordWizard::connectAdder() {
    const std::array<std::function<void()>, 6> acts = {
        [this] { moveCursor(key::Up); },    [this] { RemoveChordFromDocument(); },
        [this] { moveCursor(key::Left); },  [this] { moveCursor(key::Down); },
        [this] { moveCursor(key::Right); }, [this] { AddChordToDocument(); }};
    for (std::size_t each = 0; each < acts.size(); ++each)
        adderButtons_[each]->Click = acts[each];
}

// A chord can be found, heard and written without the mouse, on whichever tab.
void frmChordWizard::connectKeys() {
    const auto shortcut = [this](const QKeySequence& keys, std::function<void()> act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, std::move(act));
    };
    shortcut(Qt::Key_F7, [this] { PlayChordNow(); });
    shortcut(Qt::Key_Insert, [this] { AddChordToDocument(); });
    adderButtons_[5]->setProperty("key", "Insert");
    constexpr std::array<std::pair<std::size_t, Qt::Key>, 4> arrows = {
        {{0, Qt::Key_Up}, {2, Qt::Key_Left}, {3, Qt::Key_Down}, {4, Qt::Key_Right}}};
    for (const auto& [button, arrow] : arrows) {
        shortcut(QKeySequence(Qt::ALT | arrow), adderButtons_[button]->Click);
    }
}

} // namespace tabrova
