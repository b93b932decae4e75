#include "places/FavouritesTable.h"

#include "store/Tables.h"

namespace places {

FavouriteRow GroupRow(std::string_view group) {
    return {.group = std::string(group), .friend_name = " ", .url = " "};
}

void AppendFavourite(store::RecordSet& rows, std::string_view key, const FavouriteRow& row) {
    rows.AddNew();
    rows.Set(store::tblFavs::ID, key);
    rows.Update();
    rows.MoveLast();
    rows.Edit();
    rows.Set(store::tblFavs::GroupName, row.group);
    rows.Set(store::tblFavs::FriendName, row.friend_name);
    rows.Set(store::tblFavs::URL, row.url);
    rows.Update();
}

}  // namespace places
