#include "organisers/options/frmOptions.h"

#include "core/files/text_lines.h"
#include "core/language/language_file.h"
#include "forms/plain_tool_tips.h"
#include "organisers/options/language_mark.h"
#include "platform/paths.h"
#include "sound/pitch.h"
#include "workbench/sound_words.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

namespace tabrova {

namespace {

constexpr int IsSynthesizer = Qt::UserRole + 1; // of a row of the devices

constexpr char Section[] = "Options";
constexpr char DeviceIndex[] = "DeviceIndex";
constexpr char SplashFlag[] = "ShowSplash";
constexpr char SoundBank[] = "SoundBank";
constexpr int TestMilliseconds = 2000;
constexpr std::array TestFrets = {0, 0, 1, 2, 2, 0}; // E major, string 0 to 5

} // namespace

frmOptions::~frmOptions() { services().synthesizer.onChange(this, nullptr); }

void frmOptions::Form_Load() {
    LoadLanguage();
    chkSplash_->setChecked(services().settings.GetSetting(Section, SplashFlag, "1") == "1");
    const auto mode = static_cast<std::size_t>(document().RealtimeMode);
    if (mode < realtimeModes_.size()) realtimeModes_[mode]->setChecked(true);
    chkEyeBall_->setChecked(editor().page().borderWidth == 2);
    chkTABOUT_->setChecked(editor().tabOneColor());
    lst_Devices_->clear();
    for (const MidiDeviceRow& row : sound().FillDeviceList()) {
        auto* item = new QListWidgetItem(row.name, lst_Devices_);
        item->setData(Qt::UserRole, row.id);
        item->setData(IsSynthesizer, row.name == SynthesizerName);
        item->setToolTip(asPlainHint(row.name));
    }
    nameSynthesizer();
    listLanguages();
    chooseStoredDevice();
    connectSound();
    connectAppearance();
    showSynthesizer();
}

void frmOptions::takeMessage(std::string_view name, const QString& text) {
    if (name == "loading") loading_ = text;
    if (name == "none") none_ = text;
    if (name == "notInUse") notInUse_ = text;
}

void frmOptions::Form_Opened(const ToolOpener::Opening& opening) {
    OptionsTabs_->setCurrentIndex(opening.tab);
    markLanguageInUse();
}

void frmOptions::listLanguages() {
    std::error_code failed;
    const std::filesystem::path folder = installedLanguages(services().programFolder);
    std::filesystem::create_directory(folder, failed);
    lstLanguages_->showFolder(folder);
    markLanguageInUse();
}

void frmOptions::markLanguageInUse() {
    languageMark_->setLanguage(textOf(languageInUse(services().programFolder)));
    lstLanguages_->viewport()->update();
}

// The active language goes even if no other one can take its place.
void frmOptions::lstLanguages_DblClick() {
    const std::filesystem::path name = lstLanguages_->chosenName();
    if (name.empty()) return;
    std::error_code failed;
    const std::filesystem::path active = activeLanguageFile(services().programFolder);
    std::filesystem::remove(active, failed);
    copyTextFile(installedLanguages(services().programFolder) / name / "lang.trl", active);
    LoadLanguage();
    nameSynthesizer();
    markLanguageInUse();
    context_.commands.language.languageApplied();
    showSynthesizer();
}

// A position that is not there any more leaves nothing chosen: what is sent is dropped until the user
// chooses.
void frmOptions::chooseStoredDevice() {
    const QString stored = services().settings.GetSetting(Section, DeviceIndex, "0");
    const auto position = storedPosition(stored, lst_Devices_->count());
    lst_Devices_->setCurrentRow(position.value_or(-1));
    lblDeviceGone_->setVisible(!position);
    if (!position) return sound().dropUntilOpened();
    lst_Devices_Click();
}

void frmOptions::lst_Devices_Click() {
    const QListWidgetItem* row = lst_Devices_->currentItem();
    if (!row) return;
    sound().OpenMidiDevice(row->data(Qt::UserRole).toInt());
    lblDeviceGone_->hide();
    if (const auto program = listInteger(document().TrackInstruments, document().CurrentTrack - 1))
        sound().ProgramChange(GuitarChannel, *program);
    services().settings.SaveSetting(Section, DeviceIndex, QString::number(lst_Devices_->currentRow()));
    showSynthesizer();
}

void frmOptions::connectSound() {
    lst_Devices_->Click = [this] {
        if (deviceClicks_.count()) Check2_->show();
        lst_Devices_Click();
    };
    for (std::size_t mode = 0; mode < realtimeModes_.size(); ++mode)
        connect(realtimeModes_[mode], &QRadioButton::toggled, this, [this, mode](bool chosen) {
            if (chosen) context_.commands.properties.setRealtimeMode(static_cast<std::int16_t>(mode));
        });
    connect(cmdSoundBank_, &QPushButton::clicked, this, [this] { chooseBank(); });
    connect(cmdTestSound_, &QPushButton::clicked, this, [this] { testSound(); });
    services().synthesizer.onChange(this, [this] { showSynthesizer(); });
}

void frmOptions::connectAppearance() {
    lstLanguages_->DoubleClick = [this] { lstLanguages_DblClick(); };
    lstColors_->Click = [this] { lstColors_Click(); };
    connect(chkEyeBall_, &QCheckBox::toggled, this,
            [this](bool standsOut) { editor().setCursorBorderWidth(standsOut ? 2 : 1); });
    connect(chkTABOUT_, &QCheckBox::toggled, this, [this](bool one) { editor().setTabOneColor(one); });
    connect(chkStats_, &QCheckBox::toggled, this,
            [this](bool shown) { context_.commands.views.showStatistics(shown); });
    connect(chkSplash_, &QCheckBox::toggled, this,
            [this](bool shown) { services().settings.SaveSetting(Section, SplashFlag, shown ? "1" : "0"); });
    connect(Check2_, &QCheckBox::toggled, this,
            [this](bool on) { context_.commands.views.setDebugMode(on); });
}

void frmOptions::lstColors_Click() {
    const int row = lstColors_->currentRow();
    if (row < 0) return;
    const QRgb highlight = palette().color(QPalette::Active, QPalette::Highlight).rgb();
    editor().setCursorColor(cursorColor(CursorColors[static_cast<std::size_t>(row)], highlight));
}

void frmOptions::chooseBank() {
    const auto file =
        services().files.choose({FileQuestion::Kind::Open, soundBankFilter(context_.words), "sf2", {}});
    if (!file) return;
    services().settings.SaveSetting(Section, SoundBank, *file);
    services().synthesizer.useBank(*file);
    showSynthesizer();
}

// A strummed chord in the sound of the current track.
void frmOptions::testSound() {
    for (std::size_t string = StringsPerTrack; string-- > 0;)
        sound().NoteOn(GuitarChannel, OpenStringNotes[string] + TestFrets[string], sound().FixedVelocity);
    context_.bench.stopper.restart(TestMilliseconds);
}

// The synthesizer among the devices is named as its own box is.
void frmOptions::nameSynthesizer() {
    for (int row = 0; row < lst_Devices_->count(); ++row) {
        QListWidgetItem& item = *lst_Devices_->item(row);
        if (item.data(IsSynthesizer).toBool()) item.setText(grpSynthesizer_->title());
    }
}

void frmOptions::showSynthesizer() {
    const SynthesizerState state = services().synthesizer.state();
    const QString nothing = state.loading ? loading_ : state.running ? none_ : notInUse_;
    lblSoundBank_->setText(state.bank.isEmpty() ? nothing : QFileInfo(state.bank).fileName());
    lblSoundBank_->setToolTip(state.bank);
    lblAudioOutput_->setText(state.output.isEmpty() ? nothing : state.output);
    lblSoundTrouble_->setText(toldTrouble(state.trouble, context_.words));
    lblSoundTrouble_->setVisible(state.running && !state.trouble.isEmpty());
}

} // namespace tabrova
