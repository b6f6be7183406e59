#include "tools/scale_manager/scale_tables.h"

namespace tabrova {

namespace {

// Many later ones cover only the three lowest strings: their box is one octave high.
constexpr ScaleTypeRow ScaleTypes[] = {
    {"Major", {"024", "024", "124", "124", "245", "9"}},
    {"Natural Minor", {"023", "023", "024", "02", "013", "0"}},
    {"Harmonic Minor", {"023", "023", "024", "02", "0145", "9"}},
    {"Melodic Minor", {"023", "024", "124", "02", "0245", "9"}},
    {"Arabian", {"024", "013", "1246", "235", "45", "9"}},
    {"Balinese", {"013", "013", "235", "235", "9", "9"}},
    {"Byzantine", {"014", "023", "1236", "245", "45", "9"}},
    {"Diminished Scale HW", {"0134", "124", "023", "0134", "235", "9"}},
    {"Diminished Scale WH", {"023", "0134", "023", "9", "9", "9"}},
    {"East Indian Purvi", {"014", "123", "123", "13", "45", "9"}},
    {"Enigmatic", {"014", "13", "0123", "13", "1345", "9"}},
    {"Harmonic Major", {"024", "023", "124", "124", "14", "0"}},
    {"Hijaz", {"014", "023", "023", "12", "013", "0"}},
    {"Hungarian Gypsy", {"024", "1234", "24", "13", "012", "0"}},
    {"Hungarian Major", {"034", "124", "02", "9", "9", "9"}},
    {"Hungarian Minor", {"023", "123", "12", "9", "9", "9"}},
    {"Neopolitan Major", {"013", "024", "12", "9", "9", "9"}},
    {"Oriental", {"014", "014", "02", "9", "9", "9"}},
    {"Persian", {"014", "013", "12", "9", "9", "9"}},
    {"Whole Tone Scale", {"024", "13", "0", "9", "9", "9"}},
    {"Major Pentatonic", {"024", "24", "2", "9", "9", "9"}},
    {"Minor Pentatonic", {"023", "24", "2", "9", "9", "9"}},
    {"Suspended Pentatonic", {"02", "02", "02", "9", "9", "9"}},
    {"Japanese In Sen Scale", {"01", "02", "1", "9", "9", "9"}},
    {"2nd Mode of In Sen", {"04", "14", "02", "9", "9", "9"}},
    {"Dorian", {"023", "024", "12", "9", "9", "9"}},
    {"Phrygian", {"013", "023", "12", "9", "9", "9"}},
    {"Lydian", {"024", "124", "12", "9", "9", "9"}},
    {"Mixolydian", {"024", "024", "02", "9", "9", "9"}},
    {"Locrian", {"013", "013", "02", "9", "9", "9"}},
    {"Phrygian #6", {"013", "024", "02", "9", "9", "9"}},
    {"Lydian Augmented", {"024", "134", "12", "9", "9", "9"}},
    {"Lydian Dominant", {"024", "124", "02", "9", "9", "9"}},
    {"Fifth Mode", {"024", "023", "02", "9", "9", "9"}},
    {"Locrian #2", {"023", "013", "02", "9", "9", "9"}},
    {"Basic Pentatonic", {"03", "02", "02", "02", "03", "03"}},
};

constexpr std::size_t LastMirroredFret = 17;

} // namespace

int markPosition(NeckView view, std::size_t fret) {
    const bool mirrored = view == NeckView::LeftHanded && fret <= LastMirroredFret;
    return RightHandedMarks[mirrored ? LastMirroredFret - fret : fret];
}

std::span<const ScaleTypeRow> builtInScales() { return ScaleTypes; }

} // namespace tabrova
