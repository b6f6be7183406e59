#include "richtext/state/rtf_lists.h"

#include <algorithm>
#include <utility>

namespace tabrova {

namespace {

constexpr int MostCounted = 3000;

enum NumberKind { Decimal = 0, RomanCapitals, RomanSmall, LetterCapitals, LetterSmall, None = 255 };

constexpr std::pair<int, const char*> RomanSigns[] = {
    {1000, "M"}, {900, "CM"}, {500, "D"}, {400, "CD"}, {100, "C"}, {90, "XC"}, {50, "L"},
    {40, "XL"},  {10, "X"},   {9, "IX"},  {5, "V"},    {4, "IV"},  {1, "I"}};

QString roman(int number) {
    QString text;
    for (const auto& [value, sign] : RomanSigns)
        for (; number >= value; number -= value)
            text += sign;
    return text;
}

// "a" to "z", then "aa" to "zz", as lists go on.
QString letters(int number) {
    constexpr int Letters = 26;
    number = std::max(number, 1);
    return QString((number - 1) / Letters + 1, QChar('a' + (number - 1) % Letters));
}

QString sign(int kind, int number) {
    number = std::min(number, MostCounted);
    switch (kind) {
    case Decimal:
        return QString::number(number) + '.';
    case RomanCapitals:
        return roman(number) + '.';
    case RomanSmall:
        return roman(number).toLower() + '.';
    case LetterCapitals:
        return letters(number).toUpper() + '.';
    case LetterSmall:
        return letters(number) + '.';
    case None:
        return {};
    default:
        return QChar(0x2022);
    }
}

} // namespace

void RtfLists::beginList() {
    if (lists_.size() < MostLists) lists_.emplace_back();
}

void RtfLists::setLevelNumbers(int kind) {
    if (!lists_.empty() && lists_.back().kinds.size() < Levels) lists_.back().kinds.push_back(kind);
}

void RtfLists::setLevelStart(int number) {
    if (lists_.empty() || lists_.back().kinds.empty()) return;
    lists_.back().starts[lists_.back().kinds.size() - 1] = std::clamp(number, 0, MostCounted);
}

void RtfLists::setListId(int id) {
    if (!lists_.empty()) byId_[id] = lists_.size() - 1;
}

void RtfLists::setOverrideNumber(int number) {
    const auto found = byId_.find(overrideList_);
    if (found != byId_.end() && byNumber_.size() < MostLists) byNumber_[number] = found->second;
}

RtfLists::List* RtfLists::list(int number) {
    const auto found = byNumber_.find(number);
    return found == byNumber_.end() ? nullptr : &lists_[found->second];
}

void RtfLists::count(int number, int level) {
    List* at = list(number);
    if (!at || level < 0 || level >= Levels) return;
    ++at->counts[static_cast<std::size_t>(level)];
    std::fill(at->counts.begin() + level + 1, at->counts.end(), 0);
}

QString RtfLists::nextSign(int number, int level) {
    count(number, level);
    const List* at = list(number);
    const auto place = static_cast<std::size_t>(level);
    if (!at || level < 0 || place >= at->kinds.size()) return sign(-1, 0);
    return sign(at->kinds[place], at->starts[place] + at->counts[place] - 1);
}

} // namespace tabrova
