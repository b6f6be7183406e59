// The drums as the lists of the tools name them. A drum's key is its place in the list + 35. The names leave
// out the low agogo, so that from "Cabasa" on each deliberately plays the key one below the one that General
// MIDI gives to its name, and key 81 has none.
#pragma once

#include <array>
#include <optional>

namespace tabrova {

constexpr std::array DrumNames = {
    "Acoustic Bass Drum", "Bass Drum 1",    "Side Stick",     "Acoustic Snare",
    "Hand Clap",          "Electric Snare", "Low Floor Tom",  "Closed High-Hat",
    "High Floor Tom",     "Pedal High-Hat", "Low Tom",        "Open High-Hat",
    "Low-Mid Tom",        "High-Mid Tom",   "Crash Cymbal 2", "High Tom",
    "Ride Cymbal 2",      "Chinese Cymbal", "Ride Bell",      "Tambourine",
    "Crash Cymbal 1",     "Cowbell",        "Splash Cymbal",  "Vibraslap",
    "Ride Cymbal 1",      "High Bongo",     "Low Bongo",      "Mute High Conga",
    "Open High Conga",    "Low Conga",      "High Timbale",   "Low Timbale",
    "High Agogo",         "Cabasa",         "Maracas",        "Short Whistle",
    "Long Whistle",       "Short Guiro",    "Long Guiro",     "Claves",
    "High Wood Block",    "Low Wood Block", "Mute Cuica",     "Open Cuica",
    "Mute Triangle",      "Open Triangle",
};

constexpr int DrumCount = static_cast<int>(DrumNames.size());
constexpr int FirstDrumKey = 35; // MIDI

// The MIDI key of the drum at this place of the list, from 0.
constexpr int drumKey(int drum) { return FirstDrumKey + drum; }

// The drum that has this key.
constexpr std::optional<int> drumOfKey(int key) {
    return key >= FirstDrumKey && key < FirstDrumKey + DrumCount ? std::optional(key - FirstDrumKey)
                                                                 : std::nullopt;
}

} // namespace tabrova
