// The menu entries of the session: those that end it, and those that open the preferences; captions and order
// are in window/MenuTree.cpp.
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

}  // namespace session
