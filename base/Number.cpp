#include "base/Number.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/Text.h"

namespace base {
namespace {

// std::from_chars refuses a leading "+", which people type.
std::string_view WithoutPlus(std::string_view text) {
    const bool signed_number = text.size() > 1 && text.front() == '+' && text[1] != '-';
    return signed_number ? text.substr(1) : text;
}

bool BeginsNumber(std::string_view text) {
    if (!text.empty() && text.front() == '-') text.remove_prefix(1);
    return !text.empty() && (text.front() == '.' || (text.front() >= '0' && text.front() <= '9'));
}

}  // namespace

std::int64_t RoundHalfEven(double value) {
    if (std::isnan(value)) return 0;
    constexpr double kLimit = 9.2e18;
    if (value >= kLimit) return std::numeric_limits<std::int64_t>::max();
    if (value <= -kLimit) return std::numeric_limits<std::int64_t>::min();
    const double floor = std::floor(value);
    const double fraction = value - floor;
    const auto below = static_cast<std::int64_t>(floor);
    if (fraction < 0.5) return below;
    if (fraction > 0.5) return below + 1;
    return below % 2 == 0 ? below : below + 1;
}

double Val(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    text = WithoutPlus(text);
    if (!BeginsNumber(text)) return 0;
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc() ? value : 0;
}

std::int64_t WholeVal(std::string_view text) {
    return RoundHalfEven(Val(text));
}

std::optional<double> ToNumber(std::string_view text) {
    text = WithoutPlus(Trim(text));
    if (!BeginsNumber(text)) return std::nullopt;
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size()) return std::nullopt;
    return value;
}

std::string ToText(std::int64_t value) {
    return std::to_string(value);
}

std::string SingleToText(double value) {
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<float>(value),
                                      std::chars_format::fixed);
    return {buffer.data(), result.ptr};
}

std::string Padded(std::int64_t value, int digits) {
    std::string text = std::to_string(value < 0 ? -value : value);
    const auto wanted = static_cast<std::size_t>(digits < 0 ? 0 : digits);
    if (text.size() < wanted) text.insert(0, wanted - text.size(), '0');
    if (value < 0) text.insert(text.begin(), '-');
    return text;
}

std::string MinutesAndSeconds(std::int64_t seconds) {
    std::int64_t minutes = 0;
    if (seconds >= 60) {
        minutes = seconds / 60;
        seconds %= 60;
    }
    return ToText(minutes) + ":" + Padded(seconds, 2);
}

std::string_view FlagText(bool flag) {
    return flag ? "True" : "False";
}

}  // namespace base
