// Whole numbers of 16 bits, as most of the player's numbers are kept.
#pragma once

#include <cstdint>

#include "base/Number.h"

namespace player {

/// Nearest whole number, halves to the even neighbour; values beyond 16 bits stay at the end of the range.
inline std::int16_t Whole16(double value) {
    return base::Saturated<std::int16_t>(base::RoundHalfEven(value));
}

/// One more, and no further than 16 bits go.
inline std::int16_t OneMore(std::int16_t value) {
    return Whole16(value + 1.0);
}

/// The same for the numbers the device takes.
inline int WholeInt(double value) {
    return base::Saturated<int>(base::RoundHalfEven(value));
}

}  // namespace player
