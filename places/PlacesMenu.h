// The menu entries that favourites and history answer; captions and order are in window/MenuTree.cpp.
//
// Each small struct is the group of one room; the last one only puts them together.
#pragma once

#include "controls/Menu.h"

namespace places {

struct FavouritesMenu {
    controls::Menu mnuFav{"mnuFav"};
    controls::Menu mnuAddToFavourites{"mnuAddToFavourites"};
    controls::Menu mnuEditFavs{"mnuEditFavs"};
    controls::Menu mnuRemoveFav{"mnuRemoveFav"};
    controls::Menu mnuRemoveFavGroup{"mnuRemoveFavGroup"};
    controls::Menu mnuViewFavs{"mnuViewFavs"};
};

struct HistoryMenu {
    controls::Menu mnuHistory{"mnuHistory"};
};

struct PlacesMenu : FavouritesMenu, HistoryMenu {};

}  // namespace places
