// From a fret to a MIDI note, and from the lists' texts to numbers, as every sound of the document reads
// them. What is not there or is no number gives std::nullopt: the one message that needs it is then not sent.
#pragma once

#include "core/document/document.h"

#include <array>

namespace tabrova {

constexpr int GuitarChannel = 0;
constexpr int PercussionChannel = 9;

// The open strings' MIDI notes in standard tuning, string 0 to 5.
constexpr std::array<int, StringsPerTrack> OpenStringNotes = {64, 59, 55, 50, 45, 40};

// fret + open note + tuning - 13, as a 16-bit number. `tuningIndex` counts into TuningTable.
std::optional<std::int16_t> frettedPitch(const Document& document, std::string_view fret, int string,
                                         int tuningIndex);

// The row of one of the track lists as a number, whole or not; rows count from 0.
std::optional<double> listNumber(const std::vector<std::string>& list, int row);
std::optional<std::int16_t> listInteger(const std::vector<std::string>& list, int row);

} // namespace tabrova
