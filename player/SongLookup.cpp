#include "player/SongLookup.h"

#include "base/Number.h"
#include "store/Tables.h"

namespace player {

namespace {

template <class Test>
bool MoveToFirst(store::RecordSet& songs, Test is_wanted) {
    for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext()) {
        if (is_wanted(songs)) return true;
    }
    return false;
}

}  // namespace

std::optional<std::string> SongLookup::PathOf(std::int64_t song_id) {
    if (!datSong_.Open(store::kAllSongs)) return std::nullopt;
    store::RecordSet& songs = datSong_.Recordset();
    const auto number = static_cast<double>(song_id);
    const bool found = MoveToFirst(songs, [number](const store::RecordSet& song) {
        return base::ToNumber(song.Text(store::tblSong::SongID)) == number;
    });
    if (!found) return std::nullopt;
    return std::string(songs.Text(store::tblSong::FilePath));
}

void SongLookup::AddPlayCount(std::string_view filename) {
    if (!datSong_.Open(store::kAllSongs)) return;
    store::RecordSet& songs = datSong_.Recordset();
    const bool found = MoveToFirst(songs, [filename](const store::RecordSet& song) {
        return song.Text(store::tblSong::FilePath) == filename;
    });
    if (!found || !songs.Edit()) return;
    const std::int64_t plays = base::RoundHalfEven(base::Val(songs.Text(store::tblSong::PlayCount)));
    songs.Set(store::tblSong::PlayCount, base::ToText(plays + 1));
    songs.Update();
}

}  // namespace player
