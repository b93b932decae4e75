// The menu entries that end a session; captions and order are in window/MenuTree.cpp.
#pragma once

#include "controls/Menu.h"

namespace session {

/// Answered by SessionRoom; disabled until the start is over.
struct SessionMenu {
    controls::Menu mnuExit{"mnuExit"};
    controls::Menu mnuLogout{"mnuLogout"};
};

}  // namespace session
