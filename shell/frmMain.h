// `frmMain`, the one main window: it owns the document, hosts the editor's panels and runs the shell's
// commands. It composes and shows; what is decided is decided in the rooms below.
#pragma once

#include "core/document/document.h"
#include "core/language/language_words.h"
#include "core/text/code_page.h"
#include "editing/editor.h"
#include "forms/captions.h"
#include "organisers/options/frmOptions.h"
#include "platform/services.h"
#include "shell/bend_panel.h"
#include "shell/document_commands.h"
#include "shell/fretboard_widget.h"
#include "shell/frmAltSplash.h"
#include "shell/main_menu.h"
#include "shell/note_selector.h"
#include "shell/page_widget.h"
#include "shell/properties/frmFileProperties.h"
#include "shell/properties/frmInstrumentSelector.h"
#include "shell/properties/frmTrackProperties.h"
#include "shell/repeat_panel.h"
#include "shell/status_bar.h"
#include "shell/toolbar.h"
#include "shell/track_chooser.h"
#include "shell/window_layout.h"
#include "sound/hi_pre_timer.h"
#include "sound/playback.h"

#include <QLabel>
#include <QMainWindow>
#include <QPointer>

namespace tabrova {

class frmMain : public QMainWindow, private EditorHost, private OptionsHost, private PropertiesHost {
  public:
    explicit frmMain(Services& services);
    ~frmMain() override;

    enum class Splash { AsSettingsSay, Never };
    // The start of the program, in its fixed order. An empty command line shows the welcome window.
    void Form_Load(const QString& commandLine, Splash splash);
    // The steps of closing, without a question: playback stops, notes end, windows go, the device closes.
    // Once.
    void endInOrder();

    // Enables or disables all that must stand still during playback.
    void ToggleMenus(bool enabled);
    // Size of the client area: all below the menu bar.
    void resizeClient(int width, int height);

    // The current track's strings, from the lowest to the highest, 13 being standard.
    void assignTuning(std::int16_t s1, std::int16_t s2, std::int16_t s3, std::int16_t s4, std::int16_t s5,
                      std::int16_t s6);
    // The File menu's caption becomes the first line of a file among the installed languages.
    void ApplyLanguagePatch(const QString& name);

    Document& document() override { return document_; }
    Editor& editor() { return editor_; }
    TabView& view() { return view_; }
    MainMenu& menu() { return *menu_; }
    const WindowLayout& layoutOfPanels() const { return layout_; }
    DocumentCommands& commands() { return commands_; }
    QWidget* clientArea() const { return client_; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void refreshPage() override;
    void refreshStrip() override;
    void refreshFretboard() override;
    void mirrorScrollBar(int maximum, int value) override;
    void setTitle(const std::string& title) override;
    void setStatistics(const std::string& text) override;
    void setTrackPanel(const std::string& text) override;
    void UpdateTechniqueButtons(bool guitarTrack) override;
    int clientHeight() const override;
    QRgb inlayColor() const override;
    Rect pageGeometry() const override;
    Rect panelGeometry(Panel panel) const override;
    void openPanel(Panel panel, const Rect& place) override;
    Rect noteSelectorGeometry() const override;
    void openNoteSelector(const Rect& place) override;
    void focusPage() override;
    void restartSoundStopper(std::optional<int> milliseconds) override;
    void unloadFileProperties() override;
    void tracksReplaced() override;
    bool confirmClearingOnlyStaff() override;
    bool debugMode() const override { return debugMode_; }
    bool playing() const override { return Hitime1_->Enabled(); }

    MidiOutput& sound() override { return sound_; }
    void setCursorColor(QRgb color) override;
    int cursorBorderWidth() const override { return editor_.page().borderWidth; }
    void setCursorBorderWidth(int pixels) override;
    bool tabOneColor() const override;
    void setTabOneColor(bool oneColor) override;
    void showStatistics(bool shown) override;
    void setDebugMode(bool on) override;
    void silenceAfter(int milliseconds) override { restartSoundStopper(milliseconds); }
    void languageApplied() override;

    void refreshdrawing() override { editor_.refreshdrawing(); }
    const LanguageWords& words() const override { return words_; }
    void showTracks() override;
    void selectTrack(int row) override;
    QString instrumentName(int program) const override;
    void openInstrumentSelector(QWidget* from) override;
    void openTuningManager() override;
    bool hasTuningManager() const override;
    void fileProperties_Closed() override;

    void buildPanels();
    void connectPanels();
    void connectMenus();
    void connectNoteMenu();
    void connectStaffMenu();
    void connectClipboardMenu();
    void runToolbarWord(const QString& word);
    void chooseMode(bool powerChord);
    void connectPage();
    MessageSink messageSink();
    void showBuiltInLanguage();
    void LoadLanguage();
    void loadFrmOptions();
    void showOptions(OptionsTab tab);
    void connectTracks();
    void loadInstruments();
    void AddTrack();
    void mnuKillTrack();
    void mnuChoose();
    void mnuTrackProps();
    void TrackNames_Click(int row);
    void hideTrackChooser();
    std::string currentTrackName() const; // UTF-8
    frmFileProperties& loadFrmFileProperties();
    void makeTimers();
    void play(PlayFrom from);
    void mnuPlaybackStop();
    void StartPlayback(int interval);
    void StopTimer();
    void HiTime1_Timer();
    void showFrmFileProperties();
    void showFrmPercussion();
    void connectViews();
    void mnuViewNotation();
    void mnuVirtualFretboard();
    void Form_Resize();
    void placePanels();
    void enablePage();
    void closePanel(QWidget& panel);
    void closeBendPanel(int code);
    void closeRepeatPanel(int value);
    void showAbout();
    void showSplash();
    void runSplashChoice(SplashChoice choice);
    void paintRuler();
    void updateScale();
    void ReportMidiError(int code);
    void openSettingAddress(const QString& key, const QString& otherwise);

    Services& services_;
    Document document_;
    TabView view_;
    LanguageWords words_;
    MidiOutput sound_;
    Editor editor_;
    DocumentCommands commands_;
    std::unique_ptr<MainMenu> menu_;
    WindowLayout layout_;
    bool loaded_ = false;
    bool ended_ = false;
    bool splashWanted_ = false;
    bool debugMode_ = false;

    QWidget* client_ = nullptr;
    Toolbar* toolbar_ = nullptr;
    PageWidget* page_ = nullptr;
    SurfaceWidget* strip_ = nullptr;
    FretboardWidget* fretboard_ = nullptr;
    QScrollBar* VScroll1_ = nullptr;
    NoteSelector* noteSelector_ = nullptr;
    BendPanel* bendPanel_ = nullptr;
    RepeatPanel* repeatPanel_ = nullptr;
    StatusBar* statusBar_ = nullptr;
    TrackChooser* trackChooser_ = nullptr;
    QLabel* lbldebug_ = nullptr;
    WindowTimer* tmrsndStopper_ = nullptr;
    ctlHiPreTimer* Hitime1_ = nullptr;
    frmOptions* options_ = nullptr;
    frmInstrumentSelector* instruments_ = nullptr;
    frmFileProperties* fileProperties_ = nullptr;
    QPointer<frmTrackProperties> trackProperties_;
    QPointer<frmAltSplash> splash_;
};

} // namespace tabrova
