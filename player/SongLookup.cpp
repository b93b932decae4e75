#include "player/SongLookup.h"

#include "base/Number.h"
#include "store/FirstRows.h"
#include "store/Songs.h"
#include "store/Tables.h"

namespace player {

/// The numbers of the table are whole, so that equal numbers are equal texts.
std::optional<std::string> SongLookup::PathOf(std::int64_t song_id) {
    if (!songs_.Open(store::kAllSongs)) return std::nullopt;
    store::RecordSet& songs = songs_.Recordset();
    if (!songs.MoveToFirst(store::tblSong::SongID, base::ToText(song_id))) return std::nullopt;
    return std::string(songs.Text(store::tblSong::FilePath));
}

std::string SongLookup::PathOfEntry(const base::SongEntry& entry) {
    if (!entry.IsSongId()) return entry.Text();
    return store::SongPathFromId(songs_, base::ToText(entry.SongId()));
}

std::vector<std::string> SongLookup::PathsOf(const std::vector<base::SongEntry>& entries) {
    std::vector<std::string> paths;
    std::vector<std::string> song_ids;
    for (const base::SongEntry& entry : entries) {
        paths.push_back(entry.IsSongId() ? std::string() : entry.Text());
        song_ids.push_back(entry.IsSongId() ? base::ToText(entry.SongId()) : std::string());
    }
    if (!songs_.Open(store::kAllSongs)) return paths;
    store::RecordSet& songs = songs_.Recordset();
    const auto found = store::FirstRowsWith(songs, store::tblSong::SongID, song_ids);
    for (std::size_t i = 0; i < paths.size(); ++i) {
        const auto& row = found[i];
        if (!song_ids[i].empty() && row && songs.MoveTo(*row))
            paths[i] = songs.Text(store::tblSong::FilePath);
    }
    return paths;
}

std::optional<SongLookup::Song> SongLookup::SongAt(std::string_view path) {
    if (!songs_.Open(store::kAllSongs)) return std::nullopt;
    store::RecordSet& songs = songs_.Recordset();
    if (!songs.MoveToFirst(store::tblSong::FilePath, path)) return std::nullopt;
    return Song{std::string(songs.Text(store::tblSong::SongID)),
                std::string(songs.Text(store::tblSong::artist)),
                std::string(songs.Text(store::tblSong::title))};
}

void SongLookup::AddPlayCount(std::string_view filename) {
    if (!songs_.Open(store::kAllSongs)) return;
    store::RecordSet& songs = songs_.Recordset();
    if (!songs.MoveToFirst(store::tblSong::FilePath, filename) || !songs.Edit()) return;
    const std::int64_t plays = base::WholeVal(songs.Text(store::tblSong::PlayCount));
    songs.Set(store::tblSong::PlayCount, base::ToText(base::OneMore(plays)));
    songs.Update();
}

}  // namespace player
