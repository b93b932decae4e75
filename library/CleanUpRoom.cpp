#include "library/CleanUpRoom.h"

#include <utility>

#include "base/Number.h"
#include "library/Naming.h"
#include "library/TableRows.h"
#include "store/Settings.h"
#include "store/Tables.h"

namespace library {

CleanUpRoom::CleanUpRoom(CleanUpControls& controls, CleanUpMenu& menu, CleanUpStores stores,
                         const std::int32_t& last_clean_up_age, TaskRoom& task, UndoLog& undo,
                         roles::TrackLists& lists, CleanUpPorts ports)
    : controls_(controls),
      stores_(stores),
      last_clean_up_age_(last_clean_up_age),
      task_(task),
      undo_(undo),
      lists_(lists),
      ports_(ports) {
    claims_.Claim(menu.mnuCleanUp.Click, [this] { mnuCleanUp_Click(); });
}

// The menu stays open to the user while a task yields.
void CleanUpRoom::mnuCleanUp_Click() {
    if (task_.IsBusy()) return;
    task_.Run([this] {
        CleanUp();
        TellUnknown();
    });
}

void CleanUpRoom::CleanUp() {
    task_.SetTexts({.task = "Cleanup in progress, please wait...",
                    .found = "Duplicates found:",
                    .removed = "Duplicates removed:"});
    songs_removed_ = 0;
    songs_unknown_ = 0;
    if (!IsConfirmed()) return;
    ShowPanel();
    store::RecordSet songs;
    if (!StoreToday() || !SearchFiles(songs)) return;
    if (controls_.lstCleanup.ListCount() == 0) return task_.HidePanel();
    if (!FindDuplicates()) return;
    if (controls_.lstcleanupremove.ListCount() == 0) return task_.HidePanel();
    SkipDuplicates(songs);
    ShowResult();
}

bool CleanUpRoom::IsConfirmed() {
    const std::string question =
        "This may take a long time depending on how many media files are in your library, are you sure you "
        "want to continue?\r\nYour last duplicate clean up was: " +
        base::ToText(last_clean_up_age_) + " days ago.";
    return ports_.dialogs.MsgBox(question, ports::BoxButtons::YesNo, "Clean-up Duplicates") ==
           ports::BoxAnswer::Yes;
}

void CleanUpRoom::ShowPanel() {
    controls_.lstCleanup.Clear();
    controls_.lstcleanupremove.Clear();
    task_.SetStatus("");
    task_.ShowPanel();
}

bool CleanUpRoom::StoreToday() {
    store::RecordSet rows = OpenRows(stores_.datHistory, store::kAllHistory);
    return store::MoveToSetting(rows, store::SettingsRow::LastCleanUp) &&
           store::WriteSetting(rows, ports::DateStamp(ports_.clock.Today()));
}

bool CleanUpRoom::SearchFiles(store::RecordSet& songs) {
    if (!stores_.datSong.Open(store::kAllSongs)) return false;
    songs = std::move(stores_.datSong.Recordset());
    UndoStep step;
    BeginPhase("Searching files", songs.RecordCount());
    for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext()) {
        SearchFile(songs, step);
        if (!task_.EndStep()) return false;
    }
    return true;
}

void CleanUpRoom::SearchFile(store::RecordSet& song, UndoStep& step) {
    const std::string_view path = song.Text(store::tblSong::FilePath);
    if (path.empty()) return;
    if (FileExists(ports_.files, path)) {
        controls_.lstCleanup.AddItem(path);
    } else if (ports_.files.IsSilent(path)) {
        ++songs_unknown_;
    } else {
        undo_.KeepSong(step, song);
        song.Delete();
        task_.ShowRemoved(++songs_removed_);
    }
}

// Equal paths are neighbours in a sorted list; paths that differ in case alone are not equal.
bool CleanUpRoom::FindDuplicates() {
    const controls::ListBox& paths = controls_.lstCleanup;
    BeginPhase("Finding duplicates", static_cast<std::size_t>(paths.ListCount()));
    for (int row = 1; row < paths.ListCount(); ++row) {
        if (paths.List(row) == paths.List(row - 1)) {
            controls_.lstcleanupremove.AddItem(paths.List(row));
            task_.ShowFound(controls_.lstcleanupremove.ListCount());
        }
        if (!task_.EndStep()) return false;
    }
    return true;
}

// What was found twice is shown and stays: no row is deleted here.
void CleanUpRoom::SkipDuplicates(store::RecordSet& songs) {
    task_.SetStatus("Removing duplicates");
    if (controls_.lstcleanupremove.ListCount() == 0) {
        task_.SetStatus("Refreshing Library");
        return;
    }
    controls_.lstcleanupremove.SetListIndex(0);
    songs.MoveFirst();
}

void CleanUpRoom::ShowResult() {
    stores_.datSong.Refresh();
    lists_.Command1();
    task_.HidePanel();
}

void CleanUpRoom::TellUnknown() {
    if (songs_unknown_ == 0 || !task_.MayGoOn()) return;
    ports_.dialogs.MsgBox(base::ToText(songs_unknown_) +
                              (songs_unknown_ == 1 ? " song stays: its place" : " songs stay: their place") +
                              " does not answer, so nobody knows whether the files are there.",
                          ports::BoxButtons::Ok, "Clean-up Duplicates");
}

void CleanUpRoom::BeginPhase(std::string_view status, std::size_t steps) {
    task_.SetStatus(status);
    task_.BeginSteps(steps);
}

}  // namespace library
