// The playing order: a copy of the visible tracks' entries, taken at a double click, walked for ever.
#pragma once

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
    /// The entry before the selected one, round and round.
    base::SongEntry Previous();
    int Count() const { return controls_.lstNowPlaying.ListCount(); }

private:
    PlayOrderControls& controls_;
    ports::Chance& chance_;
};

}  // namespace player
