// The rows of the lists that stand for no playlist and no artist of the tables. In the lists they carry two
// leading blanks; comparisons trim them.
#pragma once

#include <string_view>

namespace library {

inline constexpr std::string_view kAllMedia = "[All Media]";
inline constexpr std::string_view kLast20 = "[Last 20]";
inline constexpr std::string_view kTop20 = "[Top 20]";
inline constexpr std::string_view kAllArtists = "[All Artists]";

}  // namespace library
