// What the rooms of the web subsystem know together, under the names the whole program uses.
#pragma once

#include <cstdint>
#include <limits>
#include <string>

namespace web {

/// Tabs are counted in 16 bits.
inline constexpr int kLastTabIndex = std::numeric_limits<std::int16_t>::max();

struct WebState {
    /// The web tab in front, or the last one in front while the music tab is; 0 when there was none.
    std::int16_t currentbrowser = 0;
    /// Index of the tab that is being created, or was created last.
    std::int16_t NextBrowserIndex = 0;
    /// The music tab is in front.
    bool MusicTabActive = true;
    /// A web tab is on show.
    bool TabsShown = true;
    /// The address last seen on the tab in front.
    std::string LastTabUrl;
    /// A web tab lies over the backdrop page.
    bool BackdropHidden = true;
    /// The user closed the music tab. Nothing reads it yet.
    bool ClosingMusicTab = false;
    /// A key handler wants the library lists rebuilt when it has finished. Nothing sets it yet.
    bool ReloadLibraryAfterKey = false;
    /// Seconds since the last automatic refresh.
    std::int16_t RefreshSeconds = 0;
};

}  // namespace web
