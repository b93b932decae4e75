// The main window: plain data, made of the groups of its rooms. It puts every control into its container,
// back to front; where the controls are belongs to the layout.
#pragma once

#include "controls/Form.h"
#include "library/LibraryControls.h"
#include "places/FavouritesControls.h"
#include "player/PlayerControls.h"
#include "session/HandOffRoom.h"
#include "web/WebControls.h"
#include "window/ChromeControls.h"
#include "window/WindowMenu.h"

namespace window {

struct BrowserForm : controls::Form {
    BrowserForm();

    WindowMenu menus;
    ChromeControls chrome;
    web::WebControls web;
    session::HandOffControls hand_off;
    library::LibraryControls library;
    player::PlayerControls player;
    places::FavouritesControls favourites;

private:
    void FillMusicPane();
    void FillPanels();
    void AddHidden();
};

}  // namespace window
