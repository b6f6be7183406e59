// The texts of cells, each kept once. A cell holds the number of its text, so that any text may stand in a
// cell while a grid costs one byte a cell as long as its columns use common texts.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tabrova {

using TextId = std::uint32_t;

// The id of "", which every pool gives it.
constexpr TextId EmptyText = 0;

class TextPool {
  public:
    // Starts with "", the frets, the drum keys, the marks and the techniques, so that these have ids below
    // 256.
    TextPool();

    TextId intern(std::string_view text);
    // `id` must come from this pool. The view lasts until the pool is cleared.
    std::string_view text(TextId id) const { return texts_[id]; }
    // Ids that the pool has given out, the starting texts included.
    std::size_t size() const { return texts_.size(); }
    // Back to the starting texts: every other id is void.
    void clear();

  private:
    TextId add(std::string_view text);
    void addStartingTexts();

    std::deque<std::string> texts_;
    std::array<TextId, 256> ofOneCharacter_{};
    std::vector<TextId> ofTwoCharacters_;
    std::unordered_map<std::string_view, TextId> longer_;
};

} // namespace tabrova
