#include "window/PlayerLinks.h"

#include "base/MediaKinds.h"
#include "store/Songs.h"

namespace window {

bool PlayerLinks::IsMediaFile(std::string_view path) const {
    return base::IsMediaFile(path);
}

bool PlayerLinks::IsVideoFile(std::string_view path) const {
    return base::IsVideoFile(path);
}

bool PlayerLinks::FileExists(std::string_view path) const {
    return desk_.ports.files.FileExists(path);
}

std::string PlayerLinks::FileNameOf(std::string_view path) const {
    return base::FileNameOf(path);
}

std::string PlayerLinks::SongPathFromId(std::int64_t song_id) {
    return store::SongPathFromId(Window().library.sources.datSong, std::to_string(song_id));
}

void PlayerLinks::AddSiteToHistory(std::string_view /*kind*/, std::string_view text) {
    desk_.rooms.places->History().AddSiteToHistory(roles::HistoryKind::Music, text);
}

void PlayerLinks::SendNowPlaying(std::string_view first, std::string_view second, std::string_view third,
                                 std::string_view extra, std::string_view format, bool enabled,
                                 std::string_view category) {
    desk_.rooms.msn->SendNowPlaying(first, second, third, extra, format, enabled, category);
}

void PlayerLinks::FocusAddress() {
    desk_.rooms.web->Address().FocusAddress();
}

void PlayerLinks::ClearStaleAddress() {
    desk_.rooms.web->Address().ClearStaleAddress();
}

double PlayerLinks::Left() const {
    return Window().Left();
}

double PlayerLinks::Top() const {
    return Window().Top();
}

controls::WindowState PlayerLinks::State() const {
    return Window().State();
}

void PlayerLinks::SetState(controls::WindowState state) {
    Window().SetState(state);
}

void PlayerLinks::ShowWindow() {
    Window().Show();
}

void PlayerLinks::EnableWindow(bool enabled) {
    Window().SetEnabled(enabled);
}

void PlayerLinks::RefreshWindow() {
    Window().Refresh();
}

void PlayerLinks::Form_Resize() {
    desk_.rooms.layout->Form_Resize();
}

void PlayerLinks::PlaceBelowSplitter() {
    desk_.rooms.layout->PlaceBelowSplitter();
}

void PlayerLinks::PlaceVideoPane() {
    desk_.rooms.layout->PlaceFavouritesPanel();
}

void PlayerLinks::MakeHole() {
    desk_.rooms.hole->MakeHole();
    // What shows through it goes there at once.
    desk_.rooms.player->FollowMainWindow();
}

void PlayerLinks::CloseHole() {
    desk_.rooms.hole->CloseHole();
}

void PlayerLinks::NoMouseOvers() {
    desk_.rooms.skin->NoMouseOvers();
}

void PlayerLinks::KeyDown(int key_code, int shift) {
    desk_.rooms.keys->KeyDown(key_code, shift);
}

void PlayerLinks::PopupMenu(controls::Menu& menu) {
    Window().PopupMenu(menu);
}

bool PlayerLinks::IsLoading() const {
    return desk_.rooms.start_up->IsLoading();
}

bool PlayerLinks::IsFavouritesPanelClosed() const {
    return desk_.rooms.places->Favourites().IsPanelClosed();
}

void PlayerLinks::cmdFavs_Click() {
    desk_.rooms.places->Favourites().TogglePanel();
}

bool PlayerLinks::IsPlayerStopped() const {
    return desk_.state.player.PlayerStopped;
}

void PlayerLinks::StopPlayer() {
    desk_.rooms.player->StopCurrentSong();
}

bool PlayerLinks::IsVideoAttached() const {
    return desk_.rooms.player->IsVideoAttached();
}

void PlayerLinks::RestoreBars() {
    desk_.rooms.player->RestoreBars();
}

}  // namespace window
