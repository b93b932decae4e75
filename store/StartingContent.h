// What the four files hold when they are shipped.
#pragma once

#include <array>
#include <string_view>

namespace store {

/// The settings rows of tblHistory: HistoryID from 1, in order, HistoryType "Settings".
inline constexpr std::string_view kSettingsType = "Settings";
inline constexpr std::array<std::string_view, 20> kStartingSettings{
    "False",  // 1 repeat: a list plays to its end
    "False",  // 2 shuffle: in list order
    "60",     // 3 auto refresh seconds, the value that its question offers too
    "Broad",  // 4 library search field
    "0",      // 5 date stamp: never
    "0",      // 6 last back-up of the play lists: never
    "True",   // 7 music tab in front: the one tab that is there on the first run
    "True",   // 8 scroll the track title
    "True",   // 9 save settings
    "True",  // 10 open home pages: the group ships empty, so pages a person puts there open without a further
             // step
    "True",  // 11 messenger name
    "True",  // 12 messenger custom text
    "True",  // 13 save messenger names
    "True",  // 14 multiple users: only "True" shows the login window, and with no user stored yet nobody
             // could get in
    "True",  // 15 site auto-login; without stored site names it does nothing
    "True",  // 16 save history
    "True",  // 17 web search in the address bar
    "True",  // 18 open files from the address bar
    "True",  // 19 include sub folders
    "True",  // 20 end mark
};

/// The one row of tblFavs: ID, GroupName, FriendName and URL of a group head.
inline constexpr std::array<std::string_view, 4> kStartingFavourite{"1", "Home Pages", " ", " "};

}  // namespace store
