#include "session/BackUpRoom.h"

#include <algorithm>
#include <functional>
#include <set>
#include <utility>

#include "base/DrivePath.h"
#include "base/Number.h"
#include "base/Text.h"
#include "base/Windows1252.h"
#include "controls/Arrange.h"
#include "library/PlayListFile.h"
#include "library/SpecialRows.h"
#include "session/DateAge.h"
#include "store/Settings.h"
#include "store/Tables.h"

namespace session {
namespace {

using ports::FileResult;
using store::SettingsRow;

constexpr std::string_view kExtension = ".mpl";
constexpr std::string_view kSeparator = " - ";
constexpr std::string_view kLineEnd = "\r\n";
/// A library of more songs takes longer to walk than a user waits without a sign.
constexpr std::size_t kLongWalk = 200'000;
constexpr std::size_t kMostLinesShown = 10;

bool IsBuiltIn(std::string_view name) {
    return name == library::kAllMedia || name == library::kLast20 || name == library::kTop20;
}

bool BeginsWithDrive(std::string_view path) {
    const char letter = path.empty() ? ' ' : path[0];
    const bool is_letter = (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
    return is_letter && path.substr(1, 2) == ":\\";
}

std::string_view Reason(FileResult result) {
    switch (result) {
        case FileResult::Missing:
            return "the drive or the folder is not there";
        case FileResult::AlreadyThere:
            return "a file stands in its place";
        case FileResult::Refused:
            return "the folder is read-only, or is not yours";
        case FileResult::DiskFull:
            return "the disk is full";
        default:
            return "the disk or the system reported an error";
    }
}

// A line is one line, whatever the names of files brought into the library.
std::string OneLine(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char character) { return character == '\r' || character == '\n'; }, ' ');
    return line;
}

std::string Listed(const std::vector<std::string>& lines) {
    std::string text;
    for (std::size_t i = 0; i < std::min(lines.size(), kMostLinesShown); ++i)
        text.append(kLineEnd).append(lines[i]);
    if (lines.size() > kMostLinesShown) {
        const auto more = static_cast<std::int64_t>(lines.size() - kMostLinesShown);
        text.append(kLineEnd).append("and ").append(base::ToText(more)).append(" more.");
    }
    return text;
}

}  // namespace

BackUpControls::BackUpControls(const ports::Files& files) : Dir1("Dir1", files) {
    fraBackUp.Add(lblBackUp, Label4, lblBackFolder, txtBackFolder, lblLastBackupLabel, lblLastBackup,
                  lblEditPlayList, lstEditPlayList, lblEditTracks, lstEditPlayListTracks);
    fraBackUp.Add(lblEditArtist, txtEditArtist, lblEditTitle, txtEditTitle, lblEditNumber, lblEditTrackNumber,
                  cmdBackUpAll, cmdBackUp);
    fraBackUp.Add(lstEditID, txtRename, txtSave, Dir1);
    controls::Hide(lstEditID, txtRename, txtSave, Dir1);
}

BackUpRoom::BackUpRoom(BackUpControls& controls, BackUpSources sources, SessionOptions& options,
                       roles::TrackLists& lists, BackUpPorts ports)
    : controls_(controls), sources_(sources), options_(options), lists_(lists), ports_(ports) {
    claims_.Claim(controls_.lstEditPlayList.Click, [this] { lstEditPlayList_Click(); });
    claims_.Claim(controls_.lstEditPlayListTracks.Click, [this] { lstEditPlayListTracks_Click(); });
    claims_.Claim(controls_.cmdBackUpAll.Click, [this] { cmdBackUpAll_Click(); });
    claims_.Claim(controls_.cmdBackUp.Click, [this] { cmdBackUp_Click(); });
}

void BackUpRoom::OpenPane() {
    lists_.DisplayPlayLists();
    ClearTracks();
    controls_.txtBackFolder.SetText(base::BuildPath(ports_.files.ApplicationFolder(), "BackUp\\"));
    ShowLastBackUp();
}

