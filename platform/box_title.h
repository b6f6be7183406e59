// The title that most message boxes carry, on every system.
#pragma once

namespace tabrova {

inline constexpr char BoxTitle[] = "Tabrova for Windows";

} // namespace tabrova
