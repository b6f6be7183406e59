#include "editing/chord_entry.h"

#include "editing/key_codes.h"

namespace tabrova {

namespace {

constexpr int HighestChordFret = 6;

} // namespace

bool ChordEntry::AddChordToDocument(const StringFrets& frets) {
    if (player_.playing) return true;
    if (!isGuitarTrack()) return false;
    const Act act(parts_.acts, "AddChordToDocument");
    emptyColumn();
    const std::int16_t string = document_.CurrentString;
    for (int each = 0; each < StringsPerTrack; ++each) {
        document_.CurrentString = static_cast<std::int16_t>(each);
        for (int digit = 0; digit <= HighestChordFret; ++digit)
            if (frets[static_cast<std::size_t>(each)] == std::to_string(digit))
                editor_.DrawAndStoreNote(key::Digit0 + digit);
    }
    document_.CurrentString = string;
    editor_.refreshdrawing();
    return true;
}

bool ChordEntry::RemoveChordFromDocument() {
    if (player_.playing) return true;
    if (!isGuitarTrack()) return false;
    const Act act(parts_.acts, "RemoveChordFromDocument");
    emptyColumn();
    editor_.refreshdrawing();
    return true;
}

void ChordEntry::emptyColumn() {
    const int column = editor_.cursor().column();
    const int firstRow = (document_.CurrentTrack - 1) * StringsPerTrack;
    for (int row = firstRow; row < firstRow + StringsPerTrack; ++row)
        document_.setNote(column, row, "");
}

} // namespace tabrova
