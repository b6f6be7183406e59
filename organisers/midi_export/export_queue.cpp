#include "organisers/midi_export/export_queue.h"

#include "sound/midi_export.h"

#include <algorithm>

namespace tabrova {

bool ExportQueue::isFull() const { return tracks_.size() >= MostQueuedTracks; }

bool ExportQueue::add(int track) {
    if (isFull() || std::ranges::find(tracks_, track) != tracks_.end()) return false;
    tracks_.push_back(track);
    return true;
}

void ExportQueue::remove(int row) {
    if (row >= 0 && row < static_cast<int>(tracks_.size())) tracks_.erase(tracks_.begin() + row);
}

int raisedPriority(int priority, int tracks) { return priority < tracks ? priority + 1 : priority; }

int loweredPriority(int priority, int) { return priority > 0 ? priority - 1 : priority; }

} // namespace tabrova
