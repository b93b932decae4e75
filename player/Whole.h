// Whole numbers of 16 bits, as most of the player's numbers are kept.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "base/Number.h"

namespace player {

/// Nearest whole number, halves to the even neighbour; values beyond 16 bits stay at the end of the range.
inline std::int16_t Whole16(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(
        std::clamp<std::int64_t>(base::RoundHalfEven(value), Limits::min(), Limits::max()));
}

/// One more, and no further than 16 bits go.
inline std::int16_t OneMore(std::int16_t value) {
    return Whole16(value + 1.0);
}

/// The same for the numbers the device takes.
inline int WholeInt(double value) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(
        std::clamp<std::int64_t>(base::RoundHalfEven(value), Limits::min(), Limits::max()));
}

}  // namespace player
