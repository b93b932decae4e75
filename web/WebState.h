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
    /// Index of the tab being created; the caller of GetNewBrowser sets it.
    std::int16_t NextBrowserIndex = 0;
    /// The music tab is in front.
    bool MusicTabActive = true;
    /// A web tab is on show.
    bool TabsShown = true;
    /// The address last seen on the tab in front.
    std::string LastTabUrl;
    /// A web tab lies over the backdrop page.
    bool BackdropHidden = true;
    /// The music tab was closed by its person.
    bool ClosingMusicTab = false;
    /// A key handler wants the library lists rebuilt when it is through.
    bool ReloadLibraryAfterKey = false;
    /// Seconds since the last automatic refresh.
    std::int16_t RefreshSeconds = 0;
};

}  // namespace web
