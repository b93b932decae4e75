#include "desktop/LibraryLinks.h"

namespace desktop {

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

void LibraryLinks::ShowMainWindow() {
    desk_.windows.frmBrowser.Show();
}

void LibraryLinks::Command1() {
    desk_.rooms.lists->Command1();
}

bool LibraryLinks::Include_Sub_Folders() const {
    return desk_.state.options.Include_Sub_Folders;
}

}  // namespace desktop
