#include "core/shell/main_menu.h"

#include <QMenu>

namespace tabrova {

namespace {

enum class Kind { Menu, Item, Check, Separator };

struct MenuRow {
    Kind kind;
    const char* name;
    const char* parent; // "" for the bar
    const char* caption = "";
    const char* shortcut = "";
};

constexpr MenuRow Rows[] = {
    {Kind::Menu, "mnuFile", "", "&File"},
    {Kind::Item, "mnuFileNew", "mnuFile", "&New", "Ctrl+N"},
    {Kind::Item, "mnuFileOpen", "mnuFile", "&Open...", "Ctrl+O"},
    {Kind::Item, "mnuFileSave", "mnuFile", "&Save", "Ctrl+S"},
    {Kind::Item, "mnuSaveAs", "mnuFile", "Save &As..."},
    {Kind::Separator, "", "mnuFile"},
    {Kind::Item, "mnuFilePrint", "mnuFile", "&Print...", "Ctrl+P"},
    {Kind::Menu, "mnuFileExport", "mnuFile", "&Export"},
    {Kind::Item, "mnuExportText", "mnuFileExport", "&Text File..."},
    {Kind::Item, "mnuExportMidiFile", "mnuFileExport", "&MIDI File..."},
    {Kind::Menu, "mnuFileImport", "mnuFile", "&Import"},
    {Kind::Item, "mnuImportTR211", "mnuFileImport", "&Tabrova 2.1x File"},
    {Kind::Separator, "", "mnuFile"},
    {Kind::Item, "mnuFileProperties", "mnuFile", "P&roperties..."},
    {Kind::Separator, "", "mnuFile"},
    {Kind::Item, "mnuExit", "mnuFile", "E&xit", "Ctrl+Q"},

    {Kind::Menu, "mnuEdit", "", "&Edit"},
    {Kind::Menu, "mnuMode", "mnuEdit", "&Editing Mode"},
    {Kind::Check, "mnuCCP", "mnuMode", "&Power Chord"},
    {Kind::Check, "mnuStandard", "mnuMode", "&Standard"},
    {Kind::Separator, "", "mnuMode"},
    {Kind::Check, "mnuIntelligent", "mnuMode", "&Intelligent"},
    {Kind::Separator, "", "mnuEdit"},
    {Kind::Item, "mnuCopyStaff", "mnuEdit", "&Copy current Staff", "Ctrl+C"},
    {Kind::Menu, "mnuEditCopyNext", "mnuEdit", "Co&py the next..."},
    {Kind::Item, "mnuCopyNextBeat(0)", "mnuEditCopyNext", "Beat"},
    {Kind::Item, "mnuCopyNextBeat(1)", "mnuEditCopyNext", "2 Beats"},
    {Kind::Item, "mnuCopyNextBeat(2)", "mnuEditCopyNext", "3 Beats"},
    {Kind::Item, "mnuCopyNextBeat(3)", "mnuEditCopyNext", "4 Beats"},
    {Kind::Item, "mnuCopyNextBeat(4)", "mnuEditCopyNext", "5 Beats"},
    {Kind::Item, "mnuCopyNextBeat(5)", "mnuEditCopyNext", "6 Beats"},
    {Kind::Item, "mnuCopyNextBeat(6)", "mnuEditCopyNext", "7 Beats"},
    {Kind::Item, "mnuCopyNextBeat(7)", "mnuEditCopyNext", "8 Beats"},
    {Kind::Separator, "", "mnuEdit"},
    {Kind::Item, "mnuEditPaste(0)", "mnuEdit", "&Paste On All Tracks", "Ctrl+V"},
    {Kind::Item, "mnuEditPaste(1)", "mnuEdit", "P&aste On Current Track Only", "Ctrl+Shift+V"},

    {Kind::Menu, "mnuView", "", "&View"},
    {Kind::Check, "mnuViewNotation", "mnuView", "&Music Notation"},
    {Kind::Check, "mnuVirtualFretboard", "mnuView", "&Virtual Fretboard"},
    {Kind::Separator, "", "mnuView"},
    {Kind::Item, "mnuViewRefresh", "mnuView", "&Refresh", "F5"},

    {Kind::Menu, "mnuStaff", "", "&Staff"},
    {Kind::Menu, "mnuEditnewBar", "mnuStaff", "&New Staff"},
    {Kind::Item, "mnuEditNewBarBeforeCurrent", "mnuEditnewBar", "&Before Current Staff"},
    {Kind::Item, "mnuEditNewBarAfterCurrentBar", "mnuEditnewBar", "A&fter Current Staff"},
    {Kind::Item, "mnuEditnewBarAtEndofDocument", "mnuEditnewBar", "&At end of Document"},
    {Kind::Menu, "mnuClearBarAllTracks", "mnuStaff", "&Clear Current Staff"},
    {Kind::Item, "ClearStaffallall", "mnuClearBarAllTracks",
     "&On All Tracks, Including Separators + Repeats"},
    {Kind::Item, "clearstaffallnorepeats", "mnuClearBarAllTracks", "O&n All Tracks, Notes + Techniques Only"},
    {Kind::Item, "clearstaffallnotes", "mnuClearBarAllTracks", "On &All Tracks, Notes Only"},
    {Kind::Item, "clearstaffalltech", "mnuClearBarAllTracks", "On A&ll Tracks, Techniques Only"},
    {Kind::Separator, "", "mnuClearBarAllTracks"},
    {Kind::Item, "clearstaffcurrentall", "mnuClearBarAllTracks",
     "On Curr&ent Track Only, Including Separators + Repeats"},
    {Kind::Item, "clearstaffcurrentnorepeats", "mnuClearBarAllTracks",
     "On Current Track Only, Notes + &Techniques Only"},
    {Kind::Item, "clearstaffcurrentnotes", "mnuClearBarAllTracks", "On Current Track Only, Not&es Only"},
    {Kind::Item, "clearstaffcurrenttech", "mnuClearBarAllTracks", "On Current Track Only, Techni&ques Only"},
    {Kind::Separator, "", "mnuStaff"},
    {Kind::Item, "mnuDeleteBar", "mnuStaff", "&Delete Current Staff"},

    {Kind::Menu, "mnuNote", "", "&Note"},
    {Kind::Item, "mnuEditInsertNoteOnAllTracks", "mnuNote", "&Insert Note On All Tracks"},
    {Kind::Item, "mnuEditInsertNoteOnCurrentTrack", "mnuNote", "I&nsert Note On This Track Only "},
    {Kind::Item, "mnuEditRemoveNoteonAllTracks", "mnuNote", "&Remove Note From All Tracks"},
    {Kind::Item, "mnuEditRemoveNoteonCurrentTrack", "mnuNote", "Re&move Note From This Track Only"},
    {Kind::Separator, "", "mnuNote"},
    {Kind::Item, "mnuNoteDeleteNote", "mnuNote", "&Delete Note (Del)"},
    {Kind::Item, "mnuNoteDeleteTechnique", "mnuNote", "D&elete Technique (Shift + Del)"},
    {Kind::Separator, "", "mnuNote"},
    {Kind::Item, "mnuInsertSeparator", "mnuNote", "&Insert Bar Separator"},
    {Kind::Item, "mnuInsertOpenRepeat", "mnuNote", "I&nsert Opened Repeat (Space)"},
    {Kind::Item, "mnuInsertClosedRepeat", "mnuNote", "In&sert Closed Repeat (Shift + Space)"},
    {Kind::Item, "mnuNoteRemoveBar", "mnuNote", "Re&move Bar Separator / Repeat Line"},

    {Kind::Menu, "mnuTrack", "", "&Track"},
    {Kind::Item, "mnuAddTrack", "mnuTrack", "&Add Track"},
    {Kind::Item, "mnuKillTrack", "mnuTrack", "&Remove Track"},
    {Kind::Item, "mnuTrackProps", "mnuTrack", "&Properties..."},
    {Kind::Separator, "", "mnuTrack"},
    {Kind::Item, "mnuChoose", "mnuTrack", "&Choose Track"},

    {Kind::Menu, "mnuTools", "", "T&ools"},
    {Kind::Item, "mnuChordManager", "mnuTools", "&Chord Manager"},
    {Kind::Item, "mnuScaleManager", "mnuTools", "&Scale Manager"},
    {Kind::Item, "mnuBandManager", "mnuTools", "&Band Manager"},
    {Kind::Item, "mnuTuningManager", "mnuTools", "&Tuning Manager"},
    {Kind::Item, "mnuToolsWebsiteManager", "mnuTools", "&Website Manager"},
    {Kind::Item, "mnuToolsGuitarLessons", "mnuTools", "&Guitar Lessons"},
    {Kind::Item, "mnuToolsMetronome", "mnuTools", "&Metronome"},
    {Kind::Item, "mnuToolsDrumMachine", "mnuTools", "&Drum Machine"},
    {Kind::Separator, "", "mnuTools"},
    {Kind::Item, "mnuToolsOptions", "mnuTools", "&Options..."},

    {Kind::Menu, "mnuSound", "", "So&und"},
    {Kind::Item, "mnuSoundPlayAll", "mnuSound", "&Play", "F7"},
    {Kind::Item, "mnuPlayFromHere", "mnuSound", "Play &From Here", "F8"},
    {Kind::Item, "mnuPlaybackStop", "mnuSound", "&Stop", "F9"},

    {Kind::Menu, "mnuHelp", "", "&Help"},
    {Kind::Item, "mnuHelpContents", "mnuHelp", "&Contents", "F1"},
    {Kind::Item, "mnuTechSupport", "mnuHelp", "&Tech Support"},
    {Kind::Item, "mnuNewVersionCheck", "mnuHelp", "Check for &New Version"},
    {Kind::Separator, "", "mnuHelp"},
    {Kind::Item, "mnuAbout", "mnuHelp", "&About Tabrova..."},
};

} // namespace

MainMenu::MainMenu(QMenuBar& bar) {
    for (const MenuRow& row : Rows) {
        QMenu* parent = menus_.value(row.parent);
        if (row.kind == Kind::Separator) {
            parent->addSeparator();
            continue;
        }
        QAction* action = nullptr;
        if (row.kind == Kind::Menu) {
            QMenu* menu = parent ? parent->addMenu(row.caption) : bar.addMenu(row.caption);
            menus_.insert(row.name, menu);
            action = menu->menuAction();
        } else {
            action = parent->addAction(row.caption);
            action->setShortcut(QKeySequence(row.shortcut));
            action->setCheckable(row.kind == Kind::Check);
            action->setEnabled(false);
        }
        action->setObjectName(row.name);
        actions_.insert(QString(row.name).toLower(), action);
    }
}

void MainMenu::connectItem(const QString& name, std::function<void()> command) {
    QAction* item = action(name);
    item->setEnabled(true);
    QObject::connect(item, &QAction::triggered, item, [command = std::move(command)] { command(); });
}

void MainMenu::setEnabled(const QString& name, bool enabled) {
    if (QAction* item = action(name)) item->setEnabled(enabled);
}

bool MainMenu::isChecked(const QString& name) const { return action(name)->isChecked(); }

void MainMenu::setChecked(const QString& name, bool checked) { action(name)->setChecked(checked); }

} // namespace tabrova
