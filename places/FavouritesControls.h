// The favourites panel at the left of the main window, and the button that opens and closes it.
#pragma once

#include <string_view>

#include "controls/CommandButton.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "store/DataSource.h"

namespace places {

/// The captions of `cmdFavs`, which are the panel's state.
inline constexpr std::string_view kPanelOpen = "<";
inline constexpr std::string_view kPanelClosed = ">";

struct FavouritesControls {
    FavouritesControls();
    /// Puts the group into the window, back to front.
    void PutInto(controls::Container& container);
    bool IsPanelOpen() const { return cmdFavs.Caption() == kPanelOpen; }

    controls::CommandButton cmdFavs{"cmdFavs", kPanelClosed};
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
