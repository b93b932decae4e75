#include "library/PlayListRoom.h"

#include "base/Text.h"
#include "controls/Arrange.h"
#include "library/SpecialRows.h"
#include "library/TableRows.h"
#include "store/Tables.h"

namespace library {
namespace {

constexpr std::string_view kNewName = "New_Playlist";

}  // namespace

PlayListRoom::PlayListRoom(PlayListControls& controls, PlayListMenu& menu, MediaSources& sources,
                           LibraryListsRoom& lists, UndoLog& undo, ports::Dialogs& dialogs,
                           roles::Highlights& highlights)
    : controls_(controls),
      menu_(menu),
      sources_(sources),
      lists_(lists),
      undo_(undo),
      dialogs_(dialogs),
      highlights_(highlights) {
    ClaimButtons();
    ClaimPanel();
    claims_.Claim(menu_.mnuNewPlayList.Click, [this] { mnuNewPlayList_Click(); });
    claims_.Claim(menu_.mnuRemoveSong.Click, [this] { mnuRemoveSong_Click(); });
}

void PlayListRoom::ClaimButtons() {
    ClaimTwin(claims_, controls_.imgAddSong, controls_.imgAddSongOver);
    claims_.Claim(controls_.imgAddSongOver.Click, [this] { imgAddSongOver_Click(); });
    ClaimTwin(claims_, controls_.imgRemoveSong, controls_.imgRemoveSongOver);
    claims_.Claim(controls_.imgRemoveSongOver.Click, [this] { imgRemoveSongOver_Click(); });
}

void PlayListRoom::ClaimPanel() {
    const auto hide_overs = [this] { highlights_.NoMouseOvers(); };
    claims_.Claim(controls_.imgBG2.MouseMove, hide_overs);
    claims_.Claim(controls_.fraPlayListCenter.MouseMove, hide_overs);
    claims_.Claim(controls_.fraPlayListCenter.KeyDown,
                  [this](int key_code, int) { fraPlayListCenter_KeyDown(key_code); });
    claims_.Claim(controls_.lstAddToPlaylist.DblClick, [this] { imgOkOver_Click(); });
    claims_.Claim(controls_.lstAddToPlaylist.MouseMove, hide_overs);
    claims_.Claim(controls_.lstAddToPlaylist.KeyDown,
                  [this](int key_code, int) { lstAddToPlaylist_KeyDown(key_code); });
    claims_.Claim(controls_.imgAddToPlaylist.Click, [this] { imgOkOver_Click(); });
    ClaimTwin(claims_, controls_.imgOk, controls_.imgOkOver);
    claims_.Claim(controls_.imgOkOver.Click, [this] { imgOkOver_Click(); });
    ClaimTwin(claims_, controls_.imgCancel, controls_.imgCancelOver);
    claims_.Claim(controls_.imgCancelOver.Click, [this] { imgCancelOver_Click(); });
    ClaimTwin(claims_, controls_.imgDeletePlayList, controls_.imgDeletePlayListOver);
    claims_.Claim(controls_.imgDeletePlayListOver.Click, [this] { imgDeletePlayListOver_Click(); });
}

void PlayListRoom::imgAddSongOver_Click() {
    const std::string track = lists_.SelectedTrack();
    if (base::Trim(track).empty()) return;
    const base::SongEntry entry = lists_.SelectedEntry();
    controls_.lblAddPlayListSongID.SetCaption(entry.Text());
    if (!entry.IsSongId()) {
        dialogs_.MsgBox(
            "This track has been dragged from an outside source and so can't be added to a play list. "
            "Please use the search to find this track.",
            ports::BoxButtons::Ok, "Can not add to play list", ports::BoxIcon::Information);
        return;
    }
    lists_.DisplayPlayLists();
    controls_.fraAddToPlaylist.SetVisible(true);
    controls_.fraAddToPlaylist.KeepInFront(true);
    controls_.txtSongToAdd.SetText(track);
    controls_.lstAddToPlaylist.SetFocus();
}

void PlayListRoom::imgOkOver_Click() {
    const std::string name(controls_.lstAddToPlaylist.Text());
    if (base::Trim(name).empty() || base::Trim(controls_.txtSongToAdd.Text()).empty()) return;
    addsong(controls_.lblAddPlayListSongID.Caption(), name);
    HidePanel();
}

void PlayListRoom::HidePanel() {
    CloseAddPanel();
    lists_.FocusTracks();
}

void PlayListRoom::CloseAddPanel() {
    controls_.fraAddToPlaylist.SetVisible(false);
    controls_.fraAddToPlaylist.KeepInFront(false);
}

void PlayListRoom::lstAddToPlaylist_KeyDown(int key_code) {
    if (key_code == controls::kKeyDelete) imgDeletePlayListOver_Click();
    fraPlayListCenter_KeyDown(key_code);
}

// Keys that no control of the panel takes.
void PlayListRoom::fraPlayListCenter_KeyDown(int key_code) {
    if (key_code == controls::kKeyEnter) imgOkOver_Click();
    if (key_code == controls::kKeyEscape) imgCancelOver_Click();
}

void PlayListRoom::addsong(std::string_view song_id, std::string_view playlist_name) {
    const std::string_view wanted = base::Trim(song_id);
    store::RecordSet songs = OpenRows(sources_.datSong, store::kAllSongs);
    songs.MoveFirst();
    while (!songs.Eof() && base::Trim(songs.Text(store::tblSong::SongID)) != wanted)
        songs.MoveNext();
    if (songs.Eof() || wanted.empty()) return;
    AddRow(playlist_name, songs.Text(store::tblSong::SongID), songs.Text(store::tblSong::artist),
           songs.Text(store::tblSong::title));
}

void PlayListRoom::AddRow(std::string_view playlist_name, std::string_view song_id, std::string_view artist,
                          std::string_view title) {
    store::RecordSet rows = OpenRows(sources_.datPlayList, store::kAllPlayListRows);
    if (!AddNewWithKey(rows, store::tblPlayList::PlayListID, controls_.lblEntryCount2)) return;
    rows.Set(store::tblPlayList::Name, base::Trim(playlist_name));
    rows.Set(store::tblPlayList::SongID, song_id);
    rows.Set(store::tblPlayList::artist, artist);
    rows.Set(store::tblPlayList::title, title);
    rows.Update();
}

void PlayListRoom::imgRemoveSongOver_Click() {
    if (lists_.SelectedTrack().empty()) return;
    const std::string song_id = lists_.SelectedEntry().Text();
    const std::string playlist = lists_.SelectedPlayList();
    if (playlist.empty() || playlist == kAllMedia) {
        DeleteTrackAllMedia(song_id);
    } else if (playlist == kTop20) {
        ResetPlayCount(song_id);
    } else {
        RemoveFromPlayList(playlist, song_id);
    }
}

void PlayListRoom::RemoveFromPlayList(const std::string& playlist, const std::string& song_id) {
    if (!IsConfirmed("Are you sure you want to delete this song from the play list?",
                     "Delete song from Play list")) {
        return;
    }
    store::RecordSet rows = OpenRows(sources_.datPlayList, store::kAllPlayListRows);
    UndoStep step;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (base::Trim(rows.Text(store::tblPlayList::Name)) == playlist &&
            rows.Text(store::tblPlayList::SongID) == song_id) {
            undo_.KeepPlayListRow(step, rows);
            rows.Delete();
        }
    }
    lists_.Command1();
}

