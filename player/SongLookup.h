// Finds songs in the library's table, and counts their plays.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/SongEntry.h"
#include "store/DataSource.h"

namespace player {

class SongLookup final {
public:
    explicit SongLookup(store::DataSource& songs) : songs_(songs) {}

    /// FilePath of the first song with that number; nothing when there is none or the store cannot be read.
    std::optional<std::string> PathOf(std::int64_t song_id);
    /// The path itself, or what SongPathFromId finds for the SongID; empty when that is nothing.
    std::string PathOfEntry(const base::SongEntry& entry);
    /// As PathOfEntry for many, in one walk.
    std::vector<std::string> PathsOf(const std::vector<base::SongEntry>& entries);
    struct Song {
        std::string id;
        std::string artist;
        std::string title;
    };
    /// The first song with that path; nothing when there is none or the store cannot be read.
    std::optional<Song> SongAt(std::string_view path);
    /// One more play for the first song with that path. A file outside the library changes nothing.
    void AddPlayCount(std::string_view filename);

private:
    store::DataSource& songs_;
};

}  // namespace player
