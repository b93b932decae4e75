// The three linked lists of the music pane: playlists, artists, tracks.
//
// lstTracks and lstMaybe are filled by one verb and stay row for row beside each other. Of all fills only
// OpenPlayList yields, and while the program starts all do, since the login is in use meanwhile; any fill
// that begins during a yield takes the lists over, and the older one stops where it is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/SongEntry.h"
#include "controls/Event.h"
#include "controls/ListBox.h"
#include "library/DistinctTexts.h"
#include "library/LibraryControls.h"
#include "ports/EventLoop.h"
#include "roles/Favourites.h"
#include "roles/Highlights.h"
#include "roles/History.h"
#include "roles/MediaKeys.h"
#include "roles/Start.h"
#include "roles/TrackLists.h"
#include "roles/TrackView.h"

namespace library {

/// Notified of what happens in the lists. Why: the rooms that answer use the lists themselves.
class LibraryListener {
public:
    virtual ~LibraryListener() = default;
    /// The Delete key was pressed on the artists or the tracks.
    virtual void OnRemoveKey() = 0;
    /// Ctrl+Z was pressed on one of the lists.
    virtual void OnUndoKey() = 0;
    /// The reload reached one of the files that were opened last.
    virtual void OnInitialTrack(std::string_view path) = 0;
    /// The reload has come to its end.
    virtual void OnReloaded() = 0;
    /// Tasks of the other rooms are to end.
    virtual void OnEndTasks() = 0;
};

/// What the reload and the views ask of other subjects.
struct LibraryListRoles {
    roles::Start& start;
    roles::Favourites& favourites;
    roles::History& history;
    roles::Highlights& highlights;
    roles::MediaKeys& keys;
};

/// The controls of other groups that the lists share.
struct SharedLists {
    controls::ListBox& lstAddToPlaylist;   ///< gets the playlist names alone
    controls::ListBox& lstEditPlayList;    ///< gets the rows of lstPlayLists
    const controls::ListBox& lstOpenWith;  ///< the paths that the program was started with
};

class LibraryListsRoom final : public roles::TrackLists, public roles::TrackView {
public:
    /// `ListMaybeChanged` is set whenever the track list is refilled: what the player copied of it is out of
    /// date.
    LibraryListsRoom(LibraryListControls& controls, SharedLists shared, MediaSources& sources,
                     bool& ListMaybeChanged, ports::EventLoop& loop, LibraryListener& listener,
                     LibraryListRoles others);

    // roles::TrackLists
    /// The reload sequence: playlists, artists, tracks, favourites, then the files that were opened
    /// last, and at its end the file type.
    void Command1() override;
    void RefillIfEmpty() override;
    void EndTasks() override { listener_.OnEndTasks(); }
    /// Each playlist once, in first-seen order, at most 100.
    void DisplayPlayLists() override;

    // roles::TrackView
    void BeginView() override;
    void AddSong(std::string_view song_id, std::string_view artist, std::string_view title) override;
    void AddPlayedSong(std::string_view song_id, std::string_view artist, std::string_view title) override;
    void EndView() override;

    /// The artists of a playlist; of the whole library for an empty name or "[All Media]". False when another
    /// fill has taken the lists over, or the program ends.
    bool DisplayArtists(std::string_view playlist);
    /// The tracks of a playlist and an artist. An empty playlist or "[All Media]" is the library; an empty
    /// artist or "[All Artists]" is every artist. The other built-in views are filled again and then narrowed
    /// to the artist.
    void DisplayTracks(std::string_view playlist, std::string_view artist);
    /// Tracks and artists of one playlist; yields after each row.
    void OpenPlayList(std::string_view name);
    /// Adds each row of lstMusicTest once to lstArtists.
    void NoDuplicateArtists();
    /// Adds a track from outside the library, as a drop on the tracks does: its entry is its path.
    void AddOutsideTrack(std::string_view text, std::string_view path);

    /// Text of the selected track's row; empty without a selection.
    std::string SelectedTrack() const { return std::string(controls_.lstTracks.Text()); }
    /// Moves lstMaybe to the selected track and returns its entry; an empty one without a selection.
    base::SongEntry SelectedEntry();
    /// The selected playlist row, trimmed; empty when none is selected.
    std::string SelectedPlayList() const;
    /// Says in the place of the count how many rows an undo put back.
    void ShowPutBack(std::size_t count);
    /// Moves the keyboard focus to the tracks.
    void FocusTracks() { controls_.lstTracks.SetFocus(); }

    /// Rows of tblPlayList and of tblSong met by the last walk over them.
    int DatabasePlayListID = 0;
    int DatabaseTrackID = 0;
    /// The track list shows the "[Top 20]".
    bool TopViewShown = false;

private:
    void lstPlayLists_Click();
    void lstArtists_Click();
    void lstTracks_Click();
    void lstPlayLists_KeyDown(int key_code, int shift);
    void List_KeyDown(int key_code, int shift);

    class Fill;

    void DisplayLibrary();
    bool ReadAhead(const store::DataSource& source, std::string_view query);
    void ClearTracks();
    void AddTrack(std::string_view song_id, std::string_view artist, std::string_view title);
    void AddArtist(std::string_view artist);
    bool DisplayLibraryTracks(std::string_view artist);
    void DisplayPlayListTracks(std::string_view playlist, std::string_view artist);
    void ShowLast20();
    void ShowTop20();
    void FillTop20Keys();
    void ShowTop20Tracks();
    bool IsWanted(std::string_view artist) const;
    void NarrowView(std::string_view view, std::string_view artist);
    void ShowCount(std::string_view hint);

    LibraryListControls& controls_;
    SharedLists shared_;
    MediaSources& sources_;
    bool& ListMaybeChanged_;
    ports::EventLoop& loop_;
    LibraryListener& listener_;
    LibraryListRoles others_;
    DistinctTexts seen_artists_;
    std::uint64_t filling_ = 0;  // counts the fills
    bool narrowing_ = false;
    std::string only_artist_;  // whose tracks alone a view of played songs shows; empty for all
    controls::EventClaims claims_;
};

}  // namespace library
