// Favourites from and for other browsers, by way of a bookmark file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "places/BookmarkFile.h"
#include "places/FavouritesRoom.h"
#include "places/FavouritesTable.h"

namespace places {

class FavouritesExchange final {
public:
    FavouritesExchange(FavouritesTable table, FavouritesRoom& panel) : table_(table), panel_(panel) {}

    /// Adds what the file holds and the table does not. A favourite is known by group, name and address. The
    /// table gets no more than kMostBookmarks rows. What came of it, in words for the user.
    std::string Import(std::string_view bytes);
    /// Every group and favourite, as the bytes of a bookmark file.
    std::string Export();

private:
    struct Tally;
    void Add(const Bookmarks& found, Tally& tally);

    FavouritesTable table_;
    FavouritesRoom& panel_;
};

}  // namespace places
