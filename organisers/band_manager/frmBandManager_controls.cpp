// How the band manager's controls are made, placed and connected.
#include "core/text/code_page.h"
#include "forms/folder_list.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "forms/text_edges.h"
#include "organisers/band_manager/frmBandManager.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTabWidget>

#include <limits>

namespace tabrova {

namespace {

constexpr int Gap = 12;      // pixels
constexpr int DateWidth = 4; // characters of a box
constexpr auto LongestTitle = static_cast<qsizetype>(LongestShownName);

// Whatever the settings hold has room.
QLineEdit* textBox(const QString& name, QWidget* parent) {
    auto* box = named(new QLineEdit(parent), name);
    box->setMaxLength(std::numeric_limits<int>::max());
    return box;
}

QString indexed(const char* name, int index) { return QString("%1(%2)").arg(name).arg(index); }

} // namespace

frmBandManager::frmBandManager(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmBandManager", context, parent) {
    panels_ = new QStackedWidget(this);
    auto* column = new QVBoxLayout(this);
    column->addWidget(new Logo(this));
    column->addWidget(buildOptions());
    column->addSpacing(Gap / 2);
    column->addWidget(panels_, 1);
    panels_->addWidget(buildMembers());
    panels_->addWidget(buildGigs());
    panels_->addWidget(buildBandDetails());
    setFirstFocus(mnuOption_[0]);
    connectControls();
    resize(600, 460);
}

QWidget* frmBandManager::buildOptions() {
    auto* options = new QWidget(this);
    auto* group = new QButtonGroup(options);
    auto* row = new QHBoxLayout(options);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (std::size_t option = 0; option < mnuOption_.size(); ++option) {
        mnuOption_[option] = named(new QPushButton(options), indexed("mnuOption", static_cast<int>(option)));
        mnuOption_[option]->setCheckable(true);
        group->addButton(mnuOption_[option], static_cast<int>(option));
        row->addWidget(mnuOption_[option], 1);
    }
    mnuOption_[0]->setChecked(true);
    connect(group, &QButtonGroup::idToggled, this, [this](int option, bool checked) {
        if (checked) showPanel(option);
    });
    return options;
}

// What stands above the tabs is seen with them.
void frmBandManager::showPanel(int option) {
    panels_->setCurrentIndex(option);
    for (QWidget* part : panels_->widget(0)->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        part->setVisible(option == 0);
}

QWidget* frmBandManager::buildMembers() {
    auto* panel = new QWidget(this);
    sldMembers_ = named(new QSlider(Qt::Horizontal, panel), "sldMembers");
    sldMembers_->setRange(1, MostMembers);
    sldMembers_->setValue(MostMembers);
    sldMembers_->setPageStep(1);
    sldMembers_->setTickPosition(QSlider::TicksBelow);
    sldMembers_->setTickInterval(1);
    lblMembers_ = named(new QLabel(panel), "lblMembers");
    tbMembers_ = named(new QTabWidget(panel), "tbMembers");
    tbMembers_->setElideMode(Qt::ElideRight);
    tbMembers_->setUsesScrollButtons(true);
    for (int member = 0; member < MostMembers; ++member)
        tbMembers_->addTab(buildMemberPage(member), QString());
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Gap);
    grid->addWidget(labelOf(sldMembers_, "Label1", panel), 0, 0);
    grid->addWidget(sldMembers_, 0, 1);
    grid->addWidget(lblMembers_, 0, 2);
    grid->addWidget(tbMembers_, 1, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    QSizePolicy keepsItsPlace = tbMembers_->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    tbMembers_->setSizePolicy(keepsItsPlace);
    return panel;
}

QWidget* frmBandManager::buildMemberPage(int member) {
    auto* page = new QWidget(this);
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(Gap, Gap, Gap, Gap);
    grid->setHorizontalSpacing(Gap);
    grid->setVerticalSpacing(Gap);
    const auto index = static_cast<std::size_t>(member);
    sndEmail_[index] = named(new QPushButton(page), indexed("sndEmail", member));
    int row = 0;
    for (const MemberFieldRow& field : MemberFields) {
        QLineEdit* into = textBox(indexed(field.box, member), page);
        boxes_[index][static_cast<std::size_t>(field.field)] = into;
        const bool isMail = field.field == MemberField::Email;
        grid->addWidget(labelOf(into, indexed(field.label, member), page), row, 0);
        grid->addWidget(into, row, 1, 1, isMail ? 1 : 2);
        if (isMail) grid->addWidget(sndEmail_[index], row, 2);
        ++row;
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(row, 1);
    return page;
}

QWidget* frmBandManager::buildGigs() {
    auto* picGigs = named(new QWidget(this), "picGigs");
    File1_ = new FolderList("File1", EntryKind::Files, picGigs);
    Command1_ = named(new QPushButton(picGigs), "Command1");
    auto* grid = new QGridLayout(picGigs);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Gap);
    grid->addWidget(labelOf(File1_, "Label10", picGigs), 0, 0);
    grid->addWidget(File1_, 1, 0);
    grid->addWidget(Command1_, 2, 0, Qt::AlignRight);
    grid->addWidget(buildGigAddition(), 3, 0);
    grid->setRowStretch(1, 1);
    return picGigs;
}

QWidget* frmBandManager::buildGigAddition() {
    auto* Frame1 = named(new QGroupBox(this), "Frame1");
    txtmonth_ = textBox("txtmonth", Frame1);
    txtday_ = textBox("txtday", Frame1);
    txtyear_ = textBox("txtyear", Frame1);
    txtname_ = textBox("txtname", Frame1);
    txtmemo_ = textBox("txtmemo", Frame1);
    Command6_ = named(new QPushButton(Frame1), "Command6");
    auto* grid = new QGridLayout(Frame1);
    grid->setHorizontalSpacing(Gap);
    int column = 0;
    for (const auto& [box, label] :
         {std::pair{txtmonth_, "Label11"}, {txtday_, "Label12"}, {txtyear_, "Label13"}}) {
        box->setFixedWidth(box->sizeHint().height() + box->fontMetrics().horizontalAdvance('0') * DateWidth);
        grid->addWidget(labelOf(box, label, Frame1), 0, column);
        grid->addWidget(box, 0, column + 1);
        column += 2;
    }
    grid->addWidget(named(new QLabel(Frame1), "Label14"), 0, column);
    grid->addWidget(labelOf(txtname_, "Label15", Frame1), 1, 0);
    grid->addWidget(txtname_, 1, 1, 1, column + 1);
    grid->addWidget(labelOf(txtmemo_, "Label16", Frame1), 2, 0);
    grid->addWidget(txtmemo_, 2, 1, 1, column + 1);
    grid->addWidget(Command6_, 3, 0, 1, column + 2, Qt::AlignRight);
    grid->setColumnStretch(column + 1, 1);
    return Frame1;
}

QWidget* frmBandManager::buildBandDetails() {
    auto* details = named(new QWidget(this), "picBANDDETAILS");
    txtBandName_ = textBox("txtBandName", details);
    txtBandDetails_ = named(new QPlainTextEdit(details), "txtBandDetails");
    txtBandDetails_->setTabChangesFocus(true);
    auto* column = new QVBoxLayout(details);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(labelOf(txtBandName_, "Label8", details));
    column->addWidget(txtBandName_);
    column->addSpacing(Gap / 2);
    column->addWidget(labelOf(txtBandDetails_, "Label9", details));
    column->addWidget(txtBandDetails_, 1);
    return details;
}

void frmBandManager::connectControls() {
    connect(sldMembers_, &QSlider::valueChanged, this, [this](int members) { showMembers(members); });
    for (int member = 0; member < MostMembers; ++member) {
        connect(box(member, MemberField::Name), &QLineEdit::textChanged, this,
                [this, member] { nameTab(member); });
        connect(sndEmail_[static_cast<std::size_t>(member)], &QPushButton::clicked, this,
                [this, member] { mailTo(member); });
    }
    connect(txtBandName_, &QLineEdit::textChanged, this,
            [this](const QString& name) { setTitleOf(*this, shortened(inOneLine(name), LongestTitle)); });
    connect(Command6_, &QPushButton::clicked, this, [this] { AddGig(); });
    connect(Command1_, &QPushButton::clicked, this, [this] { deleteGig(); });
    File1_->DoubleClick = [this] { showGig(); };
}

} // namespace tabrova
