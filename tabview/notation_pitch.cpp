#include "tabview/notation_pitch.h"

#include <array>

namespace tabrova {

namespace {

constexpr int PitchesInOctave = 12;
constexpr int StepsInOctave = 7;
constexpr int StepHeight = 3;
constexpr int LowestPitchY = 159;

struct PitchClass {
    int step;
    bool sharp;
};

constexpr PitchClass PitchClasses[PitchesInOctave] = {{0, false}, {0, true},  {1, false}, {1, true},
                                                      {2, false}, {3, false}, {3, true},  {4, false},
                                                      {4, true},  {5, false}, {5, true},  {6, false}};

// From here up the notes deliberately stand one pixel higher than their steps.
constexpr int FirstRaisedPitch = 106;

constexpr std::array<StaffPlace, HighestNotatedPitch + 1> makePlaces() {
    std::array<StaffPlace, HighestNotatedPitch + 1> places{};
    for (int pitch = 0; pitch <= HighestNotatedPitch; ++pitch) {
        const PitchClass& kind = PitchClasses[pitch % PitchesInOctave];
        const int steps = StepsInOctave * (pitch / PitchesInOctave) + kind.step;
        const int raised = pitch >= FirstRaisedPitch ? 1 : 0;
        places[static_cast<std::size_t>(pitch)] = {LowestPitchY - StepHeight * steps - raised, kind.sharp};
    }
    return places;
}

constexpr std::array<StaffPlace, HighestNotatedPitch + 1> Places = makePlaces();

constexpr std::array<int, StringsPerTrack> StringBases = {51, 46, 42, 37, 32, 27};

} // namespace

std::optional<StaffPlace> staffPlaceOf(int pitch) {
    if (pitch < 0 || pitch > HighestNotatedPitch) return std::nullopt;
    return Places[static_cast<std::size_t>(pitch)];
}

std::optional<std::int16_t> notatedPitch(const Document& document, std::string_view text, int string,
                                         int row) {
    const auto fret = toNumber(text);
    if (!fret || row < 0 || row >= static_cast<int>(document.TuningTable.size())) return std::nullopt;
    return toInteger16(*fret + document.TuningTable[static_cast<std::size_t>(row)] +
                       StringBases[static_cast<std::size_t>(string)]);
}

} // namespace tabrova
