#include "library/PlayListImportRoom.h"

#include "base/DrivePath.h"
#include "base/MediaKinds.h"
#include "base/Text.h"
#include "library/Naming.h"
#include "library/TableRows.h"
#include "store/FirstRows.h"
#include "store/Tables.h"

namespace library {
namespace {

constexpr std::size_t kOwnExtensionLength = 4;

// The playlist's name; of the program's own kind the last four characters are cut, whatever they are.
std::string NameOfList(std::string_view path) {
    const std::string name = base::WithoutStandIns(base::WithSeparators(base::FileNameOf(path)));
    const std::size_t cut =
        base::IsForeignPlayListFile(path) ? base::Len(base::ExtensionOf(path)) + 1 : kOwnExtensionLength;
    const std::size_t length = base::Len(name);
    return std::string(base::Left(name, length > cut ? length - cut : 0));
}

}  // namespace

PlayListImportRoom::PlayListImportRoom(TrackImportControls& controls, controls::Label& name_taken,
                                       MediaSources& sources, ImportRooms rooms, roles::AddressRow& address,
                                       ImportPorts ports)
    : controls_(controls),
      name_taken_(name_taken),
      sources_(sources),
      rooms_(rooms),
      address_(address),
      ports_(ports) {}

void PlayListImportRoom::AddPlayList(std::string_view path) {
    const std::string file = ports_.files.LocalPath(path);
    if (!FileExists(ports_.files, file)) return;
    // Whoever asked for a file that waits has long rebuilt the lists when its turn comes.
    const bool waits = rooms_.task.IsBusy();
    rooms_.task.Run([this, file, waits] {
        Import(file);
        if (waits && rooms_.task.MayGoOn()) rooms_.lists.Command1();
    });
}

void PlayListImportRoom::Import(const std::string& path) {
    if (!FileExists(ports_.files, path)) return;
    if (!ShowProgress()) return;
    rooms_.task.SetStatus(NameOfList(path));
    const bool is_read = ReadFile(path);
    if (controls_.lstTracksToAdd.ListCount() > 0) {
        createplaylist();
    } else {
        rooms_.task.HidePanel();
        ReportEmpty(path, is_read);
    }
    known_songs_.clear();
}

// False when the import must end.
bool PlayListImportRoom::ShowProgress() {
    for (controls::ListBox* list : {&controls_.lstTracksToAdd, &controls_.lsttitle, &controls_.lstartist})
        list->Clear();
    rooms_.task.ShowPanel();
    ports_.loop.Yield();
    if (!rooms_.task.MayGoOn()) return false;
    rooms_.task.SetTexts({.task = "Adding play list in progress, please wait...",
                          .found = "Tracks found:",
                          .removed = "Tracks missing:"});
    return true;
}

bool PlayListImportRoom::ReadFile(const std::string& path) {
    const std::optional<std::string> bytes = ports_.files.ReadText(path);
    const std::vector<ListedSong> songs = ReadPlayListFile(path, bytes.value_or(""), ports_.files);
    for (const ListedSong& song : songs)
        AddLine(song);
    FindKnownSongs(songs);
    return bytes.has_value();
}

void PlayListImportRoom::AddLine(const ListedSong& song) {
    const LineNames names = NamesInLine(song.line);
    controls_.lstTracksToAdd.AddItem(song.line);
    controls_.lstartist.AddItem(names.artist);
    controls_.lsttitle.AddItem(names.title);
}

// All paths are looked for in one walk over the songs.
void PlayListImportRoom::FindKnownSongs(const std::vector<ListedSong>& songs) {
    std::vector<std::string> paths;
    for (const ListedSong& song : songs)
        paths.insert(paths.end(), song.paths.begin(), song.paths.end());
    known_songs_.clear();
    if (paths.empty()) return;
    store::RecordSet rows = OpenRows(sources_.datSong, store::kAllSongs);
    const auto found = store::FirstRowsWith(rows, store::tblSong::FilePath, paths);
    auto next = found.begin();
    for (const ListedSong& song : songs) {
        auto& known = known_songs_.emplace_back();
        for (std::size_t i = 0; i < song.paths.size(); ++i, ++next)
            if (!known) known = *next;
    }
}

// A list of blank lines is no mistake; one that cannot be read, or that another player wrote in an unknown
// way, would vanish without a word.
void PlayListImportRoom::ReportEmpty(const std::string& path, bool is_read) {
    if (!is_read && FileExists(ports_.files, path)) {
        ports_.dialogs.MsgBox("The play list could not be read:\r\n" + ports_.files.DisplayPath(path));
    } else if (is_read && base::IsForeignPlayListFile(path)) {
        ports_.dialogs.MsgBox("No songs were found in the play list:\r\n" + ports_.files.DisplayPath(path));
    }
}

void PlayListImportRoom::createplaylist() {
    while (IsNameTaken()) {
        const std::string name =
            ports_.dialogs.InputBox("You already have a playlist with this name, please state a new name",
                                    "Playlist Name", "New_Playlist");
        if (base::Trim(name).empty() || !rooms_.task.MayGoOn()) return rooms_.task.HidePanel();
        rooms_.task.SetStatus(name);
    }
    if (rooms_.playlists.AddHeadRow(rooms_.task.Status()).empty()) return rooms_.task.HidePanel();
    AddTracks();
}

// A file named ".mpl" has no name to give, so that one is asked for as well.
bool PlayListImportRoom::IsNameTaken() {
    const std::string name = rooms_.task.Status();
    const bool taken = base::Trim(name).empty() || rooms_.playlists.IsNameTaken(name);
    name_taken_.SetCaption(taken ? "Larkmoor" : "");
    return taken;
}

void PlayListImportRoom::AddTracks() {
    const int count = controls_.lstTracksToAdd.ListCount();
    rooms_.matcher.BeginMatching();
    rooms_.task.BeginSteps(static_cast<std::size_t>(count));
    for (int index = 0; index < count; ++index) {
        if (base::Trim(controls_.lstTracksToAdd.List(index)).empty()) continue;
        if (!AddTrack(index)) return;
    }
    ShowResult();
    rooms_.task.HidePanel();
    address_.SetAddress("");
}

// False when the import must end.
bool PlayListImportRoom::AddTrack(int index) {
    const auto place = static_cast<std::size_t>(index);
    const auto known = place < known_songs_.size() ? known_songs_[place] : std::nullopt;
    if (known) {
        rooms_.matcher.AddKnownSong(index, *known);
    } else {
        rooms_.matcher.SearchTrack(index);
    }
    rooms_.task.CountStep();
    return rooms_.task.MayGoOn();
}

void PlayListImportRoom::ShowResult() {
    const std::string& missing = rooms_.matcher.MissingText();
    ports_.dialogs.MsgBox(missing.empty()
                              ? "Playlist was added successfully."
                              : "The following songs could not be added to the playlist:\r\n" + missing);
}

}  // namespace library
