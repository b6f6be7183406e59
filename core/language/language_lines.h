// Which line of a language file feeds what. The file is positional: the number of a line decides what its
// text is for. Each form reads its own lines; their texts here are the built-in ones, and the default
// language file holds the same.
//
// Lines 1 to 343 are fixed for all language files. Lines from 350 on are further texts of the forms that a
// shorter file leaves at the built-in ones.
#pragma once

#include <span>
#include <string_view>

namespace tabrova {

enum class LineUse : unsigned char {
    Title,   // of the form
    Caption, // of a control, a menu item or, as NAME(INDEX), a tab
    ToolTip, // of a control
    Message, // held by the form for its messages; the target is the message's name
};

struct LanguageLine {
    int number; // from 1
    LineUse use;
    const char* target; // the control's or the message's name; "" for a title
    const char* text;   // UTF-8
};

struct FormLines {
    const char* form;
    std::span<const LanguageLine> lines; // in order of their numbers
};

// All forms that read lines.
std::span<const FormLines> languageForms();

// The lines of one form; none for a form that reads none.
std::span<const LanguageLine> languageLinesOf(std::string_view form);

// The last line that any form reads.
int lastLanguageLine();

namespace language {

constexpr LanguageLine title(int number, const char* text) { return {number, LineUse::Title, "", text}; }
constexpr LanguageLine caption(int number, const char* target, const char* text) {
    return {number, LineUse::Caption, target, text};
}
constexpr LanguageLine toolTip(int number, const char* target, const char* text) {
    return {number, LineUse::ToolTip, target, text};
}
constexpr LanguageLine message(int number, const char* name, const char* text) {
    return {number, LineUse::Message, name, text};
}

} // namespace language

} // namespace tabrova
