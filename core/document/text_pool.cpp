#include "core/document/text_pool.h"

namespace tabrova {

namespace {

std::size_t byteAt(std::string_view text, std::size_t i) { return static_cast<unsigned char>(text[i]); }
std::size_t pairIndex(std::string_view text) { return byteAt(text, 0) * 256 + byteAt(text, 1); }

} // namespace

TextPool::TextPool() { clear(); }

void TextPool::clear() {
    texts_.clear();
    longer_.clear();
    ofOneCharacter_.fill(EmptyText);
    ofTwoCharacters_.assign(256 * 256, EmptyText);
    texts_.emplace_back();
    addStartingTexts();
}

void TextPool::addStartingTexts() {
    for (int number = 0; number <= 99; ++number)
        intern(std::to_string(number));
    for (const char* text :
         {"x", ">", "h", "s", "v", "w", "d", "g", "m", "f", "t", "l", "o", "r", ".", "\xB2"})
        intern(text);
    for (const char* size : {"0.5", "1.0", "1.5", "2.0", "2.5", "3.0"}) {
        intern(std::string("p") + size);
        intern(std::string("b") + size);
    }
    for (int count = 1; count <= 15; ++count)
        intern("r" + std::to_string(count));
}

TextId TextPool::add(std::string_view text) {
    texts_.emplace_back(text);
    return static_cast<TextId>(texts_.size() - 1);
}

TextId TextPool::intern(std::string_view text) {
    if (text.empty()) return EmptyText;
    if (text.size() <= 2) {
        TextId& id = text.size() == 1 ? ofOneCharacter_[byteAt(text, 0)] : ofTwoCharacters_[pairIndex(text)];
        if (id == EmptyText) id = add(text);
        return id;
    }
    const auto found = longer_.find(text);
    if (found != longer_.end()) return found->second;
    const TextId id = add(text);
    longer_.emplace(texts_.back(), id);
    return id;
}

} // namespace tabrova
