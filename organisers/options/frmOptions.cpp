#include "organisers/options/frmOptions.h"

#include "core/files/text_lines.h"
#include "forms/captions.h"
#include "forms/plain_tool_tips.h"
#include "platform/paths.h"
#include "sound/pitch.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include <algorithm>

namespace tabrova {

namespace {

constexpr char Section[] = "Options";
constexpr char DeviceIndex[] = "DeviceIndex";
constexpr char SplashFlag[] = "ShowSplash";
constexpr char SoundBank[] = "SoundBank";
constexpr int TestMilliseconds = 2000;
constexpr std::array TestFrets = {0, 0, 1, 2, 2, 0}; // E major, string 0 to 5

} // namespace

frmOptions::~frmOptions() { services_.synthesizer.onChange(nullptr); }

void frmOptions::Form_Load() {
    LoadLanguage();
    chkSplash_->setChecked(services_.settings.GetSetting(Section, SplashFlag, "1") == "1");
    const auto mode = static_cast<std::size_t>(host_.document().RealtimeMode);
    if (mode < realtimeModes_.size()) realtimeModes_[mode]->setChecked(true);
    chkEyeBall_->setChecked(host_.cursorBorderWidth() == 2);
    chkTABOUT_->setChecked(host_.tabOneColor());
    lst_Devices_->clear();
    for (const MidiDeviceRow& row : host_.sound().FillDeviceList()) {
        auto* item = new QListWidgetItem(row.name, lst_Devices_);
        item->setData(Qt::UserRole, row.id);
        item->setToolTip(asPlainHint(row.name));
    }
    listLanguages();
    chooseStoredDevice();
    connectSound();
    connectAppearance();
    showSynthesizer();
}

void frmOptions::LoadLanguage() { loadLanguage(*this, services_.programFolder, messageSink()); }

MessageSink frmOptions::messageSink() {
    return [this](std::string_view name, const QString& text) {
        if (name == "loading") loading_ = text;
        if (name == "none") none_ = text;
        if (name == "notInUse") notInUse_ = text;
    };
}

void frmOptions::showTab(OptionsTab tab) { OptionsTabs_->setCurrentIndex(static_cast<int>(tab)); }

void frmOptions::listLanguages() {
    namespace fs = std::filesystem;
    std::error_code failed;
    const fs::path folder = installedLanguages(services_.programFolder);
    fs::create_directory(folder, failed);
    QStringList names;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        std::error_code unknown;
        if (entry->is_directory(unknown)) names.append(textOf(entry->path().filename()));
    }
    names.sort(Qt::CaseInsensitive);
    lstLanguages_->clear();
    lstLanguages_->addItems(names);
}

// The active language goes even if no other one can take its place.
void frmOptions::lstLanguages_DblClick() {
    const QListWidgetItem* row = lstLanguages_->currentItem();
    if (!row) return;
    std::error_code failed;
    const std::filesystem::path active = activeLanguageFile(services_.programFolder);
    std::filesystem::remove(active, failed);
    copyTextFile(installedLanguages(services_.programFolder) / pathOf(row->text()) / "lang.trl", active);
    LoadLanguage();
    showSynthesizer();
    host_.languageApplied();
}

// A position that is not there any more leaves nothing chosen: what is sent is dropped until the user
// chooses.
void frmOptions::chooseStoredDevice() {
    const QString stored = services_.settings.GetSetting(Section, DeviceIndex, "0");
    const auto position = storedPosition(stored, lst_Devices_->count());
    lst_Devices_->setCurrentRow(position.value_or(-1));
    lblDeviceGone_->setVisible(!position);
    if (!position) return host_.sound().dropUntilOpened();
    lst_Devices_Click();
}

void frmOptions::lst_Devices_Click() {
    const QListWidgetItem* row = lst_Devices_->currentItem();
    if (!row) return;
    host_.sound().OpenMidiDevice(row->data(Qt::UserRole).toInt());
    lblDeviceGone_->hide();
    const Document& document = host_.document();
    if (const auto program = listInteger(document.TrackInstruments, document.CurrentTrack - 1))
        host_.sound().ProgramChange(GuitarChannel, *program);
    services_.settings.SaveSetting(Section, DeviceIndex, QString::number(lst_Devices_->currentRow()));
    showSynthesizer();
}

void frmOptions::connectSound() {
    lst_Devices_->Click = [this] {
        if (deviceClicks_.count()) Check2_->show();
        lst_Devices_Click();
    };
    for (std::size_t mode = 0; mode < realtimeModes_.size(); ++mode)
        connect(realtimeModes_[mode], &QRadioButton::toggled, this, [this, mode](bool chosen) {
            if (chosen) host_.document().RealtimeMode = static_cast<std::int16_t>(mode);
        });
    connect(cmdSoundBank_, &QPushButton::clicked, this, [this] { chooseBank(); });
    connect(cmdTestSound_, &QPushButton::clicked, this, [this] { testSound(); });
    services_.synthesizer.onChange([this] { showSynthesizer(); });
}

void frmOptions::connectAppearance() {
    lstLanguages_->DoubleClick = [this] { lstLanguages_DblClick(); };
    lstColors_->Click = [this] { lstColors_Click(); };
    connect(chkEyeBall_, &QCheckBox::toggled, this,
            [this](bool standsOut) { host_.setCursorBorderWidth(standsOut ? 2 : 1); });
    connect(chkTABOUT_, &QCheckBox::toggled, this, [this](bool one) { host_.setTabOneColor(one); });
    connect(chkStats_, &QCheckBox::toggled, this, [this](bool shown) { host_.showStatistics(shown); });
    connect(chkSplash_, &QCheckBox::toggled, this,
            [this](bool shown) { services_.settings.SaveSetting(Section, SplashFlag, shown ? "1" : "0"); });
    connect(Check2_, &QCheckBox::toggled, this, [this](bool on) { host_.setDebugMode(on); });
}

void frmOptions::lstColors_Click() {
    const int row = lstColors_->currentRow();
    if (row < 0) return;
    const QRgb highlight = palette().color(QPalette::Active, QPalette::Highlight).rgb();
    host_.setCursorColor(cursorColor(CursorColors[static_cast<std::size_t>(row)], highlight));
}

void frmOptions::chooseBank() {
    const auto file =
        services_.files.choose({FileQuestion::Kind::Open, "Sound Banks|*.sf2;*.sf3", "sf2", {}});
    if (!file) return;
    services_.settings.SaveSetting(Section, SoundBank, *file);
    services_.synthesizer.useBank(*file);
    showSynthesizer();
}

// A strummed chord in the sound of the current track.
void frmOptions::testSound() {
    MidiOutput& sound = host_.sound();
    for (std::size_t string = StringsPerTrack; string-- > 0;)
        sound.NoteOn(GuitarChannel, OpenStringNotes[string] + TestFrets[string], sound.FixedVelocity);
    host_.silenceAfter(TestMilliseconds);
}

void frmOptions::showSynthesizer() {
    const SynthesizerState state = services_.synthesizer.state();
    const QString nothing = state.loading ? loading_ : state.running ? none_ : notInUse_;
    lblSoundBank_->setText(state.bank.isEmpty() ? nothing : QFileInfo(state.bank).fileName());
    lblSoundBank_->setToolTip(state.bank);
    lblAudioOutput_->setText(state.output.isEmpty() ? nothing : state.output);
    lblSoundTrouble_->setText(state.trouble);
    lblSoundTrouble_->setVisible(state.running && !state.trouble.isEmpty());
}

} // namespace tabrova
