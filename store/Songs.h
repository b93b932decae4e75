// Look-ups of single songs.
#pragma once

#include <string>
#include <string_view>

#include "store/DataSource.h"

namespace store {

/// FilePath of the first song with this key, blanks around the stored key ignored; empty when there is none
/// or the store cannot be read. Leaves `datSong` on that song.
std::string SongPathFromId(DataSource& datSong, std::string_view song_id);

}  // namespace store
