// The back-up pane of the preferences: writes playlists out as ".mpl" files, and shows what is in them.
//
// Choosing a playlist shows its tracks, choosing a track its texts; a file is made of these texts, track for
// track. A file is written whole or not at all, so a back-up that fails never costs the one before. The
// built-in views are no playlists: nothing is written for them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "controls/CommandButton.h"
#include "controls/Event.h"
#include "controls/FolderLists.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/TextBox.h"
#include "ports/Clock.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "roles/TrackLists.h"
#include "session/SessionState.h"
#include "store/DataSource.h"

namespace session {

struct BackUpControls {
    /// `files` must outlive the controls.
    explicit BackUpControls(const ports::Files& files);

    controls::Frame fraBackUp{"fraBackUp"};
    controls::Label lblBackUp{"lblBackUp", "BACK UP"};
    controls::Label Label4{"Label4",
                           "This lets you backup all your play lists to a folder. If you ever want to "
                           "re-make the play list you can just open the play list mpl file with "
                           "Brindlepost and the play list wil be created."};
    controls::Label lblBackFolder{"lblBackFolder", "Folder:"};
    controls::TextBox txtBackFolder{"txtBackFolder"};
    controls::Label lblLastBackupLabel{"lblLastBackupLabel", "Last back up:"};
    controls::Label lblLastBackup{"lblLastBackup"};
    controls::Label lblEditPlayList{"lblEditPlayList", "PLAY LISTS"};
    controls::ListBox lstEditPlayList{"lstEditPlayList"};  ///< the library's list fills it
    controls::Label lblEditTracks{"lblEditTracks", "TRACKS"};
    controls::ListBox lstEditPlayListTracks{"lstEditPlayListTracks"};
    controls::Label lblEditArtist{"lblEditArtist", "Artist:"};
    controls::TextBox txtEditArtist{"txtEditArtist"};
    controls::Label lblEditTitle{"lblEditTitle", "Title:"};
    controls::TextBox txtEditTitle{"txtEditTitle"};
    controls::Label lblEditNumber{"lblEditNumber", "Track number:"};
    controls::Label lblEditTrackNumber{"lblEditTrackNumber"};
    controls::CommandButton cmdBackUpAll{"cmdBackUpAll", "Back up"};
    controls::CommandButton cmdBackUp{"cmdBackUp", "Back Up All"};

    // Hidden: the SongID of each track, a name that nothing fills, the contents of the file that is being
    // written, the folder that is being made.
    controls::ListBox lstEditID{"lstEditID"};
    controls::TextBox txtRename{"txtRename"};
    controls::TextBox txtSave{"txtSave"};
    controls::DirListBox Dir1;
};

struct BackUpSources {
    store::DataSource& datHistory;
    store::DataSource& datSong;
    store::DataSource& datPlayList;
};

struct BackUpPorts {
    ports::Files& files;
    ports::Dialogs& dialogs;
    const ports::Clock& clock;
    ports::EventLoop& loop;
};

class BackUpRoom final {
public:
    BackUpRoom(BackUpControls& controls, BackUpSources sources, SessionOptions& options,
               roles::TrackLists& lists, BackUpPorts ports);

    /// Fills the pane for the user who comes to it. The data sources must be bound.
    void OpenPane();

private:
    /// Lines for the boxes after a back-up.
    struct Notes {
        std::vector<std::string> failed;
        std::vector<std::string> too_long;
    };

    void lstEditPlayList_Click();
    void lstEditPlayListTracks_Click();
    void cmdBackUpAll_Click();
    void cmdBackUp_Click();

    void ClearTracks();
    void ClearTrack();
    void FindEditTracks(std::string_view name);
    /// The songs of a play list, of all play lists for an empty name, row for row.
    std::vector<std::string> SongIdsOf(std::string_view name);
    void FindSongs(const std::vector<std::string>& song_ids);
    void addeditplaylistsong(store::RecordSet& songs);
    /// To the song of a row of the tracks; false when it has left the library.
    bool MoveToSong(store::RecordSet& songs, int row) const;
    void LoadEditTracks();
    void ShowLastBackUp();
    std::string ChosenPlayList() const;

    /// The folder to write to, there by now; empty after a box that says why there is none.
    std::string TakeFolder(bool is_list_chosen);
    bool IsFolderAccepted(bool is_list_chosen);
    std::string MakeDirectory(std::string_view folder);
    void BackUpFiles(std::string_view folder, Notes& notes);
    void CollectTracks();
    void NoteUnlisted(Notes& notes);
    void Tell(const Notes& notes, std::string_view folder);
    void StoreToday();

    BackUpControls& controls_;
    BackUpSources sources_;
    SessionOptions& options_;
    roles::TrackLists& lists_;
    BackUpPorts ports_;
    std::vector<store::Bookmark> songs_;  // of each row of the tracks, the song
    std::uint64_t rewrites_ = 0;          // of the songs' numbers, when the tracks were listed
    /// Where the songs of a list are; while all lists are backed up, those of all.
    std::unordered_map<std::string, std::optional<store::Bookmark>> found_songs_;
    bool are_all_found_ = false;
    controls::EventClaims claims_;
};

}  // namespace session
