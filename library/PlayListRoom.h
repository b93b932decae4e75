// Songs into playlists and out of them: the add and remove buttons, and the panel that asks for the playlist.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "controls/Image.h"
#include "library/LibraryControls.h"
#include "library/LibraryListsRoom.h"
#include "library/LibraryMenu.h"
#include "library/UndoLog.h"
#include "ports/Dialogs.h"
#include "roles/Highlights.h"

namespace library {

class PlayListRoom final {
public:
    PlayListRoom(PlayListControls& controls, PlayListMenu& menu, MediaSources& sources,
                 LibraryListsRoom& lists, UndoLog& undo, ports::Dialogs& dialogs,
                 roles::Highlights& highlights);

    /// Adds a song of the library to a playlist, as often as it is called; a SongID that is not there adds
    /// nothing.
    void addsong(std::string_view song_id, std::string_view playlist_name);
    /// As addsong, for a caller that knows the song's row.
    void AddRow(std::string_view playlist_name, std::string_view song_id, std::string_view artist,
                std::string_view title);
    /// Asks, and takes the song out of the library. Its playlist rows and its file stay.
    void DeleteTrackAllMedia(std::string_view song_id);
    /// Asks for a free name and makes a playlist without songs.
    void AddingPlayList();
    /// Makes the head row of a playlist and returns its PlayListID; empty when the table cannot be written.
    std::string AddHeadRow(std::string_view playlist_name);
    /// A playlist, or one of the built-in views, has this name.
    bool IsNameTaken(std::string_view playlist_name);
    /// Closes the panel that adds a song, with nothing added.
    void CloseAddPanel();
    /// What the Delete key and the menu do: the remove button's click.
    void RemoveSelectedSong() { imgRemoveSongOver_Click(); }

private:
    void imgAddSongOver_Click();
    void imgRemoveSongOver_Click();
    void imgOkOver_Click();
    void imgCancelOver_Click() { HidePanel(); }
    void imgDeletePlayListOver_Click();
    void lstAddToPlaylist_KeyDown(int key_code);
    void fraPlayListCenter_KeyDown(int key_code);
    void mnuNewPlayList_Click() { AddingPlayList(); }
    void mnuRemoveSong_Click() { imgRemoveSongOver_Click(); }

    void ClaimButtons();
    void ClaimPanel();
    void HidePanel();
    static bool HasTwin(store::RecordSet& songs);
    bool IsConfirmed(std::string_view question, std::string_view title);
    void RemoveFromPlayList(const std::string& playlist, const std::string& song_id);
    void ResetPlayCount(const std::string& song_id);

    PlayListControls& controls_;
    PlayListMenu& menu_;
    MediaSources& sources_;
    LibraryListsRoom& lists_;
    UndoLog& undo_;
    ports::Dialogs& dialogs_;
    roles::Highlights& highlights_;
    controls::EventClaims claims_;
};

}  // namespace library
