// The menu entries that the library answers; captions and order are in window/MenuTree.cpp.
//
// Each small struct is the group of one room; the last one only puts them together.
#pragma once

#include "controls/Menu.h"

namespace library {

struct PlayListMenu {
    controls::Menu mnuNewPlayList{"mnuNewPlayList"};
    controls::Menu mnuRemoveSong{"mnuRemoveSong"};
};

/// The search fields: exactly one entry is checked.
struct SearchMenu {
    controls::Menu mnuSearchBroad{"mnuSearchBroad"};
    controls::Menu mnuSearchTitle{"mnuSearchTitle"};
    controls::Menu mnuSearchArtist{"mnuSearchArtist"};
    controls::Menu mnuSearchFilename{"mnuSearchFilename"};
};

struct CleanUpMenu {
    controls::Menu mnuCleanUp{"mnuCleanUp"};
};

struct OpenedMediaMenu {
    controls::Menu mnuAddToLibrary{"mnuAddToLibrary"};
};

struct LibraryMenu : PlayListMenu, SearchMenu, CleanUpMenu, OpenedMediaMenu {};

}  // namespace library
