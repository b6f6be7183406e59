// The formats of one document. The toolkit looks each of them up among those with the same sum of their
// properties, so that a text with thousands of looks could keep it busy for minutes: of so many, the later
// ones are plain.
#pragma once

#include "richtext/document/rich_looks.h"

#include <set>
#include <vector>

namespace tabrova {

class RichFormats {
  public:
    explicit RichFormats(const RichScale& scale) : scale_(scale) {}

    static constexpr std::size_t MostLooks = 400; // of each kind

    QTextCharFormat of(const CharacterLook& look);
    // `hasTabs`: the paragraph's text has any, so that its stops count.
    QTextBlockFormat of(const ParagraphLook& look, bool hasTabs);
    CellLook plainIfTooMany(const CellLook& look);

  private:
    using Key = std::vector<long long>;
    static bool isKnown(std::set<Key>& known, const Key& key);

    const RichScale& scale_;
    std::set<Key> characters_;
    std::set<Key> tabs_;
    std::set<Key> cells_;
};

} // namespace tabrova
