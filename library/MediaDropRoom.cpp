#include "library/MediaDropRoom.h"

#include <algorithm>
#include <array>

#include "base/DrivePath.h"
#include "base/MediaKinds.h"
#include "base/Text.h"
#include "library/Naming.h"
#include "library/SpecialRows.h"
#include "library/TableRows.h"
#include "store/Tables.h"

namespace library {
namespace {

constexpr std::array<std::string_view, 8> kTrackKinds{"mpg", "peg", "mp3", "mid", "wav", "wma", "wmv", "avi"};
constexpr std::array<std::string_view, 8> kPlayListMediaKinds{"mpg", "peg", "mp3", "mid",
                                                              "wav", "wma", "wmv", "avi"};
constexpr std::string_view kPlayListKind = "mpl";
constexpr std::size_t kExtensionLength = 4;

bool IsPlayList(std::string_view path) {
    return base::ExtensionOf(path) == kPlayListKind || base::IsForeignPlayListFile(path);
}

// The row of a file from outside the library; an extension of four letters leaves its dot.
std::string TrackText(std::string_view path) {
    const std::string name = base::WithoutStandIns(base::FileNameOf(path));
    const std::size_t length = base::Len(name);
    std::string text(base::Left(name, length > kExtensionLength ? length - kExtensionLength : 0));
    if (base::IsVideoFile(path)) text += " [Video]";
    return text;
}

}  // namespace

MediaDropRoom::MediaDropRoom(LibraryListControls& controls, MediaSources& sources, LibraryListsRoom& lists,
                             PlayListRoom& playlists, roles::MediaIntake& intake)
    : controls_(controls), sources_(sources), lists_(lists), playlists_(playlists), intake_(intake) {
    claims_.Claim(controls_.lstPlayLists.OLEDragDrop,
                  [this](const controls::DropData& data, double, double) { lstPlayLists_OLEDragDrop(data); });
    claims_.Claim(controls_.lstTracks.OLEDragDrop,
                  [this](const controls::DropData& data, double, double) { lstTracks_OLEDragDrop(data); });
}

void MediaDropRoom::lstTracks_OLEDragDrop(const controls::DropData& data) {
    for (const std::string& path : data.Files) {
        if (base::HasExtension(path, kTrackKinds)) lists_.AddOutsideTrack(TrackText(path), path);
    }
}

// The row is read first: the lists are other ones once a playlist file was read.
void MediaDropRoom::lstPlayLists_OLEDragDrop(const controls::DropData& data) {
    const std::string playlist = PlayListAt(data.Row);
    if (data.HasText) {
        if (!playlist.empty()) playlistfromole(data.Text, playlist);
    } else {
        DropOnPlayList(data, playlist);
    }
    // What was added shows at once where it is looked at.
    if (!playlist.empty() && lists_.SelectedPlayList() == playlist) lists_.OpenPlayList(playlist);
}

void MediaDropRoom::DropOnPlayList(const controls::DropData& data, const std::string& playlist) {
    bool read_a_list = false;
    for (const std::string& path : data.Files) {
        if (IsPlayList(path)) {
            intake_.AddPlayList(path);
            read_a_list = true;
        } else if (!playlist.empty() && base::HasExtension(path, kPlayListMediaKinds)) {
            AddTracksOLE(path, playlist);
        }
    }
    if (read_a_list) lists_.Command1();
}

// The playlist of a row; empty for a built-in view and where there is no row.
std::string MediaDropRoom::PlayListAt(int row) const {
    const std::string_view name = base::Trim(controls_.lstPlayLists.List(row));
    const bool is_built_in = name == kAllMedia || name == kLast20 || name == kTop20;
    return is_built_in ? std::string() : std::string(name);
}

void MediaDropRoom::AddTracksOLE(std::string_view path, std::string_view playlist) {
    const SongName name = SongNameFromPath(path);
    playlists_.AddRow(playlist, SongIdOf(path, name.artist, name.title), name.artist, name.title);
}

// Artist and title are compared joined, as one text.
std::string MediaDropRoom::SongIdOf(std::string_view path, std::string_view artist, std::string_view title) {
    const std::string wanted = std::string(artist).append(title);
    std::string joined;
    store::RecordSet songs = OpenRows(sources_.datSong, store::kAllSongs);
    for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext()) {
        joined.assign(songs.Text(store::tblSong::artist)).append(songs.Text(store::tblSong::title));
        if (base::EqualIgnoringCase(joined, wanted)) return std::string(songs.Text(store::tblSong::SongID));
    }
    songs.MoveToFirst(store::tblSong::FilePath, path);
    return std::string(songs.Text(store::tblSong::SongID));
}

void MediaDropRoom::playlistfromole(std::string_view song_id, std::string_view playlist) {
    playlists_.addsong(song_id, playlist);
}

}  // namespace library
