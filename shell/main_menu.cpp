#include "shell/main_menu.h"

#include <QMenu>

namespace tabrova {

namespace {

enum class Kind { Menu, Item, Check, Separator };

// The page's keys are shown here, and taken by the page itself: in other controls they mean something else.
enum class Keys { OfTheWindow, OfThePage };

struct MenuRow {
    Kind kind;
    const char* name;
    const char* parent;         // "" for the bar
    const char* shortcuts = ""; // the first one is shown
    Keys keys = Keys::OfTheWindow;
};

constexpr MenuRow Rows[] = {
    {Kind::Menu, "mnuFile", ""},
    {Kind::Item, "mnuFileNew", "mnuFile", "Ctrl+N"},
    {Kind::Item, "mnuFileOpen", "mnuFile", "Ctrl+O"},
    {Kind::Menu, "mnuRecent", "mnuFile"},
    {Kind::Item, "mnuRecentDocument(0)", "mnuRecent"},
    {Kind::Item, "mnuRecentDocument(1)", "mnuRecent"},
    {Kind::Item, "mnuRecentDocument(2)", "mnuRecent"},
    {Kind::Item, "mnuRecentDocument(3)", "mnuRecent"},
    {Kind::Item, "mnuRecentDocument(4)", "mnuRecent"},
    {Kind::Item, "mnuRecentDocument(5)", "mnuRecent"},
    {Kind::Item, "mnuRecentDocument(6)", "mnuRecent"},
    {Kind::Item, "mnuRecentDocument(7)", "mnuRecent"},
    {Kind::Item, "mnuRecentDocument(8)", "mnuRecent"},
    {Kind::Item, "mnuRecentDocument(9)", "mnuRecent"},
    {Kind::Separator, "", "mnuRecent"},
    {Kind::Item, "mnuRecentClear", "mnuRecent"},
    {Kind::Menu, "mnuExamples", "mnuFile"},
    {Kind::Separator, "", "mnuFile"},
    {Kind::Item, "mnuFileSave", "mnuFile", "Ctrl+S"},
    {Kind::Item, "mnuSaveAs", "mnuFile", "Ctrl+Shift+S"},
    {Kind::Separator, "", "mnuFile"},
    {Kind::Item, "mnuFilePrint", "mnuFile", "Ctrl+P"},
    {Kind::Menu, "mnuFileExport", "mnuFile"},
    {Kind::Item, "mnuExportText", "mnuFileExport"},
    {Kind::Item, "mnuExportMidiFile", "mnuFileExport"},
    {Kind::Menu, "mnuFileImport", "mnuFile"},
    {Kind::Item, "mnuImportTR211", "mnuFileImport"},
    {Kind::Separator, "", "mnuFile"},
    {Kind::Item, "mnuFileProperties", "mnuFile", "Alt+Return"},
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
    {Kind::Separator, "", "mnuEdit"},
    {Kind::Menu, "mnuGo", "mnuEdit"},
    {Kind::Item, "mnuGoStaffStart", "mnuGo", "Home", Keys::OfThePage},
    {Kind::Item, "mnuGoStaffEnd", "mnuGo", "End", Keys::OfThePage},
    {Kind::Item, "mnuGoDocumentStart", "mnuGo", "Ctrl+Home", Keys::OfThePage},
    {Kind::Item, "mnuGoDocumentEnd", "mnuGo", "Ctrl+End", Keys::OfThePage},
    {Kind::Item, "mnuGoPageUp", "mnuGo", "PgUp", Keys::OfThePage},
    {Kind::Item, "mnuGoPageDown", "mnuGo", "PgDown", Keys::OfThePage},

    {Kind::Menu, "mnuView", ""},
    {Kind::Check, "mnuViewNotation", "mnuView", "F3"},
    {Kind::Check, "mnuVirtualFretboard", "mnuView", "F4"},
    {Kind::Separator, "", "mnuView"},
    {Kind::Menu, "mnuZoom", "mnuView"},
    {Kind::Check, "mnuZoom(0)", "mnuZoom", "Ctrl+0"},
    {Kind::Check, "mnuZoom(1)", "mnuZoom"},
    {Kind::Check, "mnuZoom(2)", "mnuZoom"},
    {Kind::Check, "mnuZoom(3)", "mnuZoom"},
    {Kind::Separator, "", "mnuZoom"},
    {Kind::Item, "mnuZoomIn", "mnuZoom", "Ctrl++; Ctrl+="},
    {Kind::Item, "mnuZoomOut", "mnuZoom", "Ctrl+-"},
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
    {Kind::Item, "mnuChoose", "mnuTrack", "Ctrl+T"},
    {Kind::Item, "mnuNextTrack", "mnuTrack", "Ctrl+Down"},
    {Kind::Item, "mnuPreviousTrack", "mnuTrack", "Ctrl+Up"},

    {Kind::Menu, "mnuTools", ""},
    {Kind::Item, "mnuChordManager", "mnuTools", "Ctrl+1"},
    {Kind::Item, "mnuScaleManager", "mnuTools", "Ctrl+2"},
    {Kind::Item, "mnuBandManager", "mnuTools", "Ctrl+3"},
    {Kind::Item, "mnuTuningManager", "mnuTools", "Ctrl+4"},
    {Kind::Item, "mnuToolsWebsiteManager", "mnuTools", "Ctrl+5"},
    {Kind::Item, "mnuToolsGuitarLessons", "mnuTools", "Ctrl+6"},
    {Kind::Item, "mnuToolsMetronome", "mnuTools", "Ctrl+7"},
    {Kind::Item, "mnuToolsDrumMachine", "mnuTools", "Ctrl+8"},
    {Kind::Item, "mnuPercussionEditor", "mnuTools", "Ctrl+9"},
    {Kind::Separator, "", "mnuTools"},
    {Kind::Item, "mnuToolsOptions", "mnuTools", "Ctrl+,"},

    {Kind::Menu, "mnuSound", ""},
    {Kind::Item, "mnuSoundPlayAll", "mnuSound", "F7"},
    {Kind::Item, "mnuPlayFromHere", "mnuSound", "F8"},
    {Kind::Item, "mnuPlaybackStop", "mnuSound", "F9"},

    {Kind::Menu, "mnuHelp", ""},
    {Kind::Item, "mnuHelpContents", "mnuHelp", "F1"},
    {Kind::Item, "mnuHelpKeys", "mnuHelp", "Shift+F1"},
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
            if (*row.shortcuts) action->setShortcuts(QKeySequence::listFromString(row.shortcuts));
            if (row.keys == Keys::OfThePage) action->setShortcutContext(Qt::WidgetShortcut);
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

QAction* MainMenu::addItem(const QString& menu, const QString& name, std::function<void()> command) {
    QAction* item = menus_.value(menu)->addAction(QString());
    item->setObjectName(name);
    actions_.insert(name.toLower(), item);
    connectItem(name, std::move(command));
    return item;
}

void MainMenu::setEnabled(const QString& name, bool enabled) {
    if (QAction* item = action(name)) item->setEnabled(enabled);
}

bool MainMenu::isChecked(const QString& name) const { return action(name)->isChecked(); }

void MainMenu::setChecked(const QString& name, bool checked) { action(name)->setChecked(checked); }

} // namespace tabrova
