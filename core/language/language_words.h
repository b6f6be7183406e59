// The words and questions that the main window's messages take from the active language, in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace tabrova {

struct LanguageWords {
    std::string track = "Track";
    std::string of = "of";
    std::string staff = "Staff";
    std::string selectedTrack = "selected (Click here to change)";
    std::string saveQuestion = "Do you want to save the changes to";
    std::string percussionQuestion = "Is this to be a percussion track?";
    std::string onlyTrack = "This is the only track. It cannot be removed.";
    std::string removeTrackQuestion = "Do you want to remove the track";
    std::string clearOnlyStaffQuestion = "This is the only staff. Do you want to clear it?";
    std::string longExport = "This document has more than 20 staves. The export may take a while.";

    std::string foreignCharacter = "A tablature file cannot hold this character.";

    // Takes a message of the main form's language lines by its name; other names are passed over.
    void set(std::string_view name, std::string text);
};

} // namespace tabrova
