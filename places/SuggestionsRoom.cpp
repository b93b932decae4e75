#include "places/SuggestionsRoom.h"

#include <string>

#include "base/Text.h"
#include "places/FavouritesRoom.h"
#include "roles/History.h"
#include "store/Tables.h"

namespace places {

namespace {

std::string_view NameOf(std::string_view friend_name) {
    if (base::StartsWith(friend_name, kFavouritePrefix)) friend_name.remove_prefix(kFavouritePrefix.size());
    return base::Trim(friend_name);
}

}  // namespace

SuggestionsRoom::SuggestionsRoom(store::Stores& stores, std::string_view folder) {
    favourites_.SetDatabaseName(stores, std::string(folder).append(store::kFavouritesStore));
    history_.SetDatabaseName(stores, std::string(folder).append(store::kHistoryStore));
}

std::vector<roles::Suggestion> SuggestionsRoom::Suggest(std::string_view typed, std::size_t most) {
    CatchUp();
    return index_.Find(typed, most);
}

// A row of the history gets its text right after it was added and keeps it: rows that were rewritten are
// those of settings.
void SuggestionsRoom::CatchUp() {
    if (!favourites_.Open(store::kAllFavourites) || !history_.Open(store::kAllHistory)) return;
    const Stamp favourites = StampOf(favourites_.Recordset(), store::tblFavs::URL);
    Stamp history = StampOf(history_.Recordset(), store::tblHistory::HistoryText);
    history.rewrites = 0;
    const bool only_grew = favourites == favourites_read_ && history.end >= history_read_.end &&
                           history.end - history_read_.end == history.rows - history_read_.rows &&
                           history.rows >= history_read_.rows;
    if (!only_grew) {
        index_.Clear();
        ReadFavourites();
    }
    ReadHistory(only_grew ? history_read_.end : 0);
    favourites_read_ = favourites;
    history_read_ = history;
}

void SuggestionsRoom::ReadFavourites() {
    store::RecordSet& rows = favourites_.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const std::string_view name = NameOf(rows.Text(store::tblFavs::FriendName));
        if (!name.empty()) index_.AddFavourite(name, rows.Text(store::tblFavs::URL));
    }
}

void SuggestionsRoom::ReadHistory(store::Bookmark from) {
    store::RecordSet& rows = history_.Recordset();
    for (store::Bookmark row = from; row < rows.EndOfBookmarks(); ++row) {
        if (!rows.MoveTo(row)) continue;
        if (rows.Text(store::tblHistory::HistoryType) != TextOf(roles::HistoryKind::Web)) continue;
        index_.AddVisited(rows.Text(store::tblHistory::HistoryText));
    }
}

SuggestionsRoom::Stamp SuggestionsRoom::StampOf(const store::RecordSet& rows, store::Field field) {
    return {rows.EndOfBookmarks(), rows.RecordCount(), rows.Rewrites(field)};
}

}  // namespace places
