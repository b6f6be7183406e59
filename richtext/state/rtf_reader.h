// Reads rich text. What is damaged, unknown or beyond the bounds is passed over; nothing outside of the bytes
// is looked at, whatever they name.
#pragma once

#include "richtext/state/rich_text.h"

#include <string_view>

namespace tabrova {

// Whether it says of itself that it is rich text.
bool isRichText(std::string_view bytes);

RichText readRichText(std::string_view bytes);

// Any other bytes as paragraphs without a look: characters of UTF-8 or, if they are none, of the code page.
RichText readPlainText(std::string_view bytes);

} // namespace tabrova