void BackUpRoom::ShowLastBackUp() {
    controls_.lblLastBackup.SetCaption("");
    if (!sources_.datHistory.Open(store::kAllHistory)) return;
    store::RecordSet& rows = sources_.datHistory.Recordset();
    if (!store::MoveToSetting(rows, SettingsRow::LastBackUp)) return;
    const std::int32_t date = DateOf(rows.Text(store::tblHistory::HistoryText));
    controls_.lblLastBackup.SetCaption(base::ToText(AgeOf(date, ports_.clock)) + " days ago.");
}

std::string BackUpRoom::ChosenPlayList() const {
    return std::string(base::Trim(controls_.lstEditPlayList.Text()));
}

void BackUpRoom::lstEditPlayList_Click() {
    controls_.txtRename.SetText("");
    ClearTracks();
    const std::string name = ChosenPlayList();
    if (name == library::kAllMedia) {
        LoadEditTracks();
    } else if (!name.empty() && !IsBuiltIn(name)) {
        FindEditTracks(name);
    }
    controls_.lstEditPlayListTracks.SetListIndex(0);
}

void BackUpRoom::ClearTracks() {
    controls_.lstEditPlayListTracks.Clear();
    controls_.lstEditID.Clear();
    songs_.clear();
    ClearTrack();
}

void BackUpRoom::ClearTrack() {
    controls_.lblEditTrackNumber.SetCaption("");
    controls_.txtEditArtist.SetText("");
    controls_.txtEditTitle.SetText("");
}

// A song that left the library adds no row.
void BackUpRoom::FindEditTracks(std::string_view name) {
    std::vector<std::string> song_ids = SongIdsOf(name);
    if (!are_all_found_) FindSongs(song_ids);
    if (!sources_.datSong.Open(store::kSongById)) return;
    store::RecordSet& songs = sources_.datSong.Recordset();
    for (const std::string& song_id : song_ids) {
        const std::optional<store::Bookmark> song = found_songs_[song_id];
        if (song && songs.MoveTo(*song)) addeditplaylistsong(songs);
    }
}

std::vector<std::string> BackUpRoom::SongIdsOf(std::string_view name) {
    std::vector<std::string> song_ids;
    if (!sources_.datPlayList.Open(store::kAllPlayListRows)) return song_ids;
    store::RecordSet& rows = sources_.datPlayList.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const std::string_view song_id = rows.Text(store::tblPlayList::SongID);
        if (song_id.empty()) continue;
        if (name.empty() || base::Trim(rows.Text(store::tblPlayList::Name)) == name)
            song_ids.emplace_back(song_id);
    }
    return song_ids;
}

// One walk finds the songs of all rows.
void BackUpRoom::FindSongs(const std::vector<std::string>& song_ids) {
    found_songs_.clear();
    for (const std::string& song_id : song_ids)
        found_songs_.try_emplace(song_id);
    if (!sources_.datSong.Open(store::kSongById)) return;
    store::RecordSet& songs = sources_.datSong.Recordset();
    if (songs.RecordCount() > kLongWalk) ports_.loop.ShowHourglass();
    std::size_t missing = found_songs_.size();
    std::string song_id;
    for (songs.MoveFirst(); !songs.Eof() && missing > 0; songs.MoveNext()) {
        song_id = songs.Text(store::tblSong::SongID);
        const auto wanted = found_songs_.find(song_id);
        if (wanted == found_songs_.end() || wanted->second) continue;
        wanted->second = songs.CurrentBookmark();
        --missing;
    }
}

void BackUpRoom::addeditplaylistsong(store::RecordSet& songs) {
    controls_.lstEditPlayListTracks.AddItem(songs.Text(store::tblSong::title));
    controls_.lstEditID.AddItem(songs.Text(store::tblSong::SongID));
    songs_.push_back(songs.CurrentBookmark());
    rewrites_ = songs.Rewrites(store::tblSong::SongID);
}

