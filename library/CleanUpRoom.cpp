#include "library/CleanUpRoom.h"

#include <utility>

#include "base/Number.h"
#include "library/Naming.h"
#include "library/TableRows.h"
#include "store/Settings.h"
#include "store/Tables.h"

namespace library {

CleanUpRoom::CleanUpRoom(TaskControls& controls, CleanUpMenu& menu, CleanUpStores stores,
                         const std::int32_t& last_clean_up_age, roles::TrackLists& lists,
                         roles::Highlights& highlights, CleanUpPorts ports)
    : controls_(controls),
      stores_(stores),
      last_clean_up_age_(last_clean_up_age),
      lists_(lists),
      ports_(ports) {
    claims_.Claim(menu.mnuCleanUp.Click, [this] { mnuCleanUp_Click(); });
    const auto hide_overs = [&highlights] { highlights.NoMouseOvers(); };
    claims_.Claim(controls_.fraTask.MouseMove, hide_overs);
    claims_.Claim(controls_.imgTaskBG.MouseMove, hide_overs);
    claims_.Claim(controls_.fraTaskCenter.MouseMove, hide_overs);
}

// The menu stays open to the user while a run yields; a second run would empty the lists of the first.
void CleanUpRoom::mnuCleanUp_Click() {
    if (running_) return;
    running_ = true;
    CleanUp();
    running_ = false;
}

void CleanUpRoom::CleanUp() {
    SetPanelTexts();
    if (!IsConfirmed()) return;
    ShowPanel();
    store::RecordSet songs;
    if (!StoreToday() || !SearchFiles(songs)) return;
    if (controls_.lstCleanup.ListCount() == 0) return HidePanel();
    if (!FindDuplicates()) return;
    if (controls_.lstcleanupremove.ListCount() == 0) return HidePanel();
    SkipDuplicates(songs);
    ShowResult();
}

void CleanUpRoom::SetPanelTexts() {
    controls_.lblTask.SetCaption("Cleanup in progress, please wait...");
    controls_.lblFound.SetCaption("Duplicates found:");
    controls_.lblDuplicatesRemoved.SetCaption("Duplicates removed:");
    controls_.lblFoundNo.SetCaption("0");
    controls_.lblDuplicatesNoRemoved.SetCaption("0");
    songs_removed_ = 0;
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
    controls_.lblStatus.SetCaption("");
    controls_.pbTask.SetValue(0);
    controls_.fraTask.SetVisible(true);
    controls_.fraTask.BringToFront();
}

void CleanUpRoom::HidePanel() {
    controls_.fraTask.SetVisible(false);
}

bool CleanUpRoom::StoreToday() {
    store::RecordSet rows = OpenRows(stores_.datHistory, store::kAllHistory);
    return store::MoveToSetting(rows, store::SettingsRow::LastCleanUp) &&
           store::WriteSetting(rows, ports::DateStamp(ports_.clock.Today()));
}

bool CleanUpRoom::SearchFiles(store::RecordSet& songs) {
    if (!stores_.datSong.Open(store::kAllSongs)) return false;
    songs = std::move(stores_.datSong.Recordset());
    BeginPhase("Searching files", songs.RecordCount());
    for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext()) {
        SearchFile(songs);
        if (!EndStep()) return false;
    }
    return true;
}

void CleanUpRoom::SearchFile(store::RecordSet& song) {
    const std::string_view path = song.Text(store::tblSong::FilePath);
    if (path.empty()) return;
    if (FileExists(ports_.files, path)) {
        controls_.lstCleanup.AddItem(path);
    } else {
        song.Delete();
        controls_.lblDuplicatesNoRemoved.SetCaption(base::ToText(++songs_removed_));
    }
}

// Equal paths are neighbours in a sorted list; paths that differ in case alone are not equal.
bool CleanUpRoom::FindDuplicates() {
    const controls::ListBox& paths = controls_.lstCleanup;
    BeginPhase("Finding duplicates", static_cast<std::size_t>(paths.ListCount()));
    for (int row = 1; row < paths.ListCount(); ++row) {
        if (paths.List(row) == paths.List(row - 1)) {
            controls_.lstcleanupremove.AddItem(paths.List(row));
            controls_.lblFoundNo.SetCaption(base::ToText(controls_.lstcleanupremove.ListCount()));
        }
        if (!EndStep()) return false;
    }
    return true;
}

// What was found twice is shown and stays: no row is deleted here.
void CleanUpRoom::SkipDuplicates(store::RecordSet& songs) {
    controls_.lblStatus.SetCaption("Removing duplicates");
    if (controls_.lstcleanupremove.ListCount() == 0) {
        controls_.lblStatus.SetCaption("Refreshing Library");
        return;
    }
    controls_.lstcleanupremove.SetListIndex(0);
    songs.MoveFirst();
}

void CleanUpRoom::ShowResult() {
    stores_.datSong.Refresh();
    lists_.Command1();
    HidePanel();
}

void CleanUpRoom::BeginPhase(std::string_view status, std::size_t steps) {
    controls_.lblStatus.SetCaption(status);
    steps_ = steps;
    done_ = 0;
}

// False when the program ends.
bool CleanUpRoom::EndStep() {
    ++done_;
    if (done_ <= steps_) controls_.pbTask.SetValue(static_cast<int>(done_ * 100 / steps_));
    ports_.loop.Yield();
    return !ports_.loop.IsEnding();
}

}  // namespace library
