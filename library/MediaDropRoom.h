// What is dropped on the tracks and on the playlists: files from the desktop, and tracks dragged inside of
// the window, which carry their SongID as text.
//
// Each target has a list of extensions of its own. Files of any other kind are skipped.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "library/LibraryControls.h"
#include "library/LibraryListsRoom.h"
#include "library/PlayListRoom.h"
#include "roles/MediaIntake.h"

namespace library {

class MediaDropRoom final {
public:
    MediaDropRoom(LibraryListControls& controls, MediaSources& sources, LibraryListsRoom& lists,
                  PlayListRoom& playlists, roles::MediaIntake& intake);

    /// Adds a file to a playlist under the names that its file name tells, with the SongID of the first song
    /// of those names, or else of that path; without one the lists do not show it.
    void AddTracksOLE(std::string_view path, std::string_view playlist);
    /// Adds a song of the library to a playlist; a SongID that is not there adds nothing.
    void playlistfromole(std::string_view song_id, std::string_view playlist);

private:
    void lstTracks_OLEDragDrop(const controls::DropData& data);
    void lstPlayLists_OLEDragDrop(const controls::DropData& data);

    void DropOnPlayList(const controls::DropData& data, const std::string& playlist);
    std::string PlayListAt(int row) const;
    std::string SongIdOf(std::string_view path, std::string_view artist, std::string_view title);

    LibraryListControls& controls_;
    MediaSources& sources_;
    LibraryListsRoom& lists_;
    PlayListRoom& playlists_;
    roles::MediaIntake& intake_;
    controls::EventClaims claims_;
};

}  // namespace library
