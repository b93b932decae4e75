#include "store/Songs.h"

#include "base/Text.h"
#include "store/Tables.h"

namespace store {

std::string SongPathFromId(DataSource& datSong, std::string_view song_id) {
    if (!datSong.Open(kAllSongs)) return {};
    RecordSet& songs = datSong.Recordset();
    for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext()) {
        if (base::Trim(songs.Text(tblSong::SongID)) == song_id) {
            return std::string(songs.Text(tblSong::FilePath));
        }
    }
    return {};
}

}  // namespace store
