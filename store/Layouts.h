// The four stores as an engine sees them: files, tables, fields.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <string_view>

#include "ports/Database.h"
#include "store/Tables.h"

namespace store {

namespace layout {

/// The fields of a table as an engine sees them: each in the column that its place says.
template <std::size_t kCount>
consteval std::array<ports::FieldLayout, kCount> LayoutsOf(const std::array<Field, kCount>& fields) {
    std::array<ports::FieldLayout, kCount> layouts;
    for (const Field& field : fields) {
        ports::FieldLayout& layout = layouts.at(static_cast<std::size_t>(field.column));
        assert(layout.name.empty());
        layout = {field.name, field.is_integer};
    }
    return layouts;
}

inline constexpr auto kSongFields = LayoutsOf(tblSong::kFields);
inline constexpr auto kPlayListFields = LayoutsOf(tblPlayList::kFields);
inline constexpr auto kFavsFields = LayoutsOf(tblFavs::kFields);
inline constexpr auto kHistoryFields = LayoutsOf(tblHistory::kFields);
inline constexpr auto kLoginFields = LayoutsOf(tblLogin::kFields);

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
