#include "library/TrackIndex.h"

#include <algorithm>
#include <string>

#include "base/Text.h"
#include "library/TrackNames.h"
#include "store/Tables.h"

namespace library {
namespace {

std::uint64_t PairOf(std::uint32_t artist, std::uint32_t title) {
    return std::uint64_t{artist} << 32U | title;
}

std::uint64_t RewritesOf(const store::RecordSet& songs) {
    return songs.Rewrites(store::tblSong::artist) + songs.Rewrites(store::tblSong::title);
}

}  // namespace

std::uint32_t TrackIndex::Names::NumberOf(std::string_view name) {
    longest_ = std::max(longest_, name.size());
    return texts_.NumberOf(name);
}

TrackIndex::Numbers TrackIndex::Names::In(std::string_view text) const {
    Numbers numbers;
    if (const auto empty = texts_.Find({})) numbers.push_back(*empty);
    for (std::size_t begin = 0; begin < text.size(); ++begin) {
        const std::size_t longest = std::min(longest_, text.size() - begin);
        for (std::size_t length = 1; length <= longest; ++length) {
            const std::string_view part = text.substr(begin, length);
            const auto number = texts_.Find(part);
            // A stray byte is a name, but not inside of a character.
            if (number && base::Contains(text, part)) numbers.push_back(*number);
        }
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

std::optional<store::Bookmark> TrackIndex::FirstMatch(store::RecordSet& songs, std::string_view artist,
                                                      std::string_view title) {
    Update(songs);
    std::optional<store::Bookmark> first;
    const Numbers titles = titles_.In(std::string("C").append(title));
    for (const std::uint32_t its_artist : artists_.In(std::string("A").append(artist))) {
        for (const std::uint32_t its_title : titles) {
            const auto pair = pairs_.find(PairOf(its_artist, its_title));
            if (pair == pairs_.end()) continue;
            const std::optional<store::Bookmark> song = FirstLeft(songs, pair->second);
            if (song && (!first || *song < *first)) first = song;
        }
    }
    return first;
}

// Songs that were deleted stay in the index; the others of their names stand behind them.
std::optional<store::Bookmark> TrackIndex::FirstLeft(store::RecordSet& songs, const Songs& pair) const {
    store::Bookmark song = pair.first;
    while (!songs.MoveTo(song)) {
        if (song == pair.last) return std::nullopt;
        song = next_[song];
    }
    return song;
}

void TrackIndex::Update(store::RecordSet& songs) {
    const store::Bookmark end = songs.EndOfBookmarks();
    if (rewrites_ != RewritesOf(songs) || end < next_.size()) {
        *this = {};
        rewrites_ = RewritesOf(songs);
    }
    while (next_.size() < end) {
        const auto row = static_cast<store::Bookmark>(next_.size());
        next_.push_back(row);
        if (songs.MoveTo(row)) Add(songs);
    }
}

void TrackIndex::Add(const store::RecordSet& song) {
    const std::uint32_t artist = artists_.NumberOf(CorrectedName(song.Text(store::tblSong::artist)));
    const std::uint32_t title = titles_.NumberOf(CorrectedName(song.Text(store::tblSong::title)));
    const store::Bookmark row = song.CurrentBookmark();
    const auto [pair, is_new] = pairs_.try_emplace(PairOf(artist, title), Songs{row, row});
    if (is_new) return;
    next_[pair->second.last] = row;
    pair->second.last = row;
}

}  // namespace library
