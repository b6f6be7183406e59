#include "organisers/websites/frmWebsites.h"

#include "core/files/entry_file.h"
#include "forms/entry_path.h"
#include "forms/folder_list.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "organisers/websites/site_file.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>

namespace tabrova {

namespace {

constexpr char DefaultAddress[] = "http://";
constexpr char DefaultName[] = "New Site";
constexpr char DefaultDescription[] = "This website is";
constexpr char ErrorTitle[] = "Error";
constexpr char BadName[] = "This entry cannot be saved as the entry name contains invalid characters.";
constexpr int Gap = 12; // pixels
constexpr int DescriptionLines = 4;

// A sheet for a text of any length.
QScrollArea* scrolled(QLabel* text, QWidget* parent) {
    auto* area = new QScrollArea(parent);
    area->setWidget(text);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    text->setWordWrap(true);
    text->setTextFormat(Qt::PlainText);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text->setMargin(4);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    area->setFixedHeight(text->fontMetrics().lineSpacing() * DescriptionLines + 2 * area->frameWidth() + 8);
    return area;
}

} // namespace

frmWebsites::frmWebsites(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmWebsites", context, parent) {
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(Gap);
    grid->addWidget(new Logo(this), 0, 0, 1, 3);
    addEntries(*grid);
    auto* line = new QFrame(this);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    grid->setRowMinimumHeight(4, 2 * Gap);
    grid->addWidget(line, 4, 0, 1, 3);
    addNewEntry(*grid);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    setFirstFocus(sitesList_);
    connectControls();
    resize(560, 500);
}

void frmWebsites::addEntries(QGridLayout& grid) {
    sitesList_ = new FolderList("sitesList", EntryKind::Files, this);
    sitesList_->setMinimumHeight(100);
    Command2_ = named(new QPushButton(this), "Command2");
    Command3_ = named(new QPushButton(this), "Command3");
    SiteLoader_ = named(new QLineEdit(this), "SiteLoader");
    SiteLoader_->setReadOnly(true);
    lblDesc_ = named(new QLabel(this), "lblDesc");
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(Gap / 2);
    buttons->addWidget(Command2_);
    buttons->addWidget(Command3_);
    buttons->addStretch(1);
    grid.addWidget(sitesList_, 1, 0, 1, 2);
    grid.addLayout(buttons, 1, 2);
    grid.addWidget(labelOf(SiteLoader_, "Label2(0)", this), 2, 0);
    grid.addWidget(SiteLoader_, 2, 1, 1, 2);
    grid.addWidget(labelOf(lblDesc_, "Label1(0)", this), 3, 0, Qt::AlignTop);
    grid.addWidget(scrolled(lblDesc_, this), 3, 1, 1, 2);
}

void frmWebsites::addNewEntry(QGridLayout& grid) {
    siteURL_ = named(new QLineEdit(DefaultAddress, this), "siteURL");
    siteName_ = named(new QLineEdit(DefaultName, this), "siteName");
    txtDesc_ = named(new QLineEdit(DefaultDescription, this), "txtDesc");
    Command1_ = named(new QPushButton(this), "Command1");
    int row = 5;
    for (const auto& [box, label] :
         {std::pair{siteURL_, "Label2(1)"}, {siteName_, "Label3"}, {txtDesc_, "Label1(1)"}}) {
        grid.addWidget(labelOf(box, label, this), row, 0);
        grid.addWidget(box, row++, 1, 1, 2);
    }
    grid.addWidget(Command1_, row, 2);
}

void frmWebsites::connectControls() {
    sitesList_->Click = [this] { showSelected(); };
    connect(Command1_, &QPushButton::clicked, this, [this] { saveEntry(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { goToSite(); });
    connect(Command3_, &QPushButton::clicked, this, [this] { deleteEntry(); });
}

void frmWebsites::Form_Load() {
    LoadLanguage();
    std::error_code failed;
    std::filesystem::create_directory(folder(), failed);
    sitesList_->showFolder(folder());
}

std::filesystem::path frmWebsites::SiteFile() const { return folder() / sitesList_->chosenName(); }

bool frmWebsites::showSelected() {
    if (sitesList_->chosenRow() < 0) return false;
    const auto site = readSite(SiteFile());
    if (!site) return false;
    SiteLoader_->setText(site->address);
    SiteLoader_->setCursorPosition(0);
    lblDesc_->setText(shownDescription(site->description));
    return true;
}

// The address is shown even if the entry cannot be saved.
void frmWebsites::saveEntry() {
    SiteLoader_->setText(siteURL_->text());
    const auto file = newEntryPath(folder(), siteName_->text());
    if (file && writeSite(*file, {siteURL_->text(), txtDesc_->text()})) return sitesList_->readAgain();
    services().boxes.ask({ErrorTitle, BadName, BoxIcon::Exclamation});
}

void frmWebsites::goToSite() {
    if (showSelected()) services().addresses.open(SiteLoader_->text());
}

// Whether the entry could be removed or not. Its description stays.
void frmWebsites::deleteEntry() {
    if (sitesList_->chosenRow() < 0) return;
    removeEntryFile(SiteFile());
    sitesList_->readAgain();
    SiteLoader_->clear();
}

} // namespace tabrova
