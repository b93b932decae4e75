// The playing order: a copy of the visible tracks' entries, taken at a double click, walked for ever.
#pragma once

#include <string>

#include "base/Text.h"
#include "controls/ListBox.h"
#include "player/PlayerControls.h"
#include "ports/Clock.h"

namespace player {

/// An entry with fewer characters is a SongID, any other one a file path.
inline constexpr std::size_t kShortestPath = 8;

inline bool IsSongId(std::string_view entry) {
    return base::Len(entry) < kShortestPath;
}

class PlayOrder final {
public:
    PlayOrder(PlayOrderControls& controls, ports::Chance& chance);

    /// Takes over every entry, in order.
    void CopyFrom(const controls::ListBox& entries);
    /// Selects a row and gives its entry; empty when there is no such row.
    std::string Select(int row);
    /// The entry after the selected one, round and round. With shuffle any entry of two or more, the one that
    /// just played included. Empty when the order is.
    std::string Next(bool shuffle);
    /// The entry before the selected one, round and round.
    std::string Previous();
    int Count() const { return controls_.lstNowPlaying.ListCount(); }

private:
    int RandomBelow(int count);

    PlayOrderControls& controls_;
    ports::Chance& chance_;
};

}  // namespace player
