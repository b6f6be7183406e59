// The statistics line: where the cursor stands, in words, or in debug mode by the fields.
#pragma once

#include "core/document/document.h"
#include "core/language/language_words.h"

#include <string>

namespace tabrova {

std::string statisticsLine(const Document& document, const LanguageWords& words);
std::string debugLine(const Document& document);

} // namespace tabrova
