// The three linked lists of the music pane: playlists, artists, tracks.
//
// lstTracks and lstMaybe are filled by one verb and stay row for row beside each other. Of all fills only
// OpenPlayList yields; any fill that begins during its yield takes the lists over, and the older one stops
// where it stands.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/Event.h"
#include "controls/ListBox.h"
#include "library/DistinctTexts.h"
#include "library/LibraryControls.h"
#include "library/LibraryOutlets.h"
#include "ports/EventLoop.h"

namespace library {

/// What the lists reach outside of their own group.
struct LibraryListOutlets {
    ReloadSteps& reload;
    MusicHistory& history;
    LibraryListener& listener;
    MouseOvers& mouse_overs;
};

class LibraryListsRoom final : public TrackView, public LibraryDesk {
public:
    /// `lstAddToPlaylist` gets the playlist names alone; `lstOpenWith` holds the paths the program was
    /// started with.
    LibraryListsRoom(LibraryListControls& controls, MediaSources& sources,
                     controls::ListBox& lstAddToPlaylist, const controls::ListBox& lstOpenWith,
                     ports::EventLoop& loop, LibraryListOutlets outlets);

    /// The reload sequence: playlists, artists, tracks, favourites, then the tracks the program was opened
    /// with.
    void Command1() override;
    /// Each playlist once, in first-seen order, at most 100.
    void DisplayPlayLists() override;
    /// The artists of a playlist; of the whole library for an empty name or "[All Media]".
    void DisplayArtists(std::string_view playlist);
    /// The tracks of a playlist and an artist. An empty playlist or "[All Media]" is the library; an empty
    /// artist or "[All Artists]" is every artist. The other built-in views are filled again and then narrowed
    /// to the artist.
    void DisplayTracks(std::string_view playlist, std::string_view artist);
    /// Tracks and artists of one playlist; yields after each row.
    void OpenPlayList(std::string_view name);
    /// Adds each row of lstMusicTest once to lstArtists.
    void NoDuplicateArtists();
    /// Fills artists and tracks from the whole library if no track is shown.
    void RefillIfEmpty();
    /// A track from outside the library, behind the others: its entry is its path.
    void AddOutsideTrack(std::string_view text, std::string_view path);

    // TrackView
    void BeginView() override;
    void AddSong(std::string_view song_id, std::string_view artist, std::string_view title) override;
    void EndView() override;
    /// A song that was played, with the blanks around its texts shown in the artists alone.
    void AddPlayedSong(std::string_view song_id, std::string_view artist, std::string_view title);

    // LibraryDesk
    std::string SelectedTrack() const override { return std::string(controls_.lstTracks.Text()); }
    std::string SelectedEntry() override;
    std::string SelectedPlayList() const override;
    void FocusTracks() override { controls_.lstTracks.SetFocus(); }

    /// Rows of tblPlayList and of tblSong met by the last walk over them.
    int DatabasePlayListID = 0;
    int DatabaseTrackID = 0;
    /// The track list shows the "[Top 20]".
    bool TopViewShown = false;

private:
    void lstPlayLists_Click();
    void lstArtists_Click();
    void lstTracks_Click();
    void List_KeyDown(int key_code);

    void ClearTracks();
    void AddTrack(std::string_view song_id, std::string_view artist, std::string_view title);
    void AddArtist(std::string_view artist);
    void DisplayLibraryTracks(std::string_view artist);
    void DisplayPlayListTracks(std::string_view playlist, std::string_view artist);
    void ShowLast20();
    void ShowTop20();
    void FillTop20Keys();
    void ShowTop20Tracks();
    bool IsWanted(std::string_view artist) const;
    void NarrowView(std::string_view view, std::string_view artist);
    void TellCount(std::string_view hint);

    LibraryListControls& controls_;
    MediaSources& sources_;
    controls::ListBox& add_names_;
    const controls::ListBox& open_with_;
    ports::EventLoop& loop_;
    LibraryListOutlets outlets_;
    DistinctTexts seen_artists_;
    std::uint64_t filling_ = 0;  // counts the fills of the track list
    bool narrowing_ = false;
    std::string only_artist_;  // whose tracks alone a view of played songs shows; empty for everyone's
    controls::EventClaims claims_;
};

}  // namespace library
