#include "tools/percussion_editor/frmPercussion.h"

#include "core/text/conversions.h"
#include "editing/key_codes.h"
#include "forms/named.h"
#include "sound/drum_names.h"
#include "tools/percussion_editor/drum_list.h"
#include "tools/percussion_editor/percussion_layout.h"

#include <QCheckBox>
#include <QResizeEvent>

namespace tabrova {

namespace {

constexpr int PictureSize = 16;
constexpr int ControlState = 4; // of Shift, Ctrl and Alt: Ctrl
constexpr int Margin = 8;
constexpr int AutoTop = 4, ListTop = 27;
constexpr int LeftColumn = 8, MiddleColumn = 34, RightColumn = 60, DeleteColumn = 94, LabelColumn = 130;
constexpr QSize OpeningSize = {549, 334};
constexpr QSize SmallestSize = {110, 120};

struct PictureRow {
    const char* name;
    ButtonPicture picture;
    int left;
    int PercussionLayout::*top;
    int keyCode;
};

constexpr PictureRow Pictures[] = {
    {"Image1", ButtonPicture::ArrowRight, RightColumn, &PercussionLayout::sideTop, key::Right},
    {"Image2", ButtonPicture::ArrowDown, MiddleColumn, &PercussionLayout::downTop, key::Down},
    {"Image3", ButtonPicture::ArrowLeft, LeftColumn, &PercussionLayout::sideTop, key::Left},
    {"Image4", ButtonPicture::ArrowUp, MiddleColumn, &PercussionLayout::upTop, key::Up},
    {"Image6", ButtonPicture::Bin, DeleteColumn, &PercussionLayout::deleteTop, key::Delete},
};

QFont smallFont(QFont font) {
    constexpr qreal Smaller = 0.9;
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * Smaller);
    } else {
        font.setPixelSize(static_cast<int>(font.pixelSize() * Smaller));
    }
    return font;
}

std::optional<int> drumUnderCursor(const Document& document) {
    if (document.isGuitarTrack(document.CurrentTrack)) return std::nullopt;
    const int column = (document.CurrentStaff - 1) * ColumnsPerStaff + document.ColumnInStaff;
    const auto drum = toInteger16(document.note(column, document.cursorRow()));
    return drum ? drumOfKey(*drum) : std::nullopt;
}

} // namespace

frmPercussion::frmPercussion(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmPercussion", context, parent) {
    chkAuto_ = named(new QCheckBox(this), "chkAuto");
    List1_ = new DrumList(this);
    Label1_ = named(new QLabel(this), "Label1");
    Label1_->setWordWrap(true);
    Label1_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    for (QWidget* narrow : {static_cast<QWidget*>(List1_), static_cast<QWidget*>(Label1_)})
        narrow->setFont(smallFont(narrow->font()));
    buildPictures();
    List1_->Click = [this] { List1_Click(); };
    setFirstFocus(List1_);
    setMinimumSize(SmallestSize);
    context_.bench.acts.add(*this);
}

frmPercussion::~frmPercussion() { context_.bench.acts.remove(*this); }

// A picture acts as the mouse goes down.
void frmPercussion::buildPictures() {
    for (std::size_t each = 0; each < pictures_.size(); ++each) {
        const PictureRow& row = Pictures[each];
        pictures_[each] = pictureButton(row.name, row.picture, this);
        pictures_[each]->setIconSize({PictureSize, PictureSize});
        pictures_[each]->MouseDown = [this, &row] { pressKey(row.keyCode); };
    }
}

void frmPercussion::Form_Load() {
    LoadLanguage();
    chkAuto_->move(Margin, AutoTop);
    chkAuto_->resize(chkAuto_->sizeHint());
    for (PictureButton* picture : pictures_)
        picture->resize(picture->sizeHint());
    resize(OpeningSize);
    showPlaying();
    showCursor();
}

void frmPercussion::resizeEvent(QResizeEvent*) {
    const PercussionLayout layout = percussionLayout(width(), height());
    List1_->setGeometry(0, ListTop, width(), layout.listHeight);
    List1_->setColumns(layout.listColumns);
    for (std::size_t each = 0; each < pictures_.size(); ++each)
        pictures_[each]->move(Pictures[each].left, layout.*Pictures[each].top);
    Label1_->setGeometry(LabelColumn, layout.labelTop, width() - LabelColumn - Margin,
                         height() - layout.labelTop - 2);
}

void frmPercussion::List1_Click() {
    if (playing() || List1_->chosenRow() < 0) return;
    editor().DrawAndStorePercussionNote(drumKey(List1_->chosenRow()));
    if (chkAuto_->isChecked()) pressKey(key::Right);
}

void frmPercussion::pressKey(int keyCode) {
    if (!playing()) editor().picDocument_KeyDown(keyCode, ControlState);
}

void frmPercussion::actEnded(std::string_view, const Changes& changes) {
    if (changes.playing) showPlaying();
    showCursor();
}

void frmPercussion::showPlaying() {
    List1_->setEnabled(!playing());
    for (PictureButton* picture : pictures_)
        picture->setEnabled(!playing());
}

void frmPercussion::showCursor() { List1_->markDrum(drumUnderCursor(document())); }

} // namespace tabrova
