// The menu entries that the web rooms answer; captions and order are in window/MenuTree.cpp.
//
// Each small struct is the group of one room; the last one only puts them together.
#pragma once

#include "controls/Menu.h"

namespace web {

struct TabMenu {
    controls::Menu mnuTab{"mnuTab"};                  ///< gets an entry for each tab; pops up over a tab
    controls::Menu mnuMusicPlayer{"mnuMusicPlayer"};  ///< pops up over the music tab
    controls::Menu mnuSep11{"mnuSep11"};  ///< the separator that the tabs' entries are inserted before
    controls::Menu mnuMusicTabTab{"mnuMusicTabTab"};
    controls::Menu mnuViewMusicTab{"mnuViewMusicTab"};
    controls::Menu mnuCloseCurrentTab{"mnuCloseCurrentTab"};
    controls::Menu mnuCloseAllTabs{"mnuCloseAllTabs"};
};

struct NavigationMenu {
    controls::Menu mnuGoForward{"mnuGoForward"};
    controls::Menu mnuGoBack{"mnuGoBack"};
};

struct RefreshMenu {
    controls::Menu mnuSetAutoRefresh{"mnuSetAutoRefresh"};
};

struct WebCommandsMenu {
    controls::Menu mnuHelp{"mnuHelp"};  ///< pops up over the help button
    controls::Menu mnuWebTab{"mnuWebTab"};
    controls::Menu mnuNewTabTab{"mnuNewTabTab"};
    controls::Menu mnuWebsite{"mnuWebsite"};
    controls::Menu mnuWebSearch{"mnuWebSearch"};
    controls::Menu mnuLyricSearch{"mnuLyricSearch"};
    controls::Menu mnuOnlineHelp{"mnuOnlineHelp"};
    controls::Menu mnuCheckUpdates{"mnuCheckUpdates"};
    controls::Menu mnuRefreshAll{"mnuRefreshAll"};
};

struct WebMenu : TabMenu, NavigationMenu, RefreshMenu, WebCommandsMenu {};

}  // namespace web
