// What the help tells: its questions with their answers, in the order of the list. They are the same in every
// language.
#pragma once

#include <span>

namespace tabrova {

struct HelpTopic {
    const char* question; // follows "How do I "
    const char* answer;
};

std::span<const HelpTopic> helpTopics();

// The text before a topic is chosen.
const char* helpWelcome();

} // namespace tabrova
