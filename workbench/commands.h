// All commands of the program, and the one thing that a tool window gets: the workbench, the services, the
// commands, the words and the other windows by their names. What a tool changes outside itself it changes
// through it.
#pragma once

#include "workbench/document_commands.h"
#include "workbench/entry_commands.h"
#include "workbench/export_commands.h"
#include "workbench/help_commands.h"
#include "workbench/import_commands.h"
#include "workbench/language_commands.h"
#include "workbench/place_commands.h"
#include "workbench/playback_commands.h"
#include "workbench/structure_commands.h"
#include "workbench/view_commands.h"

namespace tabrova {

struct Commands {
    Commands(Workbench& bench, ToolOpener& tools, ColumnClock& clock, MenuState& menus);

    void registerRows(CommandTable& table);

    DocumentCommands documents;
    ImportCommands imports;
    ExportCommands exports;
    TrackCommands& tracks;
    PropertyCommands& properties;
    ChordEntry& chords;
    PlaybackCommands playback;
    ViewCommands views;
    PlaceCommands places;
    StructureCommands structure;
    EntryCommands entry;
    LanguageCommands language;
    HelpCommands help;
};

struct ToolContext {
    Workbench& bench;
    Services& services;
    const LanguageWords& words;
    Commands& commands;
    ToolOpener& tools;
};

} // namespace tabrova
