#include "places/FavouritesControls.h"

#include "controls/Arrange.h"

namespace places {

FavouritesControls::FavouritesControls() {
    NameTwins(imgAdd, imgAddOver, "Add favourite");
    NameTwins(imgdelete, imgdeleteover, "Delete favourite or group");
    NameTwins(imgView, imgViewOver, "Show groups or all favourites");

    fraFavs.SetLook("panel");
    lblFavs.SetLook("heading");
    cmdFavs.SetAccessibleName("Favourites panel");
    lstFavs.SetAccessibleName("Favourites by group");
    lstFavsAlt.SetAccessibleName("All favourites");
    Hide(fraFavs, lblFavs, lstFavs, lstFavsAlt, lstTest, lstFavs2, lblEntryCount);
}

void FavouritesControls::PutInto(controls::Container& container) {
    container.Add(lstTest, lstFavs2, lblEntryCount, fraFavs, cmdFavs);
    fraFavs.Add(lblFavs, lstFavs, lstFavsAlt, imgAdd, imgdelete, imgView, imgAddOver, imgdeleteover,
                imgViewOver);
}

}  // namespace places
