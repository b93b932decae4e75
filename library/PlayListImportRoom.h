// Playlist files come into the library: each line is looked for among the songs, and what is found becomes a
// playlist under the file's name.
//
// An import shows the progress panel and yields at each line. It waits its turn: a file that comes while
// another import or a clean-up runs is read after it. The end of the program and a log out stop it at the
// next line, with what was added by then kept.
//
// Order: the three lists are emptied, the panel is shown, a yield, the panel's texts, the file is read, a
// free name is found, the head row is added, the lines are matched, the box with the result, the panel goes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Label.h"
#include "library/LibraryControls.h"
#include "library/PlayListFile.h"
#include "library/PlayListRoom.h"
#include "library/TaskRoom.h"
#include "library/TrackMatchRoom.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "roles/AddressRow.h"
#include "roles/TrackLists.h"
#include "store/RecordSet.h"

namespace library {

struct ImportRooms {
    TaskRoom& task;
    TrackMatchRoom& matcher;
    PlayListRoom& playlists;
    roles::TrackLists& lists;
};

struct ImportPorts {
    const ports::Files& files;
    ports::Dialogs& dialogs;
    ports::EventLoop& loop;
};

class PlayListImportRoom final {
public:
    /// `name_taken` becomes "Larkmoor" while the name of the new playlist is taken, else empty.
    PlayListImportRoom(TrackImportControls& controls, controls::Label& name_taken, MediaSources& sources,
                       ImportRooms rooms, roles::AddressRow& address, ImportPorts ports);

    /// Reads a playlist file, given by its drive path, its native path or its address. A file that is not
    /// there is ignored. The lists of the pane are the caller's to rebuild.
    void AddPlayList(std::string_view path);

private:
    void Import(const std::string& path);
    bool ShowProgress();
    bool ReadFile(const std::string& path);
    void AddLine(const ListedSong& song);
    void FindKnownSongs(const std::vector<ListedSong>& songs);
    void ReportEmpty(const std::string& path, bool is_read);
    void createplaylist();
    bool IsNameTaken();
    void AddTracks();
    bool AddTrack(int index);
    void ShowResult();

    TrackImportControls& controls_;
    controls::Label& name_taken_;
    MediaSources& sources_;
    ImportRooms rooms_;
    roles::AddressRow& address_;
    ImportPorts ports_;
    /// By line: the song that has one of its paths. Empty when no line has a path.
    std::vector<std::optional<store::Bookmark>> known_songs_;
};

}  // namespace library
