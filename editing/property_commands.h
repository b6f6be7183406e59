// The document's own properties, and what note entry plays.
#pragma once

#include "editing/editor.h"

namespace tabrova {

struct DocumentProperties {
    std::string Title; // bytes of the code page, as the next two
    std::string Author;
    std::string Notes;                 // lines end in CR LF
    std::int16_t Tempo = DefaultTempo; // columns a minute
    bool DoubleTime = false;
    bool PreventReverberations = true;
};

class PropertyCommands {
  public:
    explicit PropertyCommands(EditingParts parts) : parts_(parts) {}

    DocumentProperties properties() const;
    void setProperties(const DocumentProperties& properties);
    // 0 all tracks, 1 nothing, 2 the current track.
    void setRealtimeMode(std::int16_t mode);
    // The tempo and the tuning that the start of the program writes once more.
    void takeStartValues();

  private:
    EditingParts parts_;
};

} // namespace tabrova
