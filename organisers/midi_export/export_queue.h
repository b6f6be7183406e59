// Which tracks go into a MIDI file, in which order.
#pragma once

#include <vector>

namespace tabrova {

class ExportQueue {
  public:
    bool isFull() const;
    // A track, from 0. False, with nothing changed, if it is there already or the queue is full.
    bool add(int track);
    // A row that is not there is passed over.
    void remove(int row);

    const std::vector<int>& tracks() const { return tracks_; }

  private:
    std::vector<int> tracks_;
};

// `PriorityTrack`: one more below the number of tracks, one less above 0. Nothing reads it.
int raisedPriority(int priority, int tracks);
int loweredPriority(int priority, int tracks);

} // namespace tabrova
