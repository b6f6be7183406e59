// How the options' controls are made and placed.
#include "organisers/options/frmOptions.h"

#include "forms/named.h"
#include "organisers/options/language_mark.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tabrova {

namespace {

constexpr int Swatch = 12; // pixels
constexpr int Gap = 12;

QIcon swatch(QRgb color) {
    QPixmap picture(Swatch * 2, Swatch * 2);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(128, 128, 128));
    painter.setBrush(QColor::fromRgb(color));
    painter.drawRoundedRect(QRectF(0.5, 0.5, Swatch - 1, Swatch - 1), 2, 2);
    return QIcon(picture);
}

} // namespace

frmOptions::frmOptions(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmOptions", context, parent) {
    OptionsTabs_ = named(new QTabWidget(this), "OptionsTabs");
    OptionsTabs_->addTab(buildSoundTab(), QString());
    OptionsTabs_->addTab(buildAppearanceTab(), QString());
    auto* column = new QVBoxLayout(this);
    column->addWidget(OptionsTabs_);
    column->addWidget(buildCloseButton(), 0, Qt::AlignRight);
    resize(480, 500);
}

QPushButton* frmOptions::buildCloseButton() {
    auto* cmdClose = named(new QPushButton(this), "cmdClose");
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::close);
    return cmdClose;
}

QWidget* frmOptions::buildSoundTab() {
    auto* tab = new QWidget(this);
    lst_Devices_ = new ListBox("lst_Devices", tab);
    lst_Devices_->setMinimumHeight(90);
    lblDeviceGone_ = named(new QLabel(tab), "lblDeviceGone");
    lblDeviceGone_->setWordWrap(true);
    constexpr std::array names = {"PlayAllTracks", "PlayNone", "PlayCurrentTrack"};
    auto* column = new QVBoxLayout(tab);
    column->setContentsMargins(Gap, Gap, Gap, Gap);
    column->addWidget(labelOf(lst_Devices_, "lblDevices", tab));
    column->addWidget(lst_Devices_, 1);
    column->addWidget(lblDeviceGone_);
    column->addWidget(buildSynthesizerBox());
    column->addSpacing(Gap / 2);
    for (std::size_t mode = 0; mode < names.size(); ++mode) {
        realtimeModes_[mode] = named(new QRadioButton(tab), names[mode]);
        column->addWidget(realtimeModes_[mode]);
    }
    return tab;
}

QGroupBox* frmOptions::buildSynthesizerBox() {
    auto* box = named(new QGroupBox(this), "grpSynthesizer");
    grpSynthesizer_ = box;
    lblSoundBank_ = named(new QLabel(box), "lblSoundBank");
    lblAudioOutput_ = named(new QLabel(box), "lblAudioOutput");
    lblSoundTrouble_ = named(new QLabel(box), "lblSoundTrouble");
    lblSoundTrouble_->setWordWrap(true);
    for (QLabel* label : {lblSoundBank_, lblAudioOutput_, lblSoundTrouble_})
        label->setTextFormat(Qt::PlainText);
    lblSoundBank_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    cmdSoundBank_ = named(new QPushButton(box), "cmdSoundBank");
    cmdTestSound_ = named(new QPushButton(box), "cmdTestSound");
    auto* grid = new QGridLayout(box);
    grid->addWidget(named(new QLabel(box), "lblBankTitle"), 0, 0);
    grid->addWidget(lblSoundBank_, 0, 1);
    grid->addWidget(cmdSoundBank_, 0, 2);
    grid->addWidget(named(new QLabel(box), "lblOutputTitle"), 1, 0);
    grid->addWidget(lblAudioOutput_, 1, 1);
    grid->addWidget(cmdTestSound_, 1, 2);
    grid->addWidget(lblSoundTrouble_, 2, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(Gap);
    return box;
}

QWidget* frmOptions::buildAppearanceTab() {
    auto* tab = new QWidget(this);
    // Made in the order of the Tab key.
    QWidget* cursorBox = buildCursorBox();
    chkStats_ = named(new QCheckBox(tab), "chkStats");
    chkSplash_ = named(new QCheckBox(tab), "chkSplash");
    Check2_ = named(new QCheckBox(tab), "Check2");
    Check2_->hide();
    lstLanguages_ = new FolderList("lstLanguages", EntryKind::Folders, tab);
    languageMark_ = new LanguageMark(lstLanguages_);
    lstLanguages_->setItemDelegate(languageMark_);
    auto* column = new QVBoxLayout(tab);
    column->setContentsMargins(Gap, Gap, Gap, Gap);
    column->addWidget(cursorBox);
    column->addSpacing(Gap / 2);
    for (QCheckBox* box : {chkStats_, chkSplash_, Check2_})
        column->addWidget(box);
    column->addSpacing(Gap / 2);
    column->addWidget(labelOf(lstLanguages_, "lblLanguages", tab));
    column->addWidget(lstLanguages_, 1);
    return tab;
}

QWidget* frmOptions::buildCursorBox() {
    auto* box = new QWidget(this);
    lstColors_ = new ListBox("lstColors", box);
    const QRgb highlight = palette().color(QPalette::Active, QPalette::Highlight).rgb();
    for (const CursorColorRow& row : CursorColors)
        lstColors_->addItem(new QListWidgetItem(swatch(cursorColor(row, highlight)), row.name));
    lstColors_->setIconSize({Swatch, Swatch});
    constexpr int RowMargins = 12;
    lstColors_->setMinimumWidth(lstColors_->sizeHintForColumn(0) + 2 * lstColors_->frameWidth() + RowMargins);
    lstColors_->setFixedHeight(static_cast<int>(CursorColors.size()) * lstColors_->sizeHintForRow(0) +
                               2 * lstColors_->frameWidth());
    chkEyeBall_ = named(new QCheckBox(box), "chkEyeBall");
    chkTABOUT_ = named(new QCheckBox(box), "chkTABOUT");
    Check1_ = named(new QCheckBox(box), "Check1");
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * Gap);
    grid->addWidget(labelOf(lstColors_, "lblColors", box), 0, 0);
    grid->addWidget(lstColors_, 1, 0, 4, 1);
    grid->addWidget(chkEyeBall_, 1, 1);
    grid->addWidget(chkTABOUT_, 2, 1);
    grid->addWidget(Check1_, 3, 1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    return box;
}

} // namespace tabrova
