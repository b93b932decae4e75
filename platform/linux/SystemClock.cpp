#include "platform/linux/SystemClock.h"

#include <chrono>
#include <ctime>

namespace linux {

ports::Date SystemClock::Today() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (::localtime_r(&now, &local) == nullptr) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

std::int64_t SystemClock::Milliseconds() const {
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

RandomChance::RandomChance() : numbers_(std::random_device{}()) {}

double RandomChance::Below1() {
    // The upper 53 bits fill a double exactly, so that the result never rounds up to 1.
    return static_cast<double>(numbers_() >> 11U) * 0x1.0p-53;
}

}  // namespace linux
