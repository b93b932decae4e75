// The menu entries of each subject, picked from the whole tree.
#pragma once

#include "library/LibraryControls.h"
#include "places/FavouritesControls.h"
#include "player/PlayerControls.h"
#include "session/SessionRoom.h"
#include "session/SettingsRoom.h"
#include "web/WebControls.h"
#include "window/BrowserForm.h"
#include "window/InfoForm.h"

namespace window {

player::PlayerMenu PlayerMenuOf(MenuControls& menus);
web::WebMenu WebMenuOf(MenuControls& menus);
places::FavouritesMenu FavouritesMenuOf(MenuControls& menus);
library::PlayListMenu PlayListMenuOf(MenuControls& menus);
library::SearchMenu SearchMenuOf(MenuControls& menus);
session::SettingsControls SettingsControlsOf(BrowserForm& window, store::DataSource& datHistory);
session::OptionBoxes OptionBoxesOf(InfoForm& info);

}  // namespace window
