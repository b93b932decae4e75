// The rows of the favourites' table, for all that adds to it.
#pragma once

#include <string>
#include <string_view>

#include "controls/Label.h"
#include "store/DataSource.h"
#include "store/RecordSet.h"

namespace places {

/// What comes before a favourite's name, in the table and in the lists.
inline constexpr std::string_view kFavouritePrefix = "  - ";

/// The table, and the number of its last row as it was read last.
struct FavouritesTable {
    store::DataSource& datFav;
    const controls::Label& lblEntryCount;
};

struct FavouriteRow {
    std::string group;
    std::string friend_name;  ///< with the prefix; a blank in the row of a group
    std::string url;
};

/// The row that makes a group exist.
FavouriteRow GroupRow(std::string_view group);

/// Puts the row after the last one.
void AppendFavourite(store::RecordSet& rows, std::string_view key, const FavouriteRow& row);

}  // namespace places
