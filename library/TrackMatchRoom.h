// The track matcher: finds the song of the library for a line of a playlist file.
//
// Names are compared corrected, never raw. The answer is that of a walk over all songs from the first one;
// an index of corrected names stands in for the walk.
#pragma once

#include <string>
#include <string_view>

#include "controls/Label.h"
#include "library/LibraryControls.h"
#include "library/LibraryOutlets.h"
#include "library/TrackIndex.h"
#include "ports/EventLoop.h"

namespace library {

/// The counters beside "Tracks found:" and "Tracks missing:".
struct TrackCounters {
    controls::Label& found;
    controls::Label& missing;
};

class TrackMatchRoom final {
public:
    /// `lstTracksToAdd`, `lstartist` and `lsttitle` run in step, one row a line.
    TrackMatchRoom(TrackImportControls& controls, TrackCounters counters, MediaSources& sources,
                   PlayListBeingBuilt& playlist, ports::EventLoop& loop);

    /// Adds the first song that fits the line of this row to the playlist that is being built, or the line to
    /// the missing text; counts it, and yields. A row that is not there changes nothing.
    void SearchTrack(int index);
    /// Writes the four corrected names.
    void CorrectSearchCriteria(std::string_view search_artist, std::string_view search_title,
                               std::string_view row_artist, std::string_view row_title);
    /// For a new file: no line is missing yet, and the room of the last file's index is given back.
    void BeginMatching();
    /// The lines that were not found, each with a line break behind it.
    const std::string& MissingText() const { return missing_text_; }

    /// What CorrectSearchCriteria wrote last.
    std::string SearchArtist;
    std::string RowArtist;
    std::string SearchTitle;
    std::string RowTitle;

private:
    TrackImportControls& controls_;
    TrackCounters counters_;
    MediaSources& sources_;
    PlayListBeingBuilt& playlist_;
    ports::EventLoop& loop_;
    TrackIndex index_;
    std::string missing_text_;
};

}  // namespace library
