// A view of tracks that is being filled: tracks, their entries and their artists, row by row beside each
// other.
#pragma once

#include <string_view>

namespace roles {

class TrackView {
public:
    virtual ~TrackView() = default;
    /// Empties the tracks and the artists, down to the row that stands for all artists.
    virtual void BeginView() = 0;
    /// Adds a track at the end.
    virtual void AddSong(std::string_view song_id, std::string_view artist, std::string_view title) = 0;
    /// As AddSong for a song that was played: the blanks around its texts show in the artists alone.
    virtual void AddPlayedSong(std::string_view song_id, std::string_view artist, std::string_view title) = 0;
    /// Lists the artists of the tracks, sorted, each once.
    virtual void EndView() = 0;
};

}  // namespace roles
