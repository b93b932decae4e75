#include "window/CoreLinks.h"

namespace window {

void CoreLinks::Command1() {
    Room().library->Lists().Command1();
}

void CoreLinks::PopulateHistory(std::string_view kind) {
    Room().places->History().PopulateHistory(roles::HistoryKindOf(roles::AddressModeOf(kind)));
}

void CoreLinks::TogglePanel() {
    Room().places->Favourites().TogglePanel();
}

void CoreLinks::SettleFavourites() {
    Room().places->Favourites().SettleAtStart();
}

int CoreLinks::TabCount() const {
    return Room().web->Tabs().Count();
}

bool CoreLinks::IsTabVisible(int index) const {
    return Room().web->Tabs().IsTabVisible(index);
}

void CoreLinks::CloseTab(int index) {
    Room().web->Tabs().CloseTab(index);
}

void CoreLinks::BringTabToFront(int index) {
    Room().web->Tabs().BringForward(index);
}

void CoreLinks::NameTab(int index, std::string_view caption) {
    Room().web->Tabs().NameTab(index, caption);
}

bool CoreLinks::IsMusicTabVisible() const {
    return Room().web->Tabs().IsMusicTabVisible();
}

void CoreLinks::OpenMusicTab() {
    Room().web->Tabs().OpenMusicTab();
}

void CoreLinks::BringMusicTabToFront() {
    Room().web->Tabs().BringMusicTabForward();
}

void CoreLinks::CloseMusicTab() {
    Room().web->Tabs().CloseMusicTab();
}

void CoreLinks::CorrectTabs() {
    Room().web->Tabs().CorrectTabs();
}

void CoreLinks::NavigateBackdrop(std::string_view address) {
    Room().web->Tabs().NavigateBackdrop(address);
}

std::string CoreLinks::Address() const {
    return Room().web->Address().Address();
}

void CoreLinks::SetAddress(std::string_view address) {
    Room().web->Address().SetAddress(address);
}

bool CoreLinks::IsAddressVisible() const {
    return Room().web->Address().IsAddressVisible();
}

void CoreLinks::PressEnter() {
    Room().web->Opener().Enter(Address());
}

void CoreLinks::cmdGo() {
    Room().web->Opener().OpenTab(Address());
}

void CoreLinks::FocusAddress() {
    Room().web->Address().FocusAddress();
}

void CoreLinks::SetPlayerDefaults() {
    Room().player->SetDefaults();
}

void CoreLinks::ClearVideoPicture() {
    Room().player->ClearVideoPicture();
}

void CoreLinks::SetSongSpeed(int speed) {
    desk_.state.player.SongSpeed = static_cast<std::int16_t>(speed);
}

void CoreLinks::ChooseQuickFade() {
    Room().player->ChooseQuickFade();
}

bool CoreLinks::IsTitleScrolling() const {
    return desk_.state.player.ScrollTitle;
}

void CoreLinks::SetTitleScrolling(bool scrolling) {
    desk_.state.player.ScrollTitle = scrolling;
}

void CoreLinks::StopPlaying() {
    Room().player->Stop();
}

void CoreLinks::CloseMedia() {
    Room().player->CloseMedia();
}

void CoreLinks::SendNothingPlaying() {
    Room().player->Line().SendNothingPlaying();
}

void CoreLinks::NoMouseOvers() {
    Room().skin->NoMouseOvers();
}

bool CoreLinks::IsRunning() const {
    return desk_.ports.instance.TryBecomeFirst() == ports::Instance::Second;
}

void CoreLinks::HandOver(std::string_view command) {
    desk_.ports.instance.HandOff(command);
}

void CoreLinks::AllowPreferencesToUnload() {
    desk_.windows.info.unloadme = true;
}

void CoreLinks::ToggleMute() {
    Room().player->ToggleMute();
}

void CoreLinks::DecreaseVolume() {
    Room().player->DecreaseVolume();
}

void CoreLinks::IncreaseVolume() {
    Room().player->IncreaseVolume();
}

void CoreLinks::EndOfSongCode() {
    Room().player->Next();
}

void CoreLinks::PlayPreviousTrack() {
    Room().player->Previous();
}

void CoreLinks::Stop() {
    Room().player->Stop();
}

bool CoreLinks::IsPlayShown() const {
    return Room().player->IsPlayShown();
}

void CoreLinks::Play() {
    Room().player->Play();
}

void CoreLinks::Pause() {
    Room().player->Pause();
}

void CoreLinks::GoBack() {
    Room().web->Front().GoBack();
}

void CoreLinks::GoForward() {
    Room().web->Front().GoForward();
}

void CoreLinks::RefreshPage() {
    Room().web->Front().Refresh();
}

}  // namespace window
