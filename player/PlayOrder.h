// The playing order: a copy of the visible tracks' entries, taken at a double click, walked for ever.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/SongEntry.h"
#include "controls/ListBox.h"
#include "player/PlayerControls.h"
#include "ports/Clock.h"

namespace player {

class PlayOrder final {
public:
    PlayOrder(PlayOrderControls& controls, ports::Chance& chance);

    /// Takes over every entry, in order.
    void CopyFrom(const controls::ListBox& entries);
    /// Selects a row and returns its entry; an empty one when there is no such row.
    base::SongEntry Select(int row);
    /// The entry after the selected one, round and round. With shuffle any entry of two or more, the one that
    /// just played included. Empty when the order is.
    base::SongEntry Next(bool shuffle);
    /// The entry that Next would return without shuffle; no row is selected.
    base::SongEntry PeekNext() const;
    /// The entry before the selected one, round and round.
    base::SongEntry Previous();
    /// Takes over entries that were kept, and selects a row of them; none when there is no such row.
    void Restore(const std::vector<std::string>& entries, int row);
    /// Every entry, in order.
    std::vector<std::string> Entries() const;
    int Count() const { return controls_.lstNowPlaying.ListCount(); }
    /// The selected row; -1 for none.
    int Row() const { return controls_.lstNowPlaying.ListIndex(); }
    /// The entry of a row, which must be there.
    base::SongEntry At(int row) const { return base::SongEntry(controls_.lstNowPlaying.List(row)); }
    /// Grows each time that other entries are taken over.
    std::uint64_t Version() const { return version_; }

private:
    PlayOrderControls& controls_;
    ports::Chance& chance_;
    std::uint64_t version_ = 0;
};

}  // namespace player