// Rows that were put back may have moved the others, and the bookmark be another song's. Where none were, a
// song that is not there has left the library, and is not looked for.
bool BackUpRoom::MoveToSong(store::RecordSet& songs, int row) const {
    const std::string song_id(controls_.lstEditID.List(row));
    const bool is_there =
        songs.MoveTo(songs_[static_cast<std::size_t>(row)]) && songs.Text(store::tblSong::SongID) == song_id;
    if (is_there || songs.Rewrites(store::tblSong::SongID) == rewrites_) return is_there;
    return songs.MoveToFirst(store::tblSong::SongID, song_id);
}

void BackUpRoom::LoadEditTracks() {
    if (!sources_.datSong.Open(store::kSongsByArtist)) return;
    store::RecordSet& songs = sources_.datSong.Recordset();
    if (songs.RecordCount() > kLongWalk) ports_.loop.ShowHourglass();
    for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext())
        if (!songs.Text(store::tblSong::title).empty()) addeditplaylistsong(songs);
}

void BackUpRoom::lstEditPlayListTracks_Click() {
    ClearTrack();
    const int row = controls_.lstEditPlayListTracks.ListIndex();
    if (row < 0 || !sources_.datSong.Open(store::kAllSongs)) return;
    store::RecordSet& songs = sources_.datSong.Recordset();
    if (!MoveToSong(songs, row)) return;
    controls_.txtEditArtist.SetText(songs.Text(store::tblSong::artist));
    controls_.txtEditTitle.SetText(songs.Text(store::tblSong::title));
    controls_.lblEditTrackNumber.SetCaption(controls_.lstEditID.List(row));
}

void BackUpRoom::cmdBackUpAll_Click() {
    const std::string folder = TakeFolder(controls_.lstEditPlayList.ListIndex() >= 0);
    if (folder.empty()) return;
    Notes notes;
    BackUpFiles(folder, notes);
    Tell(notes, folder);
}

// The built-in views are not gone through: nothing would be written for them, and they may be long.
void BackUpRoom::cmdBackUp_Click() {
    const std::string folder = TakeFolder(true);
    if (folder.empty()) return;
    Notes notes;
    FindSongs(SongIdsOf({}));
    are_all_found_ = true;
    for (int row = 0; row < controls_.lstEditPlayList.ListCount(); ++row) {
        if (IsBuiltIn(base::Trim(controls_.lstEditPlayList.List(row)))) continue;
        controls_.lstEditPlayList.SetListIndex(row);
        BackUpFiles(folder, notes);
    }
    are_all_found_ = false;
    NoteUnlisted(notes);
    if (notes.failed.empty()) StoreToday();
    Tell(notes, folder);
}

// The lists show a hundred names; a play list beyond them would be missed only when it is needed.
void BackUpRoom::NoteUnlisted(Notes& notes) {
    std::set<std::string, std::less<>> listed;
    for (int row = 0; row < controls_.lstEditPlayList.ListCount(); ++row)
        listed.emplace(base::Trim(controls_.lstEditPlayList.List(row)));
    if (!sources_.datPlayList.Open(store::kAllPlayListRows)) return;
    store::RecordSet& rows = sources_.datPlayList.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const std::string_view name = base::Trim(rows.Text(store::tblPlayList::Name));
        if (name.empty() || listed.contains(name)) continue;
        listed.emplace(name);
        notes.failed.push_back(std::string(name).append(": there are more play lists than are shown."));
    }
}

std::string BackUpRoom::TakeFolder(bool is_list_chosen) {
    if (!IsFolderAccepted(is_list_chosen)) return {};
    return MakeDirectory(controls_.txtBackFolder.Text());
}

