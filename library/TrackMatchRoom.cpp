#include "library/TrackMatchRoom.h"

#include "base/Number.h"
#include "library/TableRows.h"
#include "library/TrackNames.h"
#include "store/Tables.h"

namespace library {

TrackMatchRoom::TrackMatchRoom(TrackImportControls& controls, TrackMatchPanel panel, MediaSources& sources,
                               PlayListRoom& playlists, ports::EventLoop& loop)
    : controls_(controls), panel_(panel), sources_(sources), playlists_(playlists), loop_(loop) {}

void TrackMatchRoom::SearchTrack(int index) {
    if (index < 0 || index >= controls_.lstTracksToAdd.ListCount()) return;
    const std::string artist(controls_.lstartist.List(index));
    const std::string title(controls_.lsttitle.List(index));
    store::RecordSet songs = OpenRows(sources_.datSong, store::kAllSongs);
    const auto match = index_.FirstMatch(songs, CorrectedName(artist), CorrectedName(title));
    // The row that a walk would end on.
    if (match) {
        songs.MoveTo(*match);
    } else {
        songs.MoveLast();
    }
    CorrectSearchCriteria(artist, title, songs.Text(store::tblSong::artist),
                          songs.Text(store::tblSong::title));
    if (match) {
        AddFound(songs);
    } else {
        missing_text_.append(artist).append(" - ").append(title).append("\r\n");
        panel_.lblDuplicatesNoRemoved.SetCaption(base::ToText(++missing_));
    }
    loop_.Yield();
}

void TrackMatchRoom::AddKnownSong(int index, store::Bookmark song) {
    store::RecordSet songs = OpenRows(sources_.datSong, store::kAllSongs);
    if (!songs.MoveTo(song)) return SearchTrack(index);
    AddFound(songs);
    loop_.Yield();
}

void TrackMatchRoom::AddFound(const store::RecordSet& song) {
    playlists_.AddRow(panel_.lblStatus.Caption(), song.Text(store::tblSong::SongID),
                      song.Text(store::tblSong::artist), song.Text(store::tblSong::title));
    panel_.lblFoundNo.SetCaption(base::ToText(++found_));
}

void TrackMatchRoom::CorrectSearchCriteria(std::string_view search_artist, std::string_view search_title,
                                           std::string_view row_artist, std::string_view row_title) {
    SearchArtist = CorrectedName(search_artist);
    RowArtist = CorrectedName(row_artist);
    SearchTitle = CorrectedName(search_title);
    RowTitle = CorrectedName(row_title);
}

void TrackMatchRoom::BeginMatching() {
    found_ = 0;
    missing_ = 0;
    missing_text_.clear();
    index_ = {};
}

}  // namespace library
