#include "window/LibraryLinks.h"

namespace window {

bool LibraryLinks::IsLoading() const {
    return desk_.rooms.start_up->IsLoading();
}

void LibraryLinks::SetStage(std::string_view stage) {
    desk_.rooms.activate->SetStage(stage);
}

void LibraryLinks::LoadFavs() {
    desk_.rooms.places->Favourites().LoadFavs();
}

void LibraryLinks::SettleAtStart() {
    desk_.rooms.places->Favourites().SettleAtStart();
}

bool LibraryLinks::IsPanelClosed() const {
    return desk_.rooms.places->Favourites().IsPanelClosed();
}

void LibraryLinks::TogglePanel() {
    desk_.rooms.places->Favourites().TogglePanel();
}

void LibraryLinks::AddSiteToHistory(roles::HistoryKind kind, std::string_view text) {
    desk_.rooms.places->History().AddSiteToHistory(kind, text);
}

void LibraryLinks::PopulateHistory(roles::HistoryKind kind) {
    desk_.rooms.places->History().PopulateHistory(kind);
}

void LibraryLinks::NoMouseOvers() {
    desk_.rooms.skin->NoMouseOvers();
}

}  // namespace window
