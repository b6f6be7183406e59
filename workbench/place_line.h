// The status bar's words for where the player is: staff and column of the cursor or of the music, the speed
// and the file.
#pragma once

#include "core/document/document.h"
#include "core/language/language_words.h"

#include <QString>

#include <optional>

namespace tabrova {

struct PlaceFacts {
    std::optional<int> sounding; // the column of the document that is heard, from 0; none when nothing plays
    bool doubleTime = false;
    QString fileName; // without its folder; "" for a document that has none yet
    QString trouble;  // why nothing can be heard; "" when all is well. Takes the place of speed and file
};

// The quarter notes of a minute at this many columns a minute, in at most two digits behind the point: "120",
// "122.5".
QString quarterNotes(int columnsAMinute);
// "480 columns a minute, ♩ = 120", in the words' language.
QString speedText(int columnsAMinute, const LanguageWords& words);

QString placeLine(const Document& document, const PlaceFacts& facts, const LanguageWords& words);

} // namespace tabrova
