#include "places/FavouritesExchange.h"

#include <algorithm>
#include <cstdint>
#include <unordered_set>

#include "base/Number.h"
#include "base/Text.h"
#include "store/Key.h"
#include "store/Tables.h"

namespace places {
namespace {

/// Cannot be in a text of the table.
constexpr char kBetween = '\0';

std::string Identity(std::string_view group, std::string_view friend_name, std::string_view url) {
    std::string identity(group);
    identity.append(1, kBetween).append(friend_name).append(1, kBetween).append(url);
    return identity;
}

std::string Counted(std::size_t count, std::string_view one, std::string_view more) {
    return base::ToText(static_cast<std::int64_t>(count)).append(" ").append(count == 1 ? one : more);
}

}  // namespace

struct FavouritesExchange::Tally {
    std::size_t favourites = 0;
    std::size_t groups = 0;
    std::size_t known = 0;
    std::size_t without_room = 0;
};

std::string FavouritesExchange::Import(std::string_view bytes) {
    const Bookmarks found = ReadBookmarks(bytes);
    if (found.groups.empty() && found.links.empty()) {
        return found.skipped == 0 ? "There are no favourites in this file."
                                  : "There is no favourite in this file that is a page.";
    }
    if (!table_.datFav.Open(store::kAllFavourites)) return "The favourites cannot be opened.";
    Tally tally;
    Add(found, tally);
    panel_.LoadFavs();
    panel_.ClearFavourites();
    panel_.populatefavs();
    std::string words = Counted(tally.favourites, "favourite", "favourites") + " in " +
                        Counted(tally.groups, "new group", "new groups") + " came in.";
    if (tally.known > 0) words += " " + Counted(tally.known, "was", "were") + " there already.";
    if (found.skipped > 0)
        words += " " + Counted(found.skipped, "was", "were") + " left out: not the address of a page.";
    if (tally.without_room > 0)
        words += " For " + base::ToText(static_cast<std::int64_t>(tally.without_room)) + " there is no room.";
    return words;
}

// The label of the last number is the panel's, which reads it when all rows are there.
void FavouritesExchange::Add(const Bookmarks& found, Tally& tally) {
    store::RecordSet& rows = table_.datFav.Recordset();
    std::unordered_set<std::string> groups;
    std::unordered_set<std::string> known;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const std::string_view name = rows.Text(store::tblFavs::FriendName);
        const std::string_view group = rows.Text(store::tblFavs::GroupName);
        if (base::Trim(name).empty()) groups.emplace(group);
        known.insert(Identity(group, name, rows.Text(store::tblFavs::URL)));
    }
    std::size_t room = kMostBookmarks - std::min(kMostBookmarks, rows.RecordCount());
    std::string key = table_.lblEntryCount.Caption();
    const auto append = [&](const FavouriteRow& row, std::size_t& count) {
        if (room == 0) {
            ++tally.without_room;
            return;
        }
        --room;
        key = store::KeyAfter(key);
        AppendFavourite(rows, key, row);
        ++count;
    };
    for (const std::string& group : found.groups) {
        if (groups.insert(group).second) append(GroupRow(group), tally.groups);
    }
    for (const BookmarkLink& link : found.links) {
        const FavouriteRow row{.group = link.group,
                               .friend_name = std::string(kFavouritePrefix).append(link.name),
                               .url = link.address};
        if (known.insert(Identity(row.group, row.friend_name, row.url)).second) {
            append(row, tally.favourites);
        } else {
            ++tally.known;
        }
    }
}

std::string FavouritesExchange::Export() {
    Bookmarks all;
    if (!table_.datFav.Open(store::kAllFavourites)) return WriteBookmarks(all);
    std::unordered_set<std::string> groups;
    store::RecordSet& rows = table_.datFav.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const std::string group(rows.Text(store::tblFavs::GroupName));
        if (groups.insert(group).second) all.groups.push_back(group);
        const std::string_view name = rows.Text(store::tblFavs::FriendName);
        if (base::Trim(name).empty()) continue;
        const bool has_prefix = base::StartsWith(name, kFavouritePrefix);
        all.links.push_back({.group = group,
                             .name = std::string(has_prefix ? name.substr(kFavouritePrefix.size()) : name),
                             .address = std::string(rows.Text(store::tblFavs::URL))});
    }
    return WriteBookmarks(all);
}

}  // namespace places
