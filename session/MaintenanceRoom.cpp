#include "session/MaintenanceRoom.h"

#include "store/Tables.h"

namespace session {
namespace {

/// More rows take longer to change than a user waits without a sign.
constexpr std::size_t kLongWalk = 50'000;

}  // namespace

MaintenanceControls::MaintenanceControls() {
    fraMisc.Add(lblMisc, lblReset, cmdReset, lblEmpty, cmdEmpty, lblAddMedia, cmdAddMedia, lblDeleteHistory,
                cmdDeleteHistory);
}

MaintenanceRoom::MaintenanceRoom(MaintenanceControls& controls, MaintenanceSources sources,
                                 controls::Form& frmAddMedia, roles::TrackLists& lists,
                                 roles::History& history, SessionStores stores, ports::Dialogs& dialogs,
                                 ports::EventLoop& loop)
    : sources_(sources),
      frm_add_media_(frmAddMedia),
      lists_(lists),
      history_(history),
      stores_(stores),
      dialogs_(dialogs),
      loop_(loop) {
    claims_.Claim(controls.cmdReset.Click, [this] { cmdReset_Click(); });
    claims_.Claim(controls.cmdEmpty.Click, [this] { cmdEmpty_Click(); });
    claims_.Claim(controls.cmdAddMedia.Click, [this] { cmdAddMedia_Click(); });
    claims_.Claim(controls.cmdDeleteHistory.Click, [this] { cmdDeleteHistory_Click(); });
}

void MaintenanceRoom::cmdReset_Click() {
    if (!Agrees("Are you sure you want to reset all the play counts?", "Reset Play Count")) return;
    if (!ResetPlayCounts() || !stores_.stores.CommitAll()) {
        stores_.trouble.TellUnsaved("The play counts could not be saved.", stores_.stores);
        return;
    }
    dialogs_.MsgBox("All media files play count's have been reset to 0.");
}

bool MaintenanceRoom::ResetPlayCounts() {
    if (!sources_.datSong.Open(store::kAllSongs)) return false;
    store::RecordSet& songs = sources_.datSong.Recordset();
    ShowHourglassFor(songs);
    for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext()) {
        if (songs.Text(store::tblSong::PlayCount) == "0") continue;
        songs.Edit();
        songs.Set(store::tblSong::PlayCount, "0");
        songs.Update();
    }
    return true;
}

// The lists are filled again before the second question, so that it does not lie over songs that are gone.
void MaintenanceRoom::cmdEmpty_Click() {
    constexpr std::string_view kTitle = "Emptying Library";
    if (!Agrees("Are you sure you want to delete every file from your media library?", kTitle)) return;
    const bool is_empty = ClearSongs() && ClearFolders() && ClearPlayLists() && stores_.stores.CommitAll();
    lists_.Command1();
    if (!is_empty) {
        stores_.trouble.TellUnsaved("The empty media library could not be saved.", stores_.stores);
        return;
    }
    if (Agrees("Media library is now empty.\r\nWould you like to add new media now?", kTitle))
        frm_add_media_.Show();
}

bool MaintenanceRoom::ClearSongs() {
    return Clear(sources_.datSong, store::kAllSongs);
}

bool MaintenanceRoom::ClearFolders() {
    return Clear(sources_.datFolder, store::kAllFolders);
}

bool MaintenanceRoom::ClearPlayLists() {
    return Clear(sources_.datPlayList, store::kAllPlayListRowsToDelete);
}

bool MaintenanceRoom::Clear(store::DataSource& source, std::string_view query) {
    if (!source.Open(query)) return false;
    store::RecordSet& rows = source.Recordset();
    ShowHourglassFor(rows);
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        rows.Delete();
    return true;
}

void MaintenanceRoom::cmdAddMedia_Click() {
    frm_add_media_.Show();
}

void MaintenanceRoom::cmdDeleteHistory_Click() {
    history_.DeleteHistory();
}

bool MaintenanceRoom::Agrees(std::string_view text, std::string_view title) {
    return dialogs_.MsgBox(text, ports::BoxButtons::YesNo, title) == ports::BoxAnswer::Yes;
}

void MaintenanceRoom::ShowHourglassFor(const store::RecordSet& rows) {
    if (rows.RecordCount() > kLongWalk) loop_.ShowHourglass();
}

}  // namespace session