void PlayListRoom::ResetPlayCount(const std::string& song_id) {
    if (!IsConfirmed("This is the top 20 playlist, would you like to reset this songs play count?",
                     "Reset Play Count")) {
        return;
    }
    store::RecordSet rows = OpenRows(sources_.datSong, store::kAllSongs);
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(store::tblSong::SongID) != song_id) continue;
        rows.Edit();
        rows.Set(store::tblSong::PlayCount, "0");
        rows.Update();
        return;
    }
}

void PlayListRoom::DeleteTrackAllMedia(std::string_view song_id) {
    if (!IsConfirmed("Are you sure you want to delete this file from the media library?",
                     "Delete from Media Library")) {
        return;
    }
    store::RecordSet rows = OpenRows(sources_.datSong, store::kAllSongs);
    rows.MoveFirst();
    while (!rows.Eof() && rows.Text(store::tblSong::SongID) != song_id)
        rows.MoveNext();
    if (!rows.Eof()) {
        UndoStep step;
        if (HasTwin(rows)) {
            undo_.KeepTwin(step, rows);
        } else {
            undo_.KeepSong(step, rows);
        }
    }
    rows.Delete();
    lists_.Command1();
}

/// Another row has the file of the current one.
bool PlayListRoom::HasTwin(store::RecordSet& songs) {
    const store::Bookmark song = songs.CurrentBookmark();
    const std::string file(songs.Text(store::tblSong::FilePath));
    int rows = 0;
    for (songs.MoveFirst(); !songs.Eof() && rows < 2; songs.MoveNext())
        rows += songs.Text(store::tblSong::FilePath) == file ? 1 : 0;
    songs.MoveTo(song);
    return rows > 1;
}

void PlayListRoom::AddingPlayList() {
    std::string name =
        dialogs_.InputBox("What would you like to call the new play list?", "New Play List", kNewName);
    while (!base::Trim(name).empty() && IsNameTaken(name)) {
        name = dialogs_.InputBox("You already have a playlist with that name, please state another.",
                                 "New Playlist");
    }
    if (base::Trim(name).empty()) return;
    AddHeadRow(name);
    lists_.Command1();
}

std::string PlayListRoom::AddHeadRow(std::string_view playlist_name) {
    store::RecordSet rows = OpenRows(sources_.datPlayList, store::kAllPlayListRows);
    if (!AddNewWithKey(rows, store::tblPlayList::PlayListID, controls_.lblEntryCount2)) return {};
    rows.Set(store::tblPlayList::Name, base::Trim(playlist_name));
    return rows.Update() ? controls_.lblEntryCount2.Caption() : std::string();
}

bool PlayListRoom::IsNameTaken(std::string_view playlist_name) {
    const std::string_view wanted = base::Trim(playlist_name);
    if (wanted == kAllMedia || wanted == kLast20 || wanted == kTop20) return true;
    store::RecordSet rows = OpenRows(sources_.datPlayList, store::kAllPlayListRows);
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (base::Trim(rows.Text(store::tblPlayList::Name)) == wanted) return true;
    }
    return false;
}

void PlayListRoom::imgDeletePlayListOver_Click() {
    const std::string name(base::Trim(controls_.lstAddToPlaylist.Text()));
    if (name.empty()) return;
    if (!IsConfirmed("Are you sure you want to delete the playlist " + name + "?", "Delete Playlist")) return;
    store::RecordSet rows = OpenRows(sources_.datPlayList, store::kAllPlayListRowsToDelete);
    UndoStep step;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (base::Trim(rows.Text(store::tblPlayList::Name)) != name) continue;
        undo_.KeepPlayListRow(step, rows);
        rows.Delete();
    }
    lists_.Command1();
}

bool PlayListRoom::IsConfirmed(std::string_view question, std::string_view title) {
    return dialogs_.MsgBox(question, ports::BoxButtons::YesNo, title) == ports::BoxAnswer::Yes;
}

}  // namespace library
