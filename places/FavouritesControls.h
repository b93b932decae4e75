// The favourites panel at the left of the main window, and the button that opens and closes it.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "store/DataSource.h"

namespace places {

/// Where `cmdFavs` stands while the panel is closed and while it is open, in twips.
inline constexpr double kClosedLeft = 120;
inline constexpr double kOpenLeft = 2760;

struct FavouritesControls {
    FavouritesControls();
    /// Puts the group into the window, back to front. Heights and widths are the layout's.
    void PutInto(controls::Container& container);

    controls::CommandButton cmdFavs{"cmdFavs", ">"};  ///< the caption is the state: ">" closed, "<" open
    controls::Frame fraFavs{"fraFavs"};
    controls::Label lblFavs{"lblFavs", "MySpace Favourites:"};
    controls::ListBox lstFavs{"lstFavs"};        ///< groups, and the favourites of the open one
    controls::ListBox lstFavsAlt{"lstFavsAlt"};  ///< every favourite
    controls::Image imgAdd{"imgAdd", "add"};
    controls::Image imgAddOver{"imgAddOver", "addover"};
    controls::Image imgdelete{"imgdelete", "delete"};
    controls::Image imgdeleteover{"imgdeleteover", "deleteover"};
    controls::Image imgView{"imgView", "view"};
    controls::Image imgViewOver{"imgViewOver", "viewover"};

    // Hidden: work lists, and the number of the last row.
    controls::ListBox lstTest{"lstTest", controls::Sorted::Yes};
    controls::ListBox lstFavs2{"lstFavs2"};
    controls::Label lblEntryCount{"lblEntryCount", "Song ID"};
    store::DataSource datFav{"datFav"};
};

}  // namespace places
