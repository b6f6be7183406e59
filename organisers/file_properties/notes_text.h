// How much of a document's notes the box shows. A file may bring notes of any length; laying out a megabyte
// without a line end would take the toolkit minutes.
#pragma once

#include <string_view>

namespace tabrova {

constexpr std::size_t LongestShownNotes = 100'000;    // bytes
constexpr std::size_t LongestShownParagraph = 10'000; // bytes without a line end

// The beginning of the notes, as a rule all of them. A line end is never cut in two.
std::string_view shownNotes(std::string_view notes);

} // namespace tabrova
