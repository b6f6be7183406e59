#include "shell/main_menu.h"

#include <QMenu>

namespace tabrova {

namespace {

enum class Kind { Menu, Item, Check, Separator };

struct MenuRow {
    Kind kind;
    const char* name;
    const char* parent; // "" for the bar
    const char* shortcut = "";
};

constexpr MenuRow Rows[] = {
    {Kind::Menu, "mnuFile", ""},
    {Kind::Item, "mnuFileNew", "mnuFile", "Ctrl+N"},
    {Kind::Item, "mnuFileOpen", "mnuFile", "Ctrl+O"},
    {Kind::Item, "mnuFileSave", "mnuFile", "Ctrl+S"},
    {Kind::Item, "mnuSaveAs", "mnuFile"},
    {Kind::Separator, "", "mnuFile"},
    {Kind::Item, "mnuFilePrint", "mnuFile", "Ctrl+P"},
    {Kind::Menu, "mnuFileExport", "mnuFile"},
    {Kind::Item, "mnuExportText", "mnuFileExport"},
    {Kind::Item, "mnuExportMidiFile", "mnuFileExport"},
    {Kind::Menu, "mnuFileImport", "mnuFile"},
    {Kind::Item, "mnuImportTR211", "mnuFileImport"},
    {Kind::Separator, "", "mnuFile"},
    {Kind::Item, "mnuFileProperties", "mnuFile"},
    {Kind::Separator, "", "mnuFile"},
    {Kind::Item, "mnuExit", "mnuFile", "Ctrl+Q"},

    {Kind::Menu, "mnuEdit", ""},
    {Kind::Menu, "mnuMode", "mnuEdit"},
    {Kind::Check, "mnuCCP", "mnuMode"},
    {Kind::Check, "mnuStandard", "mnuMode"},
    {Kind::Separator, "", "mnuMode"},
    {Kind::Check, "mnuIntelligent", "mnuMode"},
    {Kind::Separator, "", "mnuEdit"},
    {Kind::Item, "mnuCopyStaff", "mnuEdit", "Ctrl+C"},
    {Kind::Menu, "mnuEditCopyNext", "mnuEdit"},
    {Kind::Item, "mnuCopyNextBeat(0)", "mnuEditCopyNext"},
    {Kind::Item, "mnuCopyNextBeat(1)", "mnuEditCopyNext"},
    {Kind::Item, "mnuCopyNextBeat(2)", "mnuEditCopyNext"},
    {Kind::Item, "mnuCopyNextBeat(3)", "mnuEditCopyNext"},
    {Kind::Item, "mnuCopyNextBeat(4)", "mnuEditCopyNext"},
    {Kind::Item, "mnuCopyNextBeat(5)", "mnuEditCopyNext"},
    {Kind::Item, "mnuCopyNextBeat(6)", "mnuEditCopyNext"},
    {Kind::Item, "mnuCopyNextBeat(7)", "mnuEditCopyNext"},
    {Kind::Separator, "", "mnuEdit"},
    {Kind::Item, "mnuEditPaste(0)", "mnuEdit", "Ctrl+V"},
    {Kind::Item, "mnuEditPaste(1)", "mnuEdit", "Ctrl+Shift+V"},

    {Kind::Menu, "mnuView", ""},
    {Kind::Check, "mnuViewNotation", "mnuView"},
    {Kind::Check, "mnuVirtualFretboard", "mnuView"},
    {Kind::Separator, "", "mnuView"},
    {Kind::Item, "mnuViewRefresh", "mnuView", "F5"},

    {Kind::Menu, "mnuStaff", ""},
    {Kind::Menu, "mnuEditnewBar", "mnuStaff"},
    {Kind::Item, "mnuEditNewBarBeforeCurrent", "mnuEditnewBar"},
    {Kind::Item, "mnuEditNewBarAfterCurrentBar", "mnuEditnewBar"},
    {Kind::Item, "mnuEditnewBarAtEndofDocument", "mnuEditnewBar"},
    {Kind::Menu, "mnuClearBarAllTracks", "mnuStaff"},
    {Kind::Item, "ClearStaffallall", "mnuClearBarAllTracks"},
    {Kind::Item, "clearstaffallnorepeats", "mnuClearBarAllTracks"},
    {Kind::Item, "clearstaffallnotes", "mnuClearBarAllTracks"},
    {Kind::Item, "clearstaffalltech", "mnuClearBarAllTracks"},
    {Kind::Separator, "", "mnuClearBarAllTracks"},
    {Kind::Item, "clearstaffcurrentall", "mnuClearBarAllTracks"},
    {Kind::Item, "clearstaffcurrentnorepeats", "mnuClearBarAllTracks"},
    {Kind::Item, "clearstaffcurrentnotes", "mnuClearBarAllTracks"},
    {Kind::Item, "clearstaffcurrenttech", "mnuClearBarAllTracks"},
    {Kind::Separator, "", "mnuStaff"},
    {Kind::Item, "mnuDeleteBar", "mnuStaff"},

    {Kind::Menu, "mnuNote", ""},
    {Kind::Item, "mnuEditInsertNoteOnAllTracks", "mnuNote"},
    {Kind::Item, "mnuEditInsertNoteOnCurrentTrack", "mnuNote"},
    {Kind::Item, "mnuEditRemoveNoteonAllTracks", "mnuNote"},
    {Kind::Item, "mnuEditRemoveNoteonCurrentTrack", "mnuNote"},
    {Kind::Separator, "", "mnuNote"},
    {Kind::Item, "mnuNoteDeleteNote", "mnuNote"},
    {Kind::Item, "mnuNoteDeleteTechnique", "mnuNote"},
    {Kind::Separator, "", "mnuNote"},
    {Kind::Item, "mnuInsertSeparator", "mnuNote"},
    {Kind::Item, "mnuInsertOpenRepeat", "mnuNote"},
    {Kind::Item, "mnuInsertClosedRepeat", "mnuNote"},
    {Kind::Item, "mnuNoteRemoveBar", "mnuNote"},

    {Kind::Menu, "mnuTrack", ""},
    {Kind::Item, "mnuAddTrack", "mnuTrack"},
    {Kind::Item, "mnuKillTrack", "mnuTrack"},
    {Kind::Item, "mnuTrackProps", "mnuTrack"},
    {Kind::Separator, "", "mnuTrack"},
    {Kind::Item, "mnuChoose", "mnuTrack"},

    {Kind::Menu, "mnuTools", ""},
    {Kind::Item, "mnuChordManager", "mnuTools"},
    {Kind::Item, "mnuScaleManager", "mnuTools"},
    {Kind::Item, "mnuBandManager", "mnuTools"},
    {Kind::Item, "mnuTuningManager", "mnuTools"},
    {Kind::Item, "mnuToolsWebsiteManager", "mnuTools"},
    {Kind::Item, "mnuToolsGuitarLessons", "mnuTools"},
    {Kind::Item, "mnuToolsMetronome", "mnuTools"},
    {Kind::Item, "mnuToolsDrumMachine", "mnuTools"},
    {Kind::Separator, "", "mnuTools"},
    {Kind::Item, "mnuToolsOptions", "mnuTools"},

    {Kind::Menu, "mnuSound", ""},
    {Kind::Item, "mnuSoundPlayAll", "mnuSound", "F7"},
    {Kind::Item, "mnuPlayFromHere", "mnuSound", "F8"},
    {Kind::Item, "mnuPlaybackStop", "mnuSound", "F9"},

    {Kind::Menu, "mnuHelp", ""},
    {Kind::Item, "mnuHelpContents", "mnuHelp", "F1"},
    {Kind::Item, "mnuTechSupport", "mnuHelp"},
    {Kind::Item, "mnuNewVersionCheck", "mnuHelp"},
    {Kind::Separator, "", "mnuHelp"},
    {Kind::Item, "mnuAbout", "mnuHelp"},

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
            QMenu* menu = parent ? parent->addMenu(QString()) : bar.addMenu(QString());
            menus_.insert(row.name, menu);
            action = menu->menuAction();
        } else {
            action = parent->addAction(QString());
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
