// The control words that mean something, each with what it does. Words that stand in no table are passed
// over.
#pragma once

#include "richtext/state/rtf_state.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace tabrova {

struct RtfNumber {
    std::optional<int> told;

    bool isOn() const { return told.value_or(1) != 0; }
    int value() const { return told.value_or(0); }
    // A length on the page, 22 inches at the most.
    int twips() const { return std::clamp(value(), -31680, 31680); }
};

enum class WordUse {
    Look,      // wherever it stands
    Character, // the same, and it is one itself
    Text,      // in the body alone
    Opens,     // says what its group holds
    Part,      // the same, and inside of a silent group too
};

struct RtfWordRow {
    std::string_view name;
    WordUse use;
    void (*act)(RtfState& state, RtfNumber number);
};

std::span<const RtfWordRow> characterWords();
std::span<const RtfWordRow> paragraphWords();
std::span<const RtfWordRow> tableWords();
std::span<const RtfWordRow> textWords();
std::span<const RtfWordRow> destinationWords();
std::span<const RtfWordRow> headerWords();

// nullptr for a word without a meaning here.
const RtfWordRow* findRtfWord(std::string_view name);

} // namespace tabrova
