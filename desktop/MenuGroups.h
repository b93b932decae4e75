// The menu entries of each subject, picked from the whole tree.
#pragma once

#include "core/SessionRoom.h"
#include "core/SettingsRoom.h"
#include "desktop/BrowserForm.h"
#include "desktop/InfoForm.h"
#include "library/LibraryControls.h"
#include "player/PlayerControls.h"
#include "web/WebControls.h"
#include "webdata/FavouritesControls.h"

namespace desktop {

player::PlayerMenu PlayerMenuOf(MenuControls& menus);
web::WebMenu WebMenuOf(MenuControls& menus);
webdata::FavouritesMenu FavouritesMenuOf(MenuControls& menus);
library::PlayListMenu PlayListMenuOf(MenuControls& menus);
library::SearchMenu SearchMenuOf(MenuControls& menus);
core::SettingsControls SettingsControlsOf(BrowserForm& window, store::DataSource& datHistory);
core::OptionBoxes OptionBoxesOf(InfoForm& info);

}  // namespace desktop
