// The menu entries of the session; captions and order are in window/MenuTree.cpp.
#pragma once

#include "controls/Menu.h"

namespace session {

/// Answered by SessionRoom; disabled until the start is over.
struct SessionMenu {
    controls::Menu mnuExit{"mnuExit"};
    controls::Menu mnuLogout{"mnuLogout"};
};

/// Answered by PreferencesRoom.
struct PreferencesMenu {
    controls::Menu mnuPreferences{"mnuPreferences"};
    controls::Menu mnuEditPlaylists{"mnuEditPlaylists"};
};

/// Answered by HandOffRoom.
struct HandOffMenu {
    controls::Menu mnuOpenMediaFile{"mnuOpenMediaFile"};
};

}  // namespace session
