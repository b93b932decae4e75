#include "player/OrderView.h"

#include <utility>

#include "base/DrivePath.h"
#include "base/MediaKinds.h"
#include "base/Text.h"
#include "player/SongTitle.h"

namespace player {

OrderView::OrderView(const TitleControls& controls, PlayerState& state, OrderRooms rooms)
    : controls_(controls), state_(state), rooms_(rooms) {}

roles::OrderGlance OrderView::Order() const {
    return {.repeats = rooms_.mode.IsRepeatChecked(),
            .shuffles = rooms_.mode.IsShuffling(),
            .version = rooms_.order.Version(),
            .count = rooms_.order.Count(),
            .row = rooms_.order.Row()};
}

bool OrderView::PlaysItsRow() {
    const int row = rooms_.order.Row();
    return row >= 0 &&
           rooms_.songs.PathOfEntry(rooms_.order.At(row)) == controls_.lblFileNowPlaying.Caption();
}

std::vector<roles::OrderedSong> OrderView::SongsAt(const std::vector<int>& rows) {
    std::vector<base::SongEntry> entries;
    entries.reserve(rows.size());
    for (const int row : rows)
        entries.push_back(rooms_.order.At(row));
    std::vector<roles::OrderedSong> songs;
    songs.reserve(rows.size());
    for (std::string& path : rooms_.songs.PathsOf(entries)) {
        const SongTitle title =
            TitleOfFile(base::WithoutStandIns(base::FileNameOf(path)), base::IsVideoFile(path));
        songs.push_back({.artist = std::string(base::Trim(title.artist)),
                         .title = std::string(base::Trim(title.title)),
                         .path = std::move(path)});
    }
    return songs;
}

void OrderView::SetRepeat(bool repeat) {
    if (rooms_.mode.IsRepeatChecked() != repeat) rooms_.mode.ToggleRepeat();
}

void OrderView::SetShuffle(bool shuffle) {
    if (rooms_.mode.IsShuffling() != shuffle) rooms_.mode.ToggleShuffle();
}

void OrderView::PlayRow(int row) {
    if (row < 0 || row >= rooms_.order.Count()) return;
    state_.MissingTrackCount = 0;
    rooms_.playback.PlaySong(rooms_.songs.PathOfEntry(rooms_.order.Select(row)));
}

}  // namespace player
