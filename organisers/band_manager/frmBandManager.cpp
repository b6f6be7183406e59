#include "organisers/band_manager/frmBandManager.h"

#include "core/files/entry_file.h"
#include "core/text/code_page.h"
#include "forms/entry_path.h"
#include "forms/folder_list.h"
#include "forms/text_edges.h"
#include "organisers/band_manager/gig_file.h"
#include "platform/box_title.h"
#include "platform/paths.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabWidget>
#include <QTextDocument>

namespace tabrova {

namespace {

constexpr auto LongestCaption = static_cast<qsizetype>(LongestShownName);

// `toPlainText` would turn hard blanks into plain ones.
QString wholeText(const QPlainTextEdit& box) {
    return box.document()->toRawText().replace(QChar::ParagraphSeparator, '\n');
}

} // namespace

// The band's name in the new language is not the user's, so that the window keeps its own title.
void frmBandManager::LoadLanguage() {
    const QSignalBlocker quiet(txtBandName_);
    ToolWindow::LoadLanguage();
}

void frmBandManager::takeMessage(std::string_view name, const QString& text) {
    if (name == "badGig") badGig_ = text;
    if (name == "member") member_ = text;
    if (name == "noneSpecified") strnonespecified_ = text;
}

void frmBandManager::Form_Load() {
    LoadLanguage();
    for (int member = 0; member < MostMembers; ++member)
        setTabTextOf(*tbMembers_, member, QString("%1 %2").arg(member_).arg(member + 1));
    ResetGigDate();
    readBand();
}

// Fields before members: all names come before all addresses.
void frmBandManager::readBand() {
    const auto stored = [this](const QString& key, const QString& otherwise) {
        return services().settings.GetSetting(BandSection, key, otherwise);
    };
    txtBandName_->setText(stored(BandNameKey, txtBandName_->text()));
    txtBandDetails_->setPlainText(stored(BandDetailsKey, {}));
    sldMembers_->setValue(membersOf(stored(MembersKey, QString::number(MostMembers))));
    showMembers(sldMembers_->value());
    for (const MemberFieldRow& field : MemberFields)
        for (int member = 0; member < MostMembers; ++member) {
            const bool isName = field.field == MemberField::Name;
            const QString otherwise = isName ? tabTextOf(*tbMembers_, member) : strnonespecified_;
            QLineEdit* into = box(member, field.field);
            into->setText(stored(memberKey(member, field), otherwise));
            into->setCursorPosition(0);
            if (isName) nameTab(member);
        }
}

void frmBandManager::Form_Unload() {
    SettingsStore& settings = services().settings;
    settings.SaveSetting(BandSection, BandNameKey, txtBandName_->text());
    settings.SaveSetting(BandSection, BandDetailsKey, wholeText(*txtBandDetails_));
    settings.SaveSetting(BandSection, MembersKey, QString::number(sldMembers_->value()));
    for (const MemberFieldRow& field : MemberFields)
        for (int member = 0; member < MostMembers; ++member)
            settings.SaveSetting(BandSection, memberKey(member, field), box(member, field.field)->text());
}

// The toolkit leaves a page as it hides its tab, so that the first one is selected once more behind it.
void frmBandManager::showMembers(int members) {
    lblMembers_->setNum(members);
    tbMembers_->setCurrentIndex(0);
    for (int member = 0; member < MostMembers; ++member)
        tbMembers_->setTabVisible(member, false);
    for (int member = 0; member < members; ++member)
        tbMembers_->setTabVisible(member, true);
    tbMembers_->setCurrentIndex(0);
}

void frmBandManager::nameTab(int member) {
    setTabTextOf(*tbMembers_, member,
                 shortened(inOneLine(box(member, MemberField::Name)->text()), LongestCaption));
}

void frmBandManager::mailTo(int member) {
    services().addresses.open("mailto:" + box(member, MemberField::Email)->text());
}

void frmBandManager::ResetGigDate() {
    const Gig today = padded(gigOn(QDate::currentDate()));
    std::error_code failed;
    std::filesystem::create_directory(folder(), failed);
    File1_->showFolder(folder());
    txtday_->setText(today.day);
    txtmonth_->setText(today.month);
    txtyear_->setText(today.year);
}

void frmBandManager::AddGig() {
    const QString name = gigName({txtmonth_->text(), txtday_->text(), txtyear_->text(), txtname_->text()});
    const auto file = newEntryPath(folder(), name);
    if (!file || !writeGig(*file, txtmemo_->text())) {
        services().boxes.ask({BoxTitle, badGig_, BoxIcon::Exclamation});
        return;
    }
    File1_->readAgain();
    ResetGigDate();
    txtname_->clear();
    txtmemo_->clear();
}

std::filesystem::path frmBandManager::GigFile() const { return folder() / File1_->chosenName(); }

// At once, without a question.
void frmBandManager::deleteGig() {
    if (File1_->chosenRow() >= 0) removeEntryFile(GigFile());
    File1_->readAgain();
}

void frmBandManager::showGig() {
    const auto memo = readMemo(GigFile());
    if (!memo) return;
    services().boxes.ask({shortened(gigHeading(gigOf(textOf(File1_->chosenName()))), LongestCaption),
                          shortened(*memo, LongestCaption), BoxIcon::None});
}

} // namespace tabrova
