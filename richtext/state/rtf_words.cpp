#include "richtext/state/rtf_words.h"

#include <unordered_map>

namespace tabrova {

namespace {

using WordMap = std::unordered_map<std::string_view, const RtfWordRow*>;

WordMap allWords() {
    WordMap words;
    for (const auto rows :
         {characterWords(), paragraphWords(), tableWords(), textWords(), destinationWords(), headerWords()})
        for (const RtfWordRow& row : rows)
            words.emplace(row.name, &row);
    return words;
}

} // namespace

const RtfWordRow* findRtfWord(std::string_view name) {
    static const WordMap words = allWords();
    const auto found = words.find(name);
    return found == words.end() ? nullptr : found->second;
}

} // namespace tabrova
