// Numbers as the system reads, rounds and writes them.
#pragma once

#include <cstdint>
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
