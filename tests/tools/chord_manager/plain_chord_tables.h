// The tables of the plain model of the chord manager, and how it reads a small file. Strings count from the
// lowest, notes from A.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace tabrova::testing {

constexpr int PlainStrings = 6;
constexpr int PlainOpenNotes[PlainStrings] = {40, 45, 50, 55, 59, 64};
inline const char* const PlainStringNames[PlainStrings] = {"Low E", "A", "D", "G", "B", "High E"};
inline const std::vector<std::string> PlainKeys = {"A",  "A#", "B", "C",  "C#", "D",
                                                   "D#", "E",  "F", "F#", "G",  "G#"};

struct PlainPlace {
    int string;
    int fret;
};

struct PlainNote {
    std::vector<PlainPlace> marks;
    std::vector<std::string> staff;
    PlainPlace root;
};

inline const std::vector<PlainNote> PlainNotes = {
    {{{1, 0}, {3, 2}}, {"mnA"}, {1, 0}},                 // A
    {{{1, 1}, {3, 3}}, {"mnAs", "mnA"}, {1, 1}},         // A#
    {{{1, 2}, {4, 0}}, {"mnB"}, {1, 2}},                 // B
    {{{1, 3}, {4, 1}}, {"mnC"}, {1, 3}},                 // C
    {{{1, 4}, {4, 2}}, {"mnCs", "mnC"}, {1, 4}},         // C#
    {{{2, 0}, {4, 3}}, {"mnD"}, {2, 0}},                 // D
    {{{2, 1}, {3, 4}}, {"mnDs", "mnD"}, {2, 1}},         // D#, whose G 4 is a B: deliberate
    {{{0, 0}, {2, 2}, {5, 0}}, {"mnE"}, {0, 0}},         // E
    {{{0, 1}, {2, 3}, {5, 1}}, {"mnF"}, {0, 1}},         // F
    {{{0, 2}, {2, 4}, {5, 2}}, {"mnFs", "mnF"}, {0, 2}}, // F#
    {{{0, 3}, {3, 0}, {5, 3}}, {"mnG"}, {0, 3}},         // G
    {{{0, 4}, {3, 1}, {5, 4}}, {"mnGs", "mnG"}, {0, 4}}, // G#
};

// The built-in types, "maj7-5" with the pattern of "maj7".
inline const std::map<std::string, std::string> PlainTypes = {
    {"Maj", "1000100100000000000000"},    {"m", "1001000100000000000000"},
    {"7", "1000100100100000000000"},      {"m7", "1001000100100000000000"},
    {"maj7", "1000100100010000000000"},   {"sus4", "1000010100000000000000"},
    {"7sus4", "1000010100100000000000"},  {"6", "1000100101000000000000"},
    {"m6", "1001000101000000000000"},     {"+", "1000100010000000000000"},
    {"0", "1001001001000000000000"},      {"7-5", "1000101000100000000000"},
    {"7+5", "1000100010100000000000"},    {"m7-5", "1001001000100000000000"},
    {"m maj7", "1001000100010000000000"}, {"maj7+5", "1000100010010000000000"},
    {"maj7-5", "1000100100010000000000"}, {"9", "1000100100100010000000"},
    {"m9", "1001000100100010000000"},     {"maj9", "1000100100010010000000"},
    {"7+9", "1000100100100001000000"},    {"7-9", "1000100100100100000000"},
    {"7+9-5", "1000101000100001000000"},  {"6 9", "1000100101000010000000"},
    {"9+5", "1000100010100010000000"},    {"9-5", "1000101000100010000000"},
    {"m9-5", "1001001000100010000000"},   {"11", "1000100100100010010000"},
    {"m11", "1001000100100010010000"},    {"11-9", "1000100100100100010000"},
    {"13", "1000100100100010010001"},     {"m13", "1001000100100010010001"},
    {"maj13", "1000100100010010010001"},
};

// Up to the first line end or comma outside double quotes, without the blanks in front and the quotes.
inline std::string plainFirstItem(const std::string& bytes) {
    std::string item;
    std::size_t at = 0;
    while (at < bytes.size() && bytes[at] == ' ')
        ++at;
    if (at < bytes.size() && bytes[at] == '"') {
        for (++at; at < bytes.size() && bytes[at] != '"'; ++at)
            item += bytes[at];
        return item;
    }
    for (bool quoted = false; at < bytes.size(); ++at) {
        if (bytes[at] == '\r' || bytes[at] == '\n' || (bytes[at] == ',' && !quoted)) break;
        if (bytes[at] == '"') quoted = !quoted;
        item += bytes[at];
    }
    return item;
}

// Whether a new file may have this name.
inline bool plainNameServes(const std::string& name) {
    if (name.empty() || name == "." || name == ".." || name.size() > 255) return false;
    for (const char character : name)
        if (character == '/' || character == '\\' || (character >= 0 && character < ' ') || character == 0x7F)
            return false;
    return true;
}

} // namespace tabrova::testing
