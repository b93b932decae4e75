// Finds songs in the library's table, and counts their plays.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "store/DataSource.h"

namespace player {

class SongLookup final {
public:
    explicit SongLookup(store::DataSource& datSong) : datSong_(datSong) {}

    /// FilePath of the first song with that number; nothing when there is none or the store cannot be read.
    std::optional<std::string> PathOf(std::int64_t song_id);
    /// One more play for the first song with that path. A file outside the library changes nothing.
    void AddPlayCount(std::string_view filename);

private:
    store::DataSource& datSong_;
};

}  // namespace player
