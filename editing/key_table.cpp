#include "editing/key_table.h"

#include "editing/key_codes.h"

namespace tabrova {

namespace {

constexpr bool Accepted = true;
constexpr bool Ignored = false;

constexpr KeyRow Keys[] = {
    {key::Right, ShiftRule::Any, KeyAction::Move, key::Right, Ignored},
    {key::Left, ShiftRule::Any, KeyAction::Move, key::Left, Ignored},
    {key::Up, ShiftRule::Any, KeyAction::Move, key::Up, Ignored},
    {key::Down, ShiftRule::Any, KeyAction::Move, key::Down, Ignored},
    {key::X, ShiftRule::Any, KeyAction::StoreNote, key::X, Ignored},
    {key::J, ShiftRule::Any, KeyAction::StoreNote, key::J, Ignored},
    {key::Enter, ShiftRule::Clear, KeyAction::StoreNote, key::Enter, Accepted},
    {key::Space, ShiftRule::Clear, KeyAction::StoreNote, code::OpenedRepeat, Accepted},
    {key::Space, ShiftRule::Set, KeyAction::StoreNote, code::ClosedRepeatPanel, Accepted},
    {key::Delete, ShiftRule::Clear, KeyAction::StoreNote, key::Delete, Accepted},
    {key::Delete, ShiftRule::Set, KeyAction::StoreTechnique, key::Delete, Accepted},
    {key::Backspace, ShiftRule::Any, KeyAction::StoreTechnique, key::Backspace, Ignored},
    {key::U, ShiftRule::Clear, KeyAction::RemoveBarMark, key::U, Accepted},
    {key::B, ShiftRule::Any, KeyAction::StoreTechnique, key::B, Ignored},
    {'G', ShiftRule::Clear, KeyAction::StoreTechnique, 'G', Accepted},
    {'K', ShiftRule::Clear, KeyAction::StoreTechnique, 'K', Accepted},
};

struct TechniqueKey {
    int code;
    std::string_view text;
};

constexpr TechniqueKey TechniqueKeys[] = {
    {'H', "h"}, {'S', "s"}, {'V', "v"}, {'W', "w"}, {'D', "d"}, {'G', "g"}, {'M', "m"},
    {'F', "f"}, {'T', "t"}, {'L', "l"}, {'O', "o"}, {'R', "r"}, {'Z', "."}, {'K', "\xB2"},
};

constexpr std::string_view Bends[] = {"p0.5", "p1.0", "p1.5", "p2.0", "p2.5", "p3.0",
                                      "b0.5", "b1.0", "b1.5", "b2.0", "b2.5", "b3.0"};

bool allows(ShiftRule rule, int shift) {
    const bool set = (shift & key::ShiftBit) != 0;
    return rule == ShiftRule::Any || set == (rule == ShiftRule::Set);
}

bool isDigit(int keyCode) { return keyCode >= key::Digit0 && keyCode <= key::Digit9; }

} // namespace

std::optional<KeyRow> keyRow(int keyCode, int shift) {
    if (isDigit(keyCode)) return KeyRow{keyCode, ShiftRule::Any, KeyAction::StoreNote, keyCode, Ignored};
    bool known = false;
    for (const KeyRow& row : Keys) {
        if (row.keyCode != keyCode) continue;
        if (allows(row.shift, shift)) return row;
        known = true;
    }
    // The remaining technique keys look at no modifier and percussion ignores them.
    if (!known && keyCode < code::FirstBend && !techniqueText(keyCode).empty())
        return KeyRow{keyCode, ShiftRule::Any, KeyAction::StoreTechnique, keyCode, Ignored};
    return std::nullopt;
}

std::string_view techniqueText(int keyCode) {
    if (keyCode >= code::FirstBend && keyCode <= code::LastBend) return Bends[keyCode - code::FirstBend];
    for (const TechniqueKey& technique : TechniqueKeys)
        if (technique.code == keyCode) return technique.text;
    return {};
}

bool isArrowKey(int keyCode) { return keyCode >= key::Left && keyCode <= key::Down; }

} // namespace tabrova
