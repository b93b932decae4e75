#include "player/PlayOrder.h"

namespace player {

PlayOrder::PlayOrder(PlayOrderControls& controls, ports::Chance& chance)
    : controls_(controls), chance_(chance) {}

void PlayOrder::CopyFrom(const controls::ListBox& entries) {
    controls_.lstNowPlaying.CopyRowsFrom(entries);
    ++version_;
}

base::SongEntry PlayOrder::Select(int row) {
    if (!controls_.lstNowPlaying.SetListIndex(row)) return base::SongEntry({});
    return base::SongEntry(controls_.lstNowPlaying.Text());
}

base::SongEntry PlayOrder::Next(bool shuffle) {
    if (shuffle && Count() >= 2) return Select(ports::RandomIndex(Count() - 1, chance_));
    const int next = controls_.lstNowPlaying.ListIndex() + 1;
    return Select(next > Count() - 1 ? 0 : next);
}

base::SongEntry PlayOrder::Previous() {
    const int previous = controls_.lstNowPlaying.ListIndex() - 1;
    return Select(previous < 0 ? Count() - 1 : previous);
}

}  // namespace player
