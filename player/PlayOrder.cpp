#include "player/PlayOrder.h"

#include "player/Whole.h"

namespace player {

PlayOrder::PlayOrder(PlayOrderControls& controls, ports::Chance& chance)
    : controls_(controls), chance_(chance) {}

void PlayOrder::CopyFrom(const controls::ListBox& entries) {
    controls_.lstNowPlaying.CopyRowsFrom(entries);
}

std::string PlayOrder::Select(int row) {
    if (!controls_.lstNowPlaying.SetListIndex(row)) return {};
    return std::string(controls_.lstNowPlaying.Text());
}

std::string PlayOrder::Next(bool shuffle) {
    if (shuffle && Count() >= 2) return Select(RandomBelow(Count() - 1));
    const int next = controls_.lstNowPlaying.ListIndex() + 1;
    return Select(next > Count() - 1 ? 0 : next);
}

std::string PlayOrder::Previous() {
    const int previous = controls_.lstNowPlaying.ListIndex() - 1;
    return Select(previous < 0 ? Count() - 1 : previous);
}

int PlayOrder::RandomBelow(int count) {
    return WholeInt(chance_.Below1() * count);
}

}  // namespace player
