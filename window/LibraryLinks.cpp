#include "window/LibraryLinks.h"

namespace window {

void LibraryLinks::ShowLoadingStage(std::string_view caption) {
    desk_.rooms.activate->SetStage(caption);
}

void LibraryLinks::LoadFavs() {
    desk_.rooms.favourites->LoadFavs();
}

void LibraryLinks::AddMediaFromCommand(std::string_view path) {
    desk_.rooms.opened->AddMediaFromCommand(path);
}

void LibraryLinks::PopulateHistory(std::string_view hist_type) {
    desk_.rooms.history->PopulateHistory(hist_type);
}

void LibraryLinks::OnTracksRefilled() {
    desk_.state.ListMaybeChanged = true;
}

// The play list editor is not built yet; nothing else keeps the names.
void LibraryLinks::OnPlayListsListed() {}

void LibraryLinks::OnRemoveKey() {
    desk_.rooms.playlists->RemoveSelectedSong();
}

void LibraryLinks::NoMouseOvers() {
    desk_.rooms.skin->NoMouseOvers();
}

// The panel shows the name of the playlist that is being built.
void LibraryLinks::AddMatchedSong(std::string_view song_id, std::string_view artist, std::string_view title) {
    desk_.rooms.playlists->AddRow(desk_.windows.frmBrowser.library.task.lblStatus.Caption(), song_id, artist,
                                  title);
}

void LibraryLinks::ShowMainWindow() {
    desk_.windows.frmBrowser.Show();
}

void LibraryLinks::Command1() {
    desk_.rooms.lists->Command1();
}

bool LibraryLinks::Include_Sub_Folders() const {
    return desk_.state.options.Include_Sub_Folders;
}

}  // namespace window
