// The main window's tracks: the selector, adding and removing, and the windows of their properties.
#include "core/document/document_operations.h"
#include "core/document/track_table.h"
#include "forms/box_title.h"
#include "forms/code_page_text.h"
#include "shell/frmMain.h"
#include "shell/properties/track_texts.h"
#include "sound/pitch.h"

#include <QWindow>

namespace tabrova {

void frmMain::connectTracks() {
    menu_->connectItem("mnuAddTrack", [this] { AddTrack(); });
    menu_->connectItem("mnuKillTrack", [this] { mnuKillTrack(); });
    menu_->connectItem("mnuTrackProps", [this] { mnuTrackProps(); });
    menu_->connectItem("mnuChoose", [this] { mnuChoose(); });
    menu_->connectItem("mnuFileProperties", [this] { showFrmFileProperties(); });
    trackChooser_->chosen = [this](int row) { TrackNames_Click(row); };
    trackChooser_->addTrack = [this] { AddTrack(); };
    trackChooser_->closed = [this] {
        closePanel(*trackChooser_);
        focusPage();
    };
    statusBar_->trackPanelClicked = [this] { mnuChoose(); };
    statusBar_->optionsPanelClicked = [this] { showOptions(OptionsTab::Appearance); };
}

void frmMain::loadInstruments() {
    instruments_ = new frmInstrumentSelector(services_, *this, this);
    instruments_->fill_sound_list();
    instruments_->closed = [this] {
        if (trackProperties_) trackProperties_->showPatch();
    };
}

// The grids grow before the question, and the flag comes last: the track that is selected by then is the new
// one. Any answer but No makes a percussion track.
void frmMain::AddTrack() {
    if (playing() || !growByOneTrack(document_)) return;
    const BoxAnswer answer = services_.boxes.ask({BoxTitle,
                                                  QString::fromStdString(words_.percussionQuestion),
                                                  BoxIcon::Question,
                                                  {BoxAnswer::Yes, BoxAnswer::No}});
    const int row = appendTrackRows(document_);
    showTracks();
    selectTrack(row);
    finishNewTrack(document_, answer == BoxAnswer::No);
    editor_.refreshdrawing();
    editor_.SetDebugLabel();
}

void frmMain::mnuKillTrack() {
    if (playing()) return;
    if (document_.TrackCount <= 1) {
        services_.boxes.ask({BoxTitle, QString::fromStdString(words_.onlyTrack), BoxIcon::Information});
        return;
    }
    const QString name = shownName(trackName(document_, document_.CurrentTrack));
    const QString question = QString::fromStdString(words_.removeTrackQuestion) + " '" + name + "' ?";
    if (services_.boxes.ask({BoxTitle, question, BoxIcon::Question, {BoxAnswer::Yes, BoxAnswer::No}}) !=
        BoxAnswer::Yes)
        return;
    removeCurrentTrack(document_);
    showTracks();
    selectTrack(0);
    editor_.MoveCursor(Direction::Nowhere);
    editor_.refreshdrawing();
    editor_.SetDebugLabel();
}

void frmMain::mnuChoose() {
    placePanels();
    trackChooser_->showSelected(document_.CurrentTrack - 1);
    trackChooser_->open();
}

void frmMain::mnuTrackProps() {
    if (!trackProperties_) {
        trackProperties_ = new frmTrackProperties(*this, services_.programFolder, this);
        trackProperties_->setAttribute(Qt::WA_DeleteOnClose);
    }
    trackProperties_->Form_Load();
    trackProperties_->open();
}

void frmMain::TrackNames_Click(int row) {
    if (row < 0) return;
    document_.CurrentTrack = static_cast<std::int16_t>(row + 1);
    setTrackPanel(words_.track + " " + currentTrackName());
    const auto program = trackProgram(document_, document_.CurrentTrack);
    instruments_->showProgram(program);
    if (program) sound_.ProgramChange(GuitarChannel, *program);
    hideTrackChooser();
    editor_.refreshdrawing();
    editor_.SetDebugLabel();
}

std::string frmMain::currentTrackName() const {
    return shownName(trackName(document_, document_.CurrentTrack)).toStdString();
}

void frmMain::selectTrack(int row) {
    trackChooser_->showSelected(row);
    TrackNames_Click(row);
}

void frmMain::tracksReplaced() {
    showTracks();
    trackChooser_->showSelected(document_.CurrentTrack - 1);
    hideTrackChooser();
}

void frmMain::hideTrackChooser() {
    if (!trackChooser_->isVisible()) return;
    trackChooser_->hide();
    focusPage();
}

void frmMain::showTracks() { trackChooser_->showTracks(document_); }

QString frmMain::instrumentName(int program) const { return instruments_->instrumentName(program); }

void frmMain::openInstrumentSelector(QWidget* from) {
    instruments_->Form_Load();
    instruments_->show();
    // Above the window that asked for it, which it outlives.
    if (QWindow* window = instruments_->windowHandle()) window->setTransientParent(from->windowHandle());
}

bool frmMain::hasTuningManager() const { return menu_->action("mnuTuningManager")->isEnabled(); }

void frmMain::openTuningManager() { menu_->action("mnuTuningManager")->trigger(); }

void frmMain::assignTuning(std::int16_t s1, std::int16_t s2, std::int16_t s3, std::int16_t s4,
                           std::int16_t s5, std::int16_t s6) {
    tabrova::assignTuning(document_, s1, s2, s3, s4, s5, s6);
    if (trackProperties_) trackProperties_->showTuning();
    editor_.refreshdrawing();
}

frmFileProperties& frmMain::loadFrmFileProperties() {
    if (!fileProperties_) {
        fileProperties_ = new frmFileProperties(*this, services_.programFolder, this);
        fileProperties_->Form_Load();
    }
    return *fileProperties_;
}

// Playback has loaded it perhaps, when another language was the active one.
void frmMain::showFrmFileProperties() {
    frmFileProperties& form = loadFrmFileProperties();
    if (!form.isVisible()) form.LoadLanguage();
    form.open();
}

// What it holds goes into the document.
void frmMain::unloadFileProperties() {
    if (!fileProperties_) return;
    frmFileProperties* form = std::exchange(fileProperties_, nullptr);
    form->Form_Unload();
    form->hide();
    form->deleteLater();
}

void frmMain::fileProperties_Closed() {
    unloadFileProperties();
    editor_.refreshdrawing();
}

} // namespace tabrova
