#include "editing/property_commands.h"

namespace tabrova {

DocumentProperties PropertyCommands::properties() const {
    const Document& document = parts_.document;
    return {document.Title,
            document.Author,
            document.Notes,
            document.Tempo,
            document.DoubleTime != False16,
            document.PreventReverberations != 0};
}

void PropertyCommands::setProperties(const DocumentProperties& properties) {
    const Act act(parts_.acts, "frmFileProperties");
    Document& document = parts_.document;
    document.Title = properties.Title;
    document.Author = properties.Author;
    document.Notes = properties.Notes;
    document.Tempo = properties.Tempo;
    document.DoubleTime = boolean16(properties.DoubleTime);
    document.PreventReverberations = properties.PreventReverberations ? 1 : 0;
}

void PropertyCommands::setRealtimeMode(std::int16_t mode) {
    const Act act(parts_.acts, "RealtimeMode");
    parts_.document.RealtimeMode = mode;
}

void PropertyCommands::takeStartValues() {
    const Act act(parts_.acts, "Form_Load");
    parts_.document.Tempo = DefaultTempo;
    parts_.document.TuningTable.assign(StringsPerTrack, StandardTuning);
}

} // namespace tabrova
