// How the main window's panels follow what an act has changed.
#include "forms/captions.h"
#include "forms/code_page_text.h"
#include "forms/text_edges.h"
#include "shell/main_panels.h"
#include "shell/rects.h"
#include "workbench/place_line.h"
#include "workbench/sound_words.h"

#include <QSignalBlocker>

#include <algorithm>

namespace tabrova {

void MainPanels::actEnded(std::string_view, const Changes& changes) {
    const bool playing = bench_.player.playing;
    if (changes.playing) ToggleMenus(!playing);
    if (changes.layout) {
        placePanels();
        if (playing) ToggleMenus(false);
    }
    if (changes.language) loadLanguage(window_, context_.services.programFolder);
    show(changes);
    showTexts(changes);
    showTracks(changes);
    showPlace();
    if (changes.pageTakesKeyboard) page_->setFocus();
    if (changes.fretPalette) noteSelector_->openAt(*changes.fretPalette);
    if (changes.panel) openPanel(*changes.panel);
}

void MainPanels::show(const Changes& changes) {
    const WindowLayout& layout = context_.commands.views.layout();
    if (changes.scrollBar) mirrorScrollBar();
    if (changes.strip) {
        strip_->showChanges();
        client_->update(0, StripTop, client_->width(), page_->y() - StripTop);
    }
    // The cursor's lines follow every move.
    if (changes.page || changes.cursor) page_->showChanges();
    if (changes.cursor && layout.fretboardShown) fretboard_->showChanges();
    if (changes.cursor && layout.stripShown) strip_->showChanges();
    // During playback all of them stay off.
    if (changes.techniques && !bench_.player.playing) showTrackKind();
}

// The techniques are those of a guitar; drums have a list of their own.
void MainPanels::showTrackKind() {
    const bool guitar = bench_.document.isGuitarTrack(bench_.document.CurrentTrack);
    toolbar_->UpdateTechniqueButtons(guitar);
    menu_.setEnabled("mnuPercussionEditor", !guitar);
}

void MainPanels::showTexts(const Changes& changes) {
    const ShownTexts& texts = bench_.texts;
    if (changes.title) setTitleOf(window_, shownName(texts.title));
    if (changes.statistics) lbldebug_->setText(QString::fromStdString(texts.statistics));
    if (changes.trackPanel) statusBar_->setTrackPanel(QString::fromStdString(texts.trackPanel));
}

void MainPanels::showPlace() {
    const SynthesizerState sound = context_.services.synthesizer.state();
    const bool silent = sound.running && !sound.trouble.isEmpty();
    const bool loaded = context_.tools.isLoaded("frmFileProperties");
    PlaceFacts facts;
    if (bench_.player.playing) facts.sounding = bench_.player.soundingColumn;
    facts.doubleTime = loaded ? bench_.player.speedBoost : bench_.document.DoubleTime;
    facts.fileName = listedName(context_.commands.documents.fileName());
    if (silent) facts.trouble = troubleHere(sound.trouble, bench_.words);
    const QString line = placeLine(bench_.document, facts, bench_.words);
    const bool explained = !facts.trouble.isEmpty() && !facts.sounding;
    statusBar_->setPlacePanel(line, explained ? toldTrouble(sound.trouble, bench_.words) : line);
}

void MainPanels::mirrorScrollBar() {
    const QSignalBlocker quiet(VScroll1_);
    VScroll1_->setMaximum(editor_.scroll().maximum);
    VScroll1_->setPageStep(std::max<int>(bench_.document.VisibleStaves, 1));
    VScroll1_->setValue(editor_.scroll().value);
}

void MainPanels::showTracks(const Changes& changes) {
    if (changes.tracks) trackChooser_->showTracks(bench_.document);
    if (changes.tracks || changes.trackChosen) {
        trackChooser_->showSelected(bench_.document.CurrentTrack - 1);
        if (trackChooser_->isVisible()) {
            trackChooser_->hide();
            page_->setFocus();
        }
    }
    if (!changes.trackListOpens) return;
    placePanels();
    trackChooser_->showSelected(bench_.document.CurrentTrack - 1);
    trackChooser_->open();
}

// One panel at a time: it has no way out but Enter.
void MainPanels::openPanel(const PanelOpening& opening) {
    bendPanel_->hide();
    repeatPanel_->hide();
    QWidget* panel = panelWidget(opening.panel);
    panelPlace(opening.panel) = opening.place;
    panel->move(qRect(context_.commands.views.inWindow(opening.place)).topLeft());
    panel->show();
    panel->raise();
    page_->setEnabled(false);
    QWidget* keyboard = opening.panel == Panel::Bend ? panel : &repeatPanel_->scroller();
    keyboard->setFocus();
}

void MainPanels::enablePage() {
    page_->setEnabled(!bench_.player.playing && bendPanel_->isHidden() && repeatPanel_->isHidden());
}

void MainPanels::ToggleMenus(bool enabled) {
    page_->setEnabled(false);
    if (enabled) enablePage();
    fretboard_->setEnabled(enabled);
    VScroll1_->setEnabled(enabled);
    for (const char* name : {"mnuFile", "mnuEdit", "mnuView", "mnuStaff", "mnuNote", "mnuTrack", "mnuTools",
                             "mnuHelp", "mnuSoundPlayAll", "mnuPlayFromHere"})
        menu_.setEnabled(name, enabled);
    statusBar_->setEnabled(enabled);
    stopKeys_->setEnabled(!enabled);
    trackChooser_->setEnabled(enabled);
    toolbar_->setAllButStopEnabled(enabled);
    if (!enabled) return;
    page_->setFocus();
    showTrackKind();
}

} // namespace tabrova
