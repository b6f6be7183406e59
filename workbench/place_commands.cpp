#include "workbench/place_commands.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int FirstColumn = 0;
constexpr int LastColumn = ColumnsPerStaff - 1;

} // namespace

PlaceCommands::PlaceCommands(Workbench& bench) : bench_(bench) {}

void PlaceCommands::registerRows(CommandTable& table) {
    const Document& document = bench_.document;
    Editor& editor = bench_.editor;
    table.item("mnuGoStaffStart", [&] { editor.goTo(document.CurrentStaff, FirstColumn); });
    table.item("mnuGoStaffEnd", [&] { editor.goTo(document.CurrentStaff, LastColumn); });
    table.item("mnuGoDocumentStart", [&] { editor.goTo(1, FirstColumn); });
    table.item("mnuGoDocumentEnd", [&] { editor.goTo(document.StaffCount, LastColumn); });
    table.item("mnuGoPageUp", [this] { turnPage(-1); });
    table.item("mnuGoPageDown", [this] { turnPage(1); });
    table.item("mnuNextTrack", [this] { stepTrack(1); });
    table.item("mnuPreviousTrack", [this] { stepTrack(-1); });
}

void PlaceCommands::turnPage(int pages) {
    bench_.editor.VScroll1_Change(bench_.editor.scroll().value + pages * bench_.document.VisibleStaves);
}

void PlaceCommands::stepTrack(int tracks) {
    const int last =
        std::min<int>(bench_.document.TrackCount, static_cast<int>(bench_.document.TrackNames.size()));
    const int track = bench_.document.CurrentTrack + tracks;
    if (track <= last) bench_.tracks.TrackNames_Click(track - 1);
}

} // namespace tabrova
