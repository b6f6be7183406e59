#include "core/language/language_words.h"

namespace tabrova {

namespace {

struct WordRow {
    std::string_view name;
    std::string LanguageWords::*word;
};

constexpr WordRow Words[] = {
    {"track", &LanguageWords::track},
    {"of", &LanguageWords::of},
    {"staff", &LanguageWords::staff},
    {"selectedTrack", &LanguageWords::selectedTrack},
    {"saveQuestion", &LanguageWords::saveQuestion},
    {"percussionQuestion", &LanguageWords::percussionQuestion},
    {"onlyTrack", &LanguageWords::onlyTrack},
    {"removeTrackQuestion", &LanguageWords::removeTrackQuestion},
    {"clearOnlyStaffQuestion", &LanguageWords::clearOnlyStaffQuestion},
    {"longExport", &LanguageWords::longExport},
    {"foreignCharacter", &LanguageWords::foreignCharacter},
};

} // namespace

void LanguageWords::set(std::string_view name, std::string text) {
    for (const WordRow& row : Words)
        if (row.name == name) this->*row.word = std::move(text);
}

} // namespace tabrova
