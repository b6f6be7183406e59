// Going to places: the ends of the staff and of the document, the next page, the next track.
#pragma once

#include "editing/command_table.h"
#include "workbench/workbench.h"

namespace tabrova {

class PlaceCommands {
  public:
    explicit PlaceCommands(Workbench& bench);
    void registerRows(CommandTable& table);

    // The page moves by as many staves as it shows; the marker stays where it is on it.
    void turnPage(int pages);
    // By so many tracks, as far as there are any.
    void stepTrack(int tracks);

  private:
    Workbench& bench_;
};

} // namespace tabrova
