// Every menu entry of the main window.
//
// An entry is a member of the group of the room that answers it, in the folder of that room.
// window/MenuTree.cpp makes the menus of them.
#pragma once

#include "controls/Menu.h"
#include "library/LibraryMenu.h"
#include "places/PlacesMenu.h"
#include "player/PlayerMenu.h"
#include "session/SessionMenu.h"
#include "web/WebMenu.h"

namespace window {

/// Answered by ViewRoom.
struct ViewMenu {
    controls::Menu mnuMusicJustTracks{"mnuMusicJustTracks"};
};

/// The entries that only open others.
struct OpeningMenu {
    controls::Menu mnuFile{"mnuFile"};
    controls::Menu mnuNew{"mnuNew"};
    controls::Menu mnuOpen{"mnuOpen"};
    controls::Menu mnuClose{"mnuClose"};
    controls::Menu mnuAdd{"mnuAdd"};
    controls::Menu mnuRemove{"mnuRemove"};
    controls::Menu mnuDelete{"mnuDelete"};
    controls::Menu mnuEdit{"mnuEdit"};
    controls::Menu mnuView{"mnuView"};
    controls::Menu mnuOptions{"mnuOptions"};
    controls::Menu mnuSearch{"mnuSearch"};
    controls::Menu mnuSongSearch{"mnuSongSearch"};
    controls::Menu mnuMusicPlayerControls{"mnuMusicPlayerControls"};
    controls::Menu mnuMusicPlayMode{"mnuMusicPlayMode"};
    controls::Menu mnuVolume{"mnuVolume"};
    controls::Menu mnuSongSpeed{"mnuSongSpeed"};
    controls::Menu mnuSpecial{"mnuSpecial"};
    controls::Menu mnuVolumePanning{"mnuVolumePanning"};
    controls::Menu mnuVisualisations{"mnuVisualisations"};
};

/// The separators, but the one that the tabs know.
struct SeparatorMenu {
    controls::Menu mnuSep1{"mnuSep1"};
    controls::Menu mnuSep2{"mnuSep2"};
    controls::Menu mnuSep3{"mnuSep3"};
    controls::Menu mnuSep4{"mnuSep4"};
    controls::Menu mnuSeperator9{"mnuSeperator9"};
    controls::Menu mnuSep12{"mnuSep12"};
    controls::Menu mnuSep17{"mnuSep17"};
    controls::Menu mnuSep9{"mnuSep9"};
    controls::Menu mnuSep5{"mnuSep5"};
    controls::Menu mnuSep6{"mnuSep6"};
    controls::Menu mnuSep16{"mnuSep16"};
    controls::Menu mnuSep15{"mnuSep15"};
    controls::Menu mnuSep13{"mnuSep13"};
    controls::Menu mnuSep14{"mnuSep14"};
    controls::Menu mnuSep7{"mnuSep7"};
    controls::Menu mnuSep10{"mnuSep10"};
    controls::Menu mnuSep8{"mnuSep8"};
};

/// Answered by AboutRoom.
struct AboutMenu {
    controls::Menu mnuAbout{"mnuAbout"};
};

/// Entries only: no other member.
struct WindowMenu : OpeningMenu,
                    SeparatorMenu,
                    ViewMenu,
                    AboutMenu,
                    player::PlayerMenu,
                    web::WebMenu,
                    library::LibraryMenu,
                    places::PlacesMenu,
                    session::SessionMenu,
                    session::PreferencesMenu,
                    session::HandOffMenu {};

}  // namespace window
