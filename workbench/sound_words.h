// What the sound has to say, in the words' language.
#pragma once

#include "core/language/language_words.h"

#include <QString>

namespace tabrova {

// As the list of devices names it; windows show it in their language.
inline constexpr char SynthesizerName[] = "Built-in Synthesizer";

// The synthesizer's trouble, sentence by sentence.
QString toldTrouble(const QString& trouble, const LanguageWords& words);
// In one short line, with the way to mend it; "" for a trouble with which something can be heard.
QString troubleHere(const QString& trouble, const LanguageWords& words);
// A file chooser's filter: "Sound Banks|*.sf2;*.sf3".
QString soundBankFilter(const LanguageWords& words);

} // namespace tabrova
