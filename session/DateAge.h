// The dates of the settings rows: numbers yyyymmdd. The age of one is the plain difference of two such
// numbers, not a count of days. The text of a row may be anything, so both stay in their range.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/Number.h"
#include "ports/Clock.h"

namespace session {

inline std::int32_t DateOf(std::string_view text) {
    return base::Saturated<std::int32_t>(base::WholeVal(text));
}

inline std::int32_t Today(const ports::Clock& clock) {
    return DateOf(ports::DateStamp(clock.Today()));
}

inline std::int32_t AgeOf(std::int32_t date, const ports::Clock& clock) {
    return base::Saturated<std::int32_t>(std::int64_t{Today(clock)} - date);
}

}  // namespace session
