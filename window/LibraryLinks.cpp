#include "window/LibraryLinks.h"

namespace window {

bool LibraryLinks::IsLoading() const {
    return desk_.rooms.start_up->IsLoading();
}

void LibraryLinks::SetStage(std::string_view stage) {
    desk_.rooms.activate->SetStage(stage);
}

void LibraryLinks::LoadFavs() {
    desk_.rooms.favourites->LoadFavs();
}

void LibraryLinks::SettleAtStart() {
    desk_.rooms.add_favourite->SettleAtStart();
}

bool LibraryLinks::IsPanelClosed() const {
    return desk_.windows.frmBrowser.favourites.cmdFavs.Caption() == ">";
}

void LibraryLinks::TogglePanel() {
    desk_.windows.frmBrowser.favourites.cmdFavs.Click.Raise();
}

void LibraryLinks::AddSiteToHistory(roles::HistoryKind kind, std::string_view text) {
    desk_.rooms.history->AddSiteToHistory(roles::TextOf(kind), text);
}

void LibraryLinks::PopulateHistory(roles::HistoryKind kind) {
    desk_.rooms.history->PopulateHistory(roles::TextOf(kind));
}

void LibraryLinks::NoMouseOvers() {
    desk_.rooms.skin->NoMouseOvers();
}

}  // namespace window
