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
    {"keys", &LanguageWords::keys},
    {"keysOnPage", &LanguageWords::keysOnPage},
    {"arrowKeys", &LanguageWords::arrowKeys},
    {"moveCursor", &LanguageWords::moveCursor},
    {"digits", &LanguageWords::digits},
    {"writeFret", &LanguageWords::writeFret},
    {"recentDocuments", &LanguageWords::recentDocuments},
    {"examples", &LanguageWords::examples},
    {"toolkit", &LanguageWords::toolkit},
    {"noBank", &LanguageWords::noBank},
    {"bankUnreadable", &LanguageWords::bankUnreadable},
    {"noOutput", &LanguageWords::noOutput},
    {"noAnswer", &LanguageWords::noAnswer},
    {"soundBanks", &LanguageWords::soundBanks},
    {"place", &LanguageWords::place},
    {"playing", &LanguageWords::playing},
    {"speed", &LanguageWords::speed},
    {"fileGone", &LanguageWords::fileGone},
    {"notSaved", &LanguageWords::notSaved},
    {"noBankHere", &LanguageWords::noBankHere},
    {"noOutputHere", &LanguageWords::noOutputHere},
    {"noAnswerHere", &LanguageWords::noAnswerHere},
};

} // namespace

void LanguageWords::set(std::string_view name, std::string text) {
    for (const WordRow& row : Words)
        if (row.name == name) this->*row.word = std::move(text);
}

} // namespace tabrova
