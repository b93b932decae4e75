#include "window/PlayerLinks.h"

namespace window {

void PlayerLinks::MakeHole() {
    desk_.rooms.hole->MakeHole();
    // What shows through it goes there at once.
    desk_.rooms.player->Video().FollowMainWindow();
}

void PlayerLinks::CloseHole() {
    desk_.rooms.hole->CloseHole();
}

std::string PlayerLinks::Address() const {
    return desk_.rooms.web->Address().Address();
}

void PlayerLinks::SetAddress(std::string_view text) {
    desk_.rooms.web->Address().SetAddress(text);
}

bool PlayerLinks::IsAddressVisible() const {
    return desk_.rooms.web->Address().IsAddressVisible();
}

void PlayerLinks::ClearList() {
    desk_.rooms.web->Address().ClearList();
}

void PlayerLinks::AddToList(std::string_view text) {
    desk_.rooms.web->Address().AddToList(text);
}

void PlayerLinks::SetTyped(std::string_view text) {
    desk_.rooms.web->Address().SetTyped(text);
}

roles::AddressMode PlayerLinks::Mode() const {
    return desk_.rooms.web->Address().Mode();
}

void PlayerLinks::FocusAddress() {
    desk_.rooms.web->Address().FocusAddress();
}

void PlayerLinks::ClearStaleAddress() {
    desk_.rooms.web->Address().ClearStaleAddress();
}

void PlayerLinks::LoadFavs() {
    desk_.rooms.places->Favourites().LoadFavs();
}

void PlayerLinks::SettleAtStart() {
    desk_.rooms.places->Favourites().SettleAtStart();
}

bool PlayerLinks::IsPanelClosed() const {
    return desk_.rooms.places->Favourites().IsPanelClosed();
}

void PlayerLinks::TogglePanel() {
    desk_.rooms.places->Favourites().TogglePanel();
}

void PlayerLinks::SendNowPlaying(const roles::NowPlayingText& text) {
    desk_.rooms.msn->SendNowPlaying(text.first, text.second, text.third, text.extra, text.format,
                                    text.enabled, "Music");
}

bool PlayerLinks::IsPlayerStopped() const {
    return desk_.rooms.player->Playing().IsStopped();
}

void PlayerLinks::StopPlayer() {
    desk_.rooms.player->Stop();
}

bool PlayerLinks::IsVideoAttached() const {
    return desk_.rooms.player->Video().IsVideoAttached();
}

void PlayerLinks::RestoreBars() {
    desk_.rooms.player->RestoreBars();
}

}  // namespace window
