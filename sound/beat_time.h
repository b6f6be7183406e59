// From a tempo to the interval of a timer.
#pragma once

#include "core/text/conversions.h"

namespace tabrova {

// Milliseconds from one beat, or step, to the next at so many a minute, which must not be 0.
inline int beatTime(int perMinute) {
    constexpr double MillisecondsOfMinute = 60000.0;
    return static_cast<int>(roundHalfToEven(MillisecondsOfMinute / perMinute));
}

} // namespace tabrova
