// The tables that make up the language lines, one function a room.
#pragma once

#include "core/language/language_lines.h"

namespace tabrova {

std::span<const LanguageLine> mainFormLines();
std::span<const FormLines> shellFormLines();
std::span<const FormLines> toolFormLines();
std::span<const FormLines> organiserFormLines();

} // namespace tabrova
