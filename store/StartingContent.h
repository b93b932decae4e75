// What the four files hold when they are shipped, besides the settings rows (store/Settings.h): all tables,
// one group of favourites and no user.
#pragma once

#include <array>
#include <string_view>

namespace store {

/// The one row of tblFavs: ID, GroupName, FriendName and URL of a group head.
inline constexpr std::array<std::string_view, 4> kStartingFavourite{"1", "Home Pages", " ", " "};

}  // namespace store
