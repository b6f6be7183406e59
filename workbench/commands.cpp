#include "workbench/commands.h"

namespace tabrova {

Commands::Commands(Workbench& bench, ToolOpener& tools, ColumnClock& clock, MenuState& menus)
    : documents(bench, tools, menus), imports(bench, documents, tools), exports(bench, tools, menus),
      tracks(bench.tracks), properties(bench.properties), chords(bench.chords), playback(bench, tools, clock),
      views(bench, menus), places(bench), structure(bench), entry(bench, menus), language(bench),
      help(bench.services, tools) {}

void Commands::registerRows(CommandTable& table) {
    documents.registerRows(table);
    imports.registerRows(table);
    exports.registerRows(table);
    entry.registerRows(table);
    structure.registerRows(table);
    tracks.registerRows(table);
    views.registerRows(table);
    places.registerRows(table);
    playback.registerRows(table);
    help.registerRows(table);
}

} // namespace tabrova
