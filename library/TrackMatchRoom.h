// The track matcher: finds the song of the library for a line of a playlist file.
//
// Names are compared corrected, never raw. The answer is that of a walk over all songs from the first one;
// an index of corrected names replaces the walk.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/Label.h"
#include "library/LibraryControls.h"
#include "library/PlayListRoom.h"
#include "library/TrackIndex.h"
#include "ports/EventLoop.h"
#include "store/RecordSet.h"

namespace library {

/// What the panel shows while a playlist file is read.
struct TrackMatchPanel {
    controls::Label& lblFoundNo;              ///< beside "Tracks found:"
    controls::Label& lblDuplicatesNoRemoved;  ///< beside "Tracks missing:"
    const controls::Label& lblStatus;         ///< the name of the playlist that is being built
};

class TrackMatchRoom final {
public:
    /// `lstTracksToAdd`, `lstartist` and `lsttitle` run in step, one row a line.
    TrackMatchRoom(TrackImportControls& controls, TrackMatchPanel panel, MediaSources& sources,
                   PlayListRoom& playlists, ports::EventLoop& loop);

    /// Adds the first song that fits the line of this row to the playlist that is being built, or the line to
    /// the missing text; counts it, and yields. A row that is not there changes nothing.
    void SearchTrack(int index);
    /// As SearchTrack for a line whose song is known already. A song that is gone is searched for by name.
    void AddKnownSong(int index, store::Bookmark song);
    /// Writes the four corrected names.
    void CorrectSearchCriteria(std::string_view search_artist, std::string_view search_title,
                               std::string_view row_artist, std::string_view row_title);
    /// For a new file: no line is found or missing yet, and the memory of the last file's index is freed.
    void BeginMatching();
    /// The lines that were not found, each with a line break after it.
    const std::string& MissingText() const { return missing_text_; }

    /// What CorrectSearchCriteria wrote last.
    std::string SearchArtist;
    std::string RowArtist;
    std::string SearchTitle;
    std::string RowTitle;

private:
    void AddFound(const store::RecordSet& song);

    TrackImportControls& controls_;
    TrackMatchPanel panel_;
    MediaSources& sources_;
    PlayListRoom& playlists_;
    ports::EventLoop& loop_;
    TrackIndex index_;
    std::int64_t found_ = 0;
    std::int64_t missing_ = 0;
    std::string missing_text_;
};

}  // namespace library
