// Numbers as the system reads, rounds and writes them.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace base {

/// Nearest whole number, halves to the even neighbour (0.5 gives 0, 1.5 gives 2). Not-a-number gives 0;
/// values beyond 64 bits are clamped.
std::int64_t RoundHalfEven(double value);

/// Reads a decimal number from the front of `text`, blanks skipped, and stops at the first character that is
/// no part of one: "12abc" is 12, "abc" is 0. Never fails.
double Val(std::string_view text);

/// The same as a whole number, halves to the even neighbour; beyond 64 bits it stays at the end of the range.
/// Texts of a store may be anything, so a number that must be whole is read with this and never cast.
std::int64_t WholeVal(std::string_view text);

/// The value, or the end of the range of `Int` that it lies beyond.
template <std::signed_integral Int>
constexpr Int Saturated(std::int64_t value) {
    return static_cast<Int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<Int>::min(), std::numeric_limits<Int>::max()));
}

/// One more; the largest number stays what it is.
constexpr std::int64_t OneMore(std::int64_t value) {
    return value == std::numeric_limits<std::int64_t>::max() ? value : value + 1;
}

/// The whole text as a number (blanks around it allowed); nothing when it is none. "" is none.
std::optional<double> ToNumber(std::string_view text);

/// Whole number in decimal: no padding, no leading blank.
std::string ToText(std::int64_t value);

/// A single-precision number in plain decimal, as few digits as tell it apart: 750, 10005, 0.5.
std::string SingleToText(double value);

/// Decimal digits, padded with zeros at the left to at least `digits`: Padded(7, 2) is "07".
std::string Padded(std::int64_t value, int digits);

/// Minutes, ":", two-digit seconds of a length in whole seconds; a negative length keeps its sign
/// ("0:-01").
std::string MinutesAndSeconds(std::int64_t seconds);

/// "True" or "False": how the stores keep a flag.
std::string_view FlagText(bool flag);

}  // namespace base
