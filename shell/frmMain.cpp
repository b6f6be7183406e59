#include "shell/frmMain.h"

#include "core/document/document_operations.h"
#include "forms/code_page_text.h"
#include "forms/plain_tool_tips.h"
#include "shell/frmAbout.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLayout>

namespace tabrova {

namespace {

constexpr int StartProgram = 24;

} // namespace

frmMain::frmMain(Services& services)
    : services_(services), sound_(services.midi, [this](int code) { ReportMidiError(code); }),
      editor_({document_, view_, sound_, *this, words_}),
      commands_(document_, editor_, services, words_,
                {[this](const QString& name) { return menu_->action(name)->isEnabled(); },
                 [this](const std::string& text) { setTrackPanel(text); }, [this] { tracksReplaced(); },
                 [this] { showFrmFileProperties(); }}) {
    setObjectName("frmMain");
    setWindowTitle("Tabrova - untitled.tr3");
    menu_ = std::make_unique<MainMenu>(*menuBar());
    buildPanels();
    connectPanels();
    connectPage();
    connectMenus();
    connectViews();
    connectTracks();
    makeTimers();
    loadInstruments();
    showBuiltInLanguage();
    client_->installEventFilter(this);
    new PlainToolTips(this);
}

frmMain::~frmMain() = default;

void frmMain::Form_Load(const QString& commandLine, Splash splash) {
    LoadLanguage();
    sound_.CloseMidiDevice();
    loadFrmOptions();
    sound_.ProgramChange(0, StartProgram);
    editor_.SetDebugLabel();
    editor_.MakeNewDocument();
    document_.Tempo = DefaultTempo;
    document_.TuningTable.assign(StringsPerTrack, StandardTuning);
    instruments_->showProgram(StartProgram);
    loaded_ = true;
    menu_->action("mnuViewNotation")->trigger();
    // Only now the staves that the page shows are known, and with them its height.
    Form_Resize();
    if (!commandLine.isEmpty()) {
        commands_.OpenCommandLineDocument(commandLine);
    } else {
        splashWanted_ = splash == Splash::AsSettingsSay &&
                        services_.settings.GetSetting("Options", "ShowSplash", "1") == "1";
        if (splashWanted_) showSplash();
    }
    focusPage();
}

// The options open the device that the user has chosen, and stay loaded.
void frmMain::loadFrmOptions() {
    options_ = new frmOptions(services_, *this, this);
    options_->Form_Load();
}

void frmMain::showOptions(OptionsTab tab) {
    options_->showTab(tab);
    options_->show();
    options_->raise();
    options_->activateWindow();
}

// The list of drums, when there is a window for it, on a percussion track.
void frmMain::showFrmPercussion() {}

void frmMain::ReportMidiError(int code) {
    services_.midi.midiOutGetErrorTextA(code);
    services_.boxes.ask(
        {"Error: Sound Card Unavailable",
         "Tabrova cannot access your sound card and will now close. Please close all applications "
         "that use MIDI, and restart Tabrova. ",
         BoxIcon::Critical});
    services_.endProgram();
}

void frmMain::ToggleMenus(bool enabled) {
    page_->setEnabled(false);
    if (enabled) enablePage();
    fretboard_->setEnabled(enabled);
    VScroll1_->setEnabled(enabled);
    for (const char* name : {"mnuFile", "mnuEdit", "mnuView", "mnuStaff", "mnuNote", "mnuTrack", "mnuTools",
                             "mnuHelp", "mnuSoundPlayAll", "mnuPlayFromHere"})
        menu_->setEnabled(name, enabled);
    statusBar_->setEnabled(enabled);
    trackChooser_->setEnabled(enabled);
    toolbar_->setAllButStopEnabled(enabled);
    if (!enabled) return;
    focusPage();
    UpdateTechniqueButtons(document_.isGuitarTrack(document_.CurrentTrack));
}

void frmMain::Form_Resize() {
    if (!loaded_) return;
    updateScale();
    layout_ = layOutWindow(layout_, client_->width(), client_->height(), document_.VisibleStaves);
    placePanels();
    view_.picDocument.resize(layout_.picDocument.width, layout_.picDocument.height);
    view_.picStandardNotation.resize(layout_.picStandardNotation.width, StripHeight);
    view_.picFretboard.resize(layout_.picFretboard.width, layout_.picFretboard.height);
    editor_.pageResized();
    if (playing()) ToggleMenus(false);
}

// Whole image pixels: a screen of one and a half is served from the sheet of two.
void frmMain::updateScale() { view_.setScale(qCeil(devicePixelRatioF())); }

// Twice, since the menu bar's height follows from the width.
void frmMain::resizeClient(int width, int height) {
    for (int pass = 0; pass < 2; ++pass) {
        layout()->activate();
        resize(size() + QSize(width, height) - client_->size());
    }
    layout()->activate();
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!commands_.confirmLeaving()) return event->ignore();
    endInOrder();
    event->accept();
    QCoreApplication::exit(0);
}

void frmMain::endInOrder() {
    if (std::exchange(ended_, true)) return;
    StopTimer();
    StopTimer();
    sound_.AllNotesOff();
    splash_.clear();
    unloadFileProperties();
    delete trackProperties_;
    delete instruments_;
    instruments_ = nullptr;
    delete options_;
    options_ = nullptr;
    sound_.CloseMidiDevice();
}

void frmMain::showAbout() {
    auto* about = new frmAbout(services_, this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

void frmMain::showSplash() {
    splash_ = new frmAltSplash(services_.programFolder, this);
    splash_->setAttribute(Qt::WA_DeleteOnClose);
    splash_->chosen = [this](SplashChoice choice) { runSplashChoice(choice); };
    splash_->show();
}

void frmMain::runSplashChoice(SplashChoice choice) {
    splash_->close();
    show();
    switch (choice) {
    case SplashChoice::NewTablature:
        editor_.MakeNewDocument();
        editor_.refreshdrawing();
        showFrmFileProperties();
        break;
    case SplashChoice::OpenTablature:
        commands_.OpenDocNoConfirm(true);
        break;
    case SplashChoice::Learn:
        menu_->action("mnuHelpContents")->trigger();
        break;
    case SplashChoice::CloseWindow:
        break;
    }
    focusPage();
}

void frmMain::openSettingAddress(const QString& key, const QString& otherwise) {
    services_.addresses.open(services_.settings.GetSetting("Installation", key, otherwise));
}

} // namespace tabrova
