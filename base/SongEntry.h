// An entry of the hidden lists of songs: a SongID or the path of a file, told apart by its length alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace base {

/// Entries with fewer characters are SongIDs. The limits differ by one on purpose: an entry of 7 characters
/// is a SongID in the track list, a path while it waits at the head of the cue list, and a SongID again when
/// it is taken from there as one.
inline constexpr std::size_t kShortestPath = 8;           ///< rows of `lstMaybe` and `lstNowPlaying`
inline constexpr std::size_t kShortestPathAtCueHead = 7;  ///< the first row of `lstCuedSongsPath`
inline constexpr std::size_t kShortestPathFromCue = 9;    ///< a row that was cued as a SongID

class SongEntry {
public:
    explicit SongEntry(std::string_view text, std::size_t shortest_path = kShortestPath);

    bool IsSongId() const { return is_song_id_; }
    /// The entry as a whole number; 0 for a text that is none.
    std::int64_t SongId() const { return song_id_; }
    /// The entry as it is in the list: a path, or the SongID as text.
    const std::string& Text() const { return text_; }

private:
    std::string text_;
    std::int64_t song_id_ = 0;
    bool is_song_id_ = false;
};

}  // namespace base
