// The words of a source, which is UTF-8, as a document keeps them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tabrova {

// A character that the code page does not hold, or a malformed sequence, gives std::nullopt.
std::optional<std::string> codePageFromUtf8(std::string_view utf8);

} // namespace tabrova
