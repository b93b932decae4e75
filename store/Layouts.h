// The four stores as an engine sees them: files, tables, fields.
#pragma once

#include <array>
#include <string_view>

#include "ports/Database.h"
#include "store/Tables.h"

namespace store {

namespace layout {

inline constexpr std::array kSongFields{
    ports::FieldLayout{tblSong::SongID.name, true},    ports::FieldLayout{tblSong::artist.name},
    ports::FieldLayout{tblSong::title.name},           ports::FieldLayout{tblSong::FilePath.name},
    ports::FieldLayout{tblSong::PlayCount.name, true},
};

inline constexpr std::array kPlayListFields{
    ports::FieldLayout{tblPlayList::PlayListID.name, true},
    ports::FieldLayout{tblPlayList::Name.name},
    ports::FieldLayout{tblPlayList::SongID.name, true},
    ports::FieldLayout{tblPlayList::artist.name},
    ports::FieldLayout{tblPlayList::title.name},
};

inline constexpr std::array kFavsFields{
    ports::FieldLayout{tblFavs::ID.name, true},
    ports::FieldLayout{tblFavs::GroupName.name},
    ports::FieldLayout{tblFavs::FriendName.name},
    ports::FieldLayout{tblFavs::URL.name},
};

inline constexpr std::array kHistoryFields{
    ports::FieldLayout{tblHistory::HistoryID.name, true},
    ports::FieldLayout{tblHistory::HistoryType.name},
    ports::FieldLayout{tblHistory::HistoryText.name},
};

inline constexpr std::array kLoginFields{
    ports::FieldLayout{tblLogin::UserName.name},   ports::FieldLayout{tblLogin::Password.name},
    ports::FieldLayout{tblLogin::MySpaceE.name},   ports::FieldLayout{tblLogin::MySpaceP.name},
    ports::FieldLayout{tblLogin::HotmailE.name},   ports::FieldLayout{tblLogin::HotmailP.name},
    ports::FieldLayout{tblLogin::FaceBookE.name},  ports::FieldLayout{tblLogin::FaceBookP.name},
    ports::FieldLayout{tblLogin::RememberMe.name}, ports::FieldLayout{tblLogin::AutoLogin.name},
};

inline constexpr std::array kMediaTables{
    ports::TableLayout{"tblSong", kSongFields}, ports::TableLayout{"tblPlayList", kPlayListFields},
    ports::TableLayout{"tblFolder", {}},  // only ever emptied: no field of it is used by name
};
inline constexpr std::array kFavouritesTables{ports::TableLayout{"tblFavs", kFavsFields}};
inline constexpr std::array kHistoryTables{ports::TableLayout{"tblHistory", kHistoryFields}};
inline constexpr std::array kLoginTables{ports::TableLayout{"tblLogin", kLoginFields}};

}  // namespace layout

inline constexpr std::array kStoreLayouts{
    ports::StoreLayout{kMediaStore, layout::kMediaTables},
    ports::StoreLayout{kFavouritesStore, layout::kFavouritesTables},
    ports::StoreLayout{kHistoryStore, layout::kHistoryTables},
    ports::StoreLayout{kLoginStore, layout::kLoginTables, true},  // holds passwords
};

/// The layout of the store that `path` ends with; null when it is none of the four.
const ports::StoreLayout* LayoutOf(std::string_view path);

}  // namespace store