// A native path becomes the drive form here, where the user gives it.
bool BackUpRoom::IsFolderAccepted(bool is_list_chosen) {
    controls::TextBox& box = controls_.txtBackFolder;
    if (base::StartsWith(box.Text(), "/")) box.SetText(ports_.files.FromNative(box.Text()));
    if (box.Text().empty() || !is_list_chosen) {
        ports_.dialogs.MsgBox(
            "Please make sure you have selected a back up folder path and a play list to back up.");
        return false;
    }
    if (base::Contains(box.Text(), "/")) {
        ports_.dialogs.MsgBox("Directories should be seperated by a backslash '\\'");
        return false;
    }
    if (!base::EndsWith(box.Text(), "\\")) box.SetText(box.Text() + "\\");
    if (!BeginsWithDrive(box.Text())) {
        ports_.dialogs.MsgBox("Application must be stored on a hard drive e.g. 'C:\\' not a server");
        return false;
    }
    return true;
}

// The hidden folder list goes down the path. Where it finds no folder, one is made.
std::string BackUpRoom::MakeDirectory(std::string_view folder) {
    std::string path(folder.substr(0, 3));
    FileResult result = controls_.Dir1.SetPath(path) ? FileResult::Done : FileResult::Missing;
    for (const std::string& part : base::Split(folder.substr(3), "\\")) {
        if (result != FileResult::Done) break;
        path = base::BuildPath(controls_.Dir1.Path(), part);
        if (part.empty() || controls_.Dir1.SetPath(path)) continue;
        result = ports_.files.MakeFolder(path);
        if (result == FileResult::Done && !controls_.Dir1.SetPath(path)) result = FileResult::Missing;
    }
    if (result == FileResult::Done) return controls_.Dir1.Path();
    ports_.dialogs.MsgBox("The back up folder \"" + ports_.files.DisplayPath(path) +
                          "\" can not be made: " + std::string(Reason(result)) + ".");
    return {};
}

void BackUpRoom::BackUpFiles(std::string_view folder, Notes& notes) {
    controls_.txtSave.SetText("");
    std::string name = ChosenPlayList();
    if (name.empty() || IsBuiltIn(name)) return;
    CollectTracks();
    const std::string file = base::SeparatorFree(name).append(kExtension);
    const std::string bytes = base::EncodeFileText(controls_.txtSave.Text() + std::string(kLineEnd));
    const FileResult result = ports_.files.WriteText(base::BuildPath(folder, file), bytes);
    if (result != FileResult::Done) {
        notes.failed.push_back(name.append(": ").append(Reason(result)).append("."));
    } else if (std::cmp_greater(controls_.lstEditPlayListTracks.ListCount(), library::kMostLines)) {
        notes.too_long.push_back(std::move(name));
    }
}

void BackUpRoom::CollectTracks() {
    std::string lines;
    for (int row = 0; row < controls_.lstEditPlayListTracks.ListCount(); ++row) {
        controls_.lstEditPlayListTracks.SetListIndex(row);
        if (controls_.lblEditTrackNumber.Caption().empty()) continue;  // the song has left the library
        lines += OneLine(controls_.txtEditArtist.Text());
        lines += kSeparator;
        lines += OneLine(controls_.txtEditTitle.Text());
        lines += kLineEnd;
    }
    controls_.txtSave.SetText(lines);
}

void BackUpRoom::Tell(const Notes& notes, std::string_view folder) {
    if (!notes.failed.empty()) {
        ports_.dialogs.MsgBox("Not backed up to \"" + ports_.files.DisplayPath(folder) +
                              "\":" + Listed(notes.failed) + "\r\nEarlier back ups are still as they were.");
    }
    if (!notes.too_long.empty()) {
        ports_.dialogs.MsgBox("Backed up whole, but only the first " +
                              base::ToText(std::int64_t{library::kMostLines}) +
                              " tracks of a play list file can be opened again:" + Listed(notes.too_long));
    }
}

void BackUpRoom::StoreToday() {
    if (!sources_.datHistory.Open(store::kAllHistory)) return;
    store::RecordSet& rows = sources_.datHistory.Recordset();
    if (!store::MoveToSetting(rows, SettingsRow::LastBackUp) ||
        !store::WriteSetting(rows, ports::DateStamp(ports_.clock.Today()))) {
        return;
    }
    options_.LastPlayListBackUp = Today(ports_.clock);
    controls_.lblLastBackup.SetCaption("0 days ago.");
}

}  // namespace session
