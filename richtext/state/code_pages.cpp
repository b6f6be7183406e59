#include "richtext/state/code_pages.h"

#include "core/text/code_page.h"

#include <array>
#include <utility>

namespace tabrova {

namespace {

struct CharacterSetRow {
    int characterSet;
    int codePage;
};

constexpr CharacterSetRow CharacterSets[] = {
    {0, 1252},   {2, SymbolCodePage}, {77, 10000}, {128, 932},  {129, 949},  {130, 1361}, {134, 936},
    {136, 950},  {161, 1253},         {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257},
    {204, 1251}, {222, 874},          {238, 1250}, {254, 437},  {255, 850},
};

// What a code page is called where its number behind "windows-" is not its name.
struct CodePageName {
    int codePage;
    const char* name;
};

constexpr CodePageName CodePageNames[] = {
    {437, "IBM437"},   {850, "IBM850"},       {852, "IBM852"},  {866, "IBM866"}, {932, "Shift_JIS"},
    {936, "GBK"},      {949, "windows-949"},  {950, "Big5"},    {1361, "johab"}, {10000, "macintosh"},
    {20866, "KOI8-R"}, {28591, "ISO-8859-1"}, {65001, "UTF-8"},
};

std::string nameOf(int codePage) {
    for (const CodePageName& row : CodePageNames)
        if (row.codePage == codePage) return row.name;
    return "windows-" + std::to_string(codePage);
}

// Of the font of Greek letters and signs: the capital letters, the small ones, and what else lessons use.
constexpr char16_t GreekCapitals[] = u"ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ";
constexpr char16_t GreekSmall[] = u"αβχδεφγηιϕκλμνοπθρστυϖωξψζ";

using SymbolRow = std::pair<unsigned char, char16_t>;

constexpr SymbolRow SymbolSigns[] = {
    {0xA3, u'≤'}, {0xA5, u'∞'}, {0xA7, u'♣'}, {0xA8, u'♦'}, {0xA9, u'♥'}, {0xAA, u'♠'},
    {0xAB, u'↔'}, {0xAC, u'←'}, {0xAD, u'↑'}, {0xAE, u'→'}, {0xAF, u'↓'}, {0xB0, u'°'},
    {0xB1, u'±'}, {0xB3, u'≥'}, {0xB4, u'×'}, {0xB7, u'•'}, {0xB8, u'÷'}, {0xB9, u'≠'},
    {0xBB, u'≈'}, {0xBC, u'…'}, {0xD0, u'∠'}, {0xD6, u'√'}, {0xD7, u'⋅'}, {0xDB, u'⇔'},
    {0xDC, u'⇐'}, {0xDD, u'⇑'}, {0xDE, u'⇒'}, {0xDF, u'⇓'}, {0xE0, u'◊'},
};

constexpr SymbolRow PictureSigns[] = {
    {0x6C, u'●'}, {0x6E, u'■'}, {0x6F, u'□'}, {0x71, u'❑'}, {0x75, u'◆'}, {0x76, u'❖'},
    {0x77, u'⬥'}, {0x9F, u'•'}, {0xA1, u'○'}, {0xA7, u'▪'}, {0xA8, u'◻'}, {0xB2, u'✧'},
    {0xD8, u'➢'}, {0xDF, u'←'}, {0xE0, u'→'}, {0xE1, u'↑'}, {0xE2, u'↓'}, {0xE8, u'➔'},
    {0xF0, u'⇨'}, {0xFB, u'✗'}, {0xFC, u'✓'}, {0xFE, u'☑'},
};

template <std::size_t Count>
char16_t signAt(const SymbolRow (&rows)[Count], unsigned char place, char16_t otherwise) {
    for (const auto& [at, sign] : rows)
        if (at == place) return sign;
    return otherwise;
}

} // namespace

int codePageOfCharacterSet(int characterSet, int textCodePage) {
    for (const CharacterSetRow& row : CharacterSets)
        if (row.characterSet == characterSet) return row.codePage;
    return textCodePage;
}

void CodePageText::add(std::string_view bytes, int codePage) {
    bytes_ += bytes;
    codePage_ = codePage;
}

QString CodePageText::take() {
    const std::string bytes = std::exchange(bytes_, {});
    QStringDecoder* known = codePage_ == WesternCodePage ? nullptr : decoder(codePage_);
    if (!known) return QString::fromStdString(utf8FromCodePage(bytes));
    return known->decode(QByteArrayView(bytes));
}

QStringDecoder* CodePageText::decoder(int codePage) {
    auto found = decoders_.find(codePage);
    if (found == decoders_.end())
        found = decoders_
                    .emplace(codePage,
                             QStringDecoder(nameOf(codePage).c_str(), QStringConverter::Flag::Stateless))
                    .first;
    return found->second.isValid() ? &found->second : nullptr;
}

bool isPictureFont(const QString& font) {
    const QString name = font.toLower();
    return name == "symbol" || name.contains("wingding") || name.contains("webding");
}

QChar symbolCharacter(const QString& font, unsigned char place) {
    constexpr char16_t Bullet = u'\u2022';
    const QString name = font.toLower();
    if (name.contains("wingding") || name.contains("webding"))
        return QChar(signAt(PictureSigns, place, place <= 0x20 ? u' ' : Bullet));
    if (place >= 'A' && place <= 'Z') return QChar(GreekCapitals[place - 'A']);
    if (place >= 'a' && place <= 'z') return QChar(GreekSmall[place - 'a']);
    return QChar(signAt(SymbolSigns, place, place < 0x80 ? place : Bullet));
}

} // namespace tabrova
