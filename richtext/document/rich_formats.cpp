#include "richtext/document/rich_formats.h"

namespace tabrova {

namespace {

long long numberOf(std::optional<QRgb> color) { return color ? static_cast<long long>(*color) : -1; }

} // namespace

// One that is new is known from now on, if there is room.
bool RichFormats::isKnown(std::set<Key>& known, const Key& key) {
    if (known.contains(key)) return true;
    if (known.size() >= MostLooks) return false;
    known.insert(key);
    return true;
}

QTextCharFormat RichFormats::of(const CharacterLook& look) {
    const Key key = {look.font,
                     look.halfPoints,
                     look.bold,
                     look.italic,
                     look.strikeOut,
                     static_cast<int>(look.underline),
                     static_cast<int>(look.script),
                     static_cast<int>(look.capitals),
                     look.raised,
                     numberOf(look.color),
                     numberOf(look.background)};
    if (isKnown(characters_, key)) return characterFormat(look, scale_);
    CharacterLook plain;
    plain.bold = look.bold;
    plain.italic = look.italic;
    plain.link = look.link;
    return characterFormat(plain, scale_);
}

QTextBlockFormat RichFormats::of(const ParagraphLook& look, bool hasTabs) {
    if (!hasTabs) return paragraphFormat(look, false, scale_);
    Key key = {look.left, look.firstLine};
    for (const TabStop& stop : look.tabs) {
        key.push_back(stop.place);
        key.push_back(static_cast<int>(stop.side));
    }
    return paragraphFormat(look, isKnown(tabs_, key), scale_);
}

CellLook RichFormats::plainIfTooMany(const CellLook& look) {
    Key key = {numberOf(look.background), look.gap.value_or(-1), static_cast<int>(look.place)};
    for (const CellBorder& border : look.borders) {
        key.push_back(border.drawn ? border.width : -1);
        key.push_back(numberOf(border.color));
    }
    return isKnown(cells_, key) ? look : CellLook();
}

} // namespace tabrova
