#include "workbench/sound_words.h"

#include "platform/synthesizer.h"

namespace tabrova {

namespace {

struct TroubleRow {
    const char* sentence;
    std::string LanguageWords::*told;
    std::string LanguageWords::*here; // nullptr if something can be heard with it
};

constexpr TroubleRow Troubles[] = {
    {sound_trouble::NoAnswer, &LanguageWords::noAnswer, &LanguageWords::noAnswerHere},
    {sound_trouble::NoBank, &LanguageWords::noBank, &LanguageWords::noBankHere},
    {sound_trouble::NoOutput, &LanguageWords::noOutput, &LanguageWords::noOutputHere},
    {sound_trouble::BankUnreadable, &LanguageWords::bankUnreadable, nullptr},
};

} // namespace

QString toldTrouble(const QString& trouble, const LanguageWords& words) {
    QString told = trouble;
    for (const TroubleRow& row : Troubles)
        if (!(words.*row.told).empty()) told.replace(row.sentence, QString::fromStdString(words.*row.told));
    return told;
}

QString troubleHere(const QString& trouble, const LanguageWords& words) {
    for (const TroubleRow& row : Troubles)
        if (row.here && trouble.contains(row.sentence)) return QString::fromStdString(words.*row.here);
    return {};
}

QString soundBankFilter(const LanguageWords& words) {
    // The bar parts a filter's words from its patterns.
    return QString::fromStdString(words.soundBanks).remove('|') + "|*.sf2;*.sf3";
}

} // namespace tabrova
