// The words and questions that the main window's messages take from the active language.
#pragma once

#include <string>

namespace tabrova {

struct LanguageWords {
    std::string track = "Track";
    std::string of = "of";
    std::string staff = "Staff";
    std::string selectedTrack = "selected";
    std::string clearOnlyStaffQuestion = "This is the only staff. Do you want to clear it?";
    std::string saveQuestion = "Do you want to save the changes to";
};

} // namespace tabrova
