#include "organisers/file_properties/notes_text.h"

#include <algorithm>

namespace tabrova {

namespace {

// Behind the first paragraph that is too long, as much of it as can be shown; the whole text if there is
// none.
std::size_t lengthByParagraphs(std::string_view notes) {
    std::size_t start = 0;
    while (notes.size() - start > LongestShownParagraph) {
        const std::size_t end = notes.find_first_of("\r\n", start);
        if (std::min(end, notes.size()) - start > LongestShownParagraph) return start + LongestShownParagraph;
        start = end + 1;
    }
    return notes.size();
}

} // namespace

std::string_view shownNotes(std::string_view notes) {
    std::size_t length = std::min(lengthByParagraphs(notes), LongestShownNotes);
    if (length < notes.size() && length > 0 && notes[length - 1] == '\r') --length;
    return notes.substr(0, length);
}

} // namespace tabrova
