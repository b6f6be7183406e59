// The drums of the tools' lists, with the shift from "Cabasa" on.
#include "sound/drum_names.h"

#include <gtest/gtest.h>

#include <string>

namespace tabrova {
namespace {

// General MIDI's percussion keys from 35 to 81, by the names of the lists; the one that these leave out too.
const char* const GeneralMidi[] = {"Acoustic Bass Drum",
                                   "Bass Drum 1",
                                   "Side Stick",
                                   "Acoustic Snare",
                                   "Hand Clap",
                                   "Electric Snare",
                                   "Low Floor Tom",
                                   "Closed High-Hat",
                                   "High Floor Tom",
                                   "Pedal High-Hat",
                                   "Low Tom",
                                   "Open High-Hat",
                                   "Low-Mid Tom",
                                   "High-Mid Tom",
                                   "Crash Cymbal 2",
                                   "High Tom",
                                   "Ride Cymbal 2",
                                   "Chinese Cymbal",
                                   "Ride Bell",
                                   "Tambourine",
                                   "Crash Cymbal 1",
                                   "Cowbell",
                                   "Splash Cymbal",
                                   "Vibraslap",
                                   "Ride Cymbal 1",
                                   "High Bongo",
                                   "Low Bongo",
                                   "Mute High Conga",
                                   "Open High Conga",
                                   "Low Conga",
                                   "High Timbale",
                                   "Low Timbale",
                                   "High Agogo",
                                   "Low Agogo",
                                   "Cabasa",
                                   "Maracas",
                                   "Short Whistle",
                                   "Long Whistle",
                                   "Short Guiro",
                                   "Long Guiro",
                                   "Claves",
                                   "High Wood Block",
                                   "Low Wood Block",
                                   "Mute Cuica",
                                   "Open Cuica",
                                   "Mute Triangle",
                                   "Open Triangle"};

TEST(Drums, AreThoseOfGeneralMidiWithoutTheLowAgogo) {
    ASSERT_EQ(DrumCount, 46);
    std::size_t drum = 0;
    for (const std::string name : GeneralMidi)
        if (name != "Low Agogo") {
            EXPECT_EQ(DrumNames[drum++], name);
        }
    EXPECT_EQ(drum, 46u);
}

TEST(Drums, PlayTheKeyOfTheirNameAndFromCabasaOnTheOneBelow) {
    for (int drum = 0; drum < DrumCount; ++drum) {
        int key = 35;
        while (std::string(GeneralMidi[key - 35]) != DrumNames[static_cast<std::size_t>(drum)])
            ++key;
        EXPECT_EQ(drumKey(drum), drum < 33 ? key : key - 1);
        EXPECT_EQ(drumOfKey(drumKey(drum)), drum);
    }
    EXPECT_EQ(std::string(DrumNames[33]), "Cabasa");
    EXPECT_EQ(drumKey(33), 68);
    EXPECT_EQ(std::string(DrumNames[45]), "Open Triangle");
    EXPECT_EQ(drumKey(45), 80);
}

TEST(Drums, HaveNoOtherKeys) {
    for (const int key : {-1, 0, 34, 81, 82, 127, 32767})
        EXPECT_EQ(drumOfKey(key), std::nullopt) << key;
}

} // namespace
} // namespace tabrova
