#include "player/PlayOrder.h"

namespace player {

PlayOrder::PlayOrder(PlayOrderControls& controls, ports::Chance& chance)
    : controls_(controls), chance_(chance) {}

void PlayOrder::CopyFrom(const controls::ListBox& entries) {
    controls_.lstNowPlaying.CopyRowsFrom(entries);
    ++version_;
}

void PlayOrder::Restore(const std::vector<std::string>& entries, int row) {
    controls_.lstNowPlaying.Clear();
    for (const std::string& entry : entries)
        controls_.lstNowPlaying.AddItem(entry);
    controls_.lstNowPlaying.SetListIndex(row);
    ++version_;
}

std::vector<std::string> PlayOrder::Entries() const {
    std::vector<std::string> entries;
    entries.reserve(static_cast<std::size_t>(Count()));
    for (int row = 0; row < Count(); ++row)
        entries.emplace_back(controls_.lstNowPlaying.List(row));
    return entries;
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

base::SongEntry PlayOrder::PeekNext() const {
    if (Count() == 0) return base::SongEntry({});
    const int next = Row() + 1;
    return At(next > Count() - 1 ? 0 : next);
}

base::SongEntry PlayOrder::Previous() {
    const int previous = controls_.lstNowPlaying.ListIndex() - 1;
    return Select(previous < 0 ? Count() - 1 : previous);
}

}  // namespace player
