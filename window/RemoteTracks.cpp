#include "window/RemoteTracks.h"

#include <algorithm>

namespace window {
namespace {

/// A list of a hundred thousand tracks would be too much for a message, and for whoever shows it.
constexpr int kMostListed = 100;
constexpr int kListedBefore = 20;
/// Above any count of starts.
constexpr std::int64_t kNumbersOfAnOrder = std::int64_t{1} << 32U;

std::int64_t NumberOf(std::uint64_t version, int row) {
    return static_cast<std::int64_t>(version) * kNumbersOfAnOrder + row;
}

}  // namespace

void RemoteTracks::Look(const roles::OrderGlance& order, std::int64_t playing) {
    const int last_first = std::max(order.count - kMostListed, 0);
    first_row_ = std::clamp(order.row - kListedBefore, 0, last_first);
    numbers_.clear();
    for (int row = first_row_; row < std::min(order.count, first_row_ + kMostListed); ++row)
        numbers_.push_back(NumberOf(order.version, row));
    if (playing > 0 && order.row >= 0 && order_.PlaysItsRow())
        numbers_[static_cast<std::size_t>(order.row - first_row_)] = playing;
}

std::optional<int> RemoteTracks::RowOf(std::int64_t number) const {
    const auto found = std::find(numbers_.begin(), numbers_.end(), number);
    if (found == numbers_.end()) return std::nullopt;
    return first_row_ + static_cast<int>(found - numbers_.begin());
}

std::vector<ports::ListedTrack> RemoteTracks::Describe(const std::vector<std::int64_t>& numbers) {
    std::vector<ports::ListedTrack> tracks;
    std::vector<int> rows;
    for (const std::int64_t number : numbers) {
        const std::optional<int> row = RowOf(number);
        if (!row) continue;
        tracks.push_back({.track = number, .title = {}, .artist = {}, .path = {}});
        rows.push_back(*row);
    }
    const std::vector<roles::OrderedSong> songs = order_.SongsAt(rows);
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        tracks[i].title = songs[i].title;
        tracks[i].artist = songs[i].artist;
        if (!songs[i].path.empty()) tracks[i].path = files_.ToNative(songs[i].path);
    }
    return tracks;
}

void RemoteTracks::Play(std::int64_t number) {
    if (const std::optional<int> row = RowOf(number)) order_.PlayRow(*row);
}

}  // namespace window
