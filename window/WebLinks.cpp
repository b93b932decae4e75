#include "window/WebLinks.h"

namespace window {

double WebLinks::Left() const {
    return Form().Left();
}

double WebLinks::Top() const {
    return Form().Top();
}

double WebLinks::Width() const {
    return Form().Width();
}

controls::WindowState WebLinks::State() const {
    return Form().State();
}

void WebLinks::SetState(controls::WindowState state) {
    Form().SetState(state);
}

void WebLinks::SetCaption(std::string_view caption) {
    Form().SetCaption(caption);
}

void WebLinks::Show() {
    Form().Show();
}

void WebLinks::SetEnabled(bool enabled) {
    Form().SetEnabled(enabled);
}

void WebLinks::Refresh() {
    Form().Refresh();
}

void WebLinks::PopupMenu(controls::Menu& menu) {
    Form().PopupMenu(menu);
}

void WebLinks::ShowMusicPanel(bool shown) {
    Form().chrome.fraMusicTab.SetVisible(shown);
}

void WebLinks::BringMusicPanelToFront() {
    Form().chrome.fraMusicTab.BringToFront();
}

void WebLinks::Form_Resize() {
    Room().layout->Form_Resize();
}

void WebLinks::PlaceBelowSplitter() {
    Room().layout->PlaceBelowSplitter();
}

void WebLinks::PlaceFavouritesPanel() {
    Room().layout->PlaceFavouritesPanel();
}

void WebLinks::NoMouseOvers() {
    Room().skin->NoMouseOvers();
}

void WebLinks::KeyDown(int key_code, int shift) {
    Room().keys->KeyDown(key_code, shift);
}

void WebLinks::PlaySong(std::string_view path) {
    Room().player->PlaySong(path);
}

void WebLinks::Play() {
    remote_.Play();
}

void WebLinks::Pause() {
    remote_.Pause();
}

bool WebLinks::IsPlayShown() const {
    const auto& buttons = Form().player.transport;
    return buttons.imgPlay.Visible() || buttons.imgPlayOver.Visible();
}

void WebLinks::Stop() {
    Room().player->StopCurrentSong();
}

void WebLinks::StopAndForget() {
    Stop();
    Form().player.transport.lblTrack.SetCaption("");
}

void WebLinks::Next() {
    remote_.Next();
}

void WebLinks::Previous() {
    remote_.Previous();
}

void WebLinks::SeekTo(double second) {
    remote_.SeekTo(second);
}

void WebLinks::SetSpeed(double percent) {
    remote_.SetSpeed(percent);
}

void WebLinks::SetVolume(double level) {
    remote_.SetVolume(level);
}

void WebLinks::ToggleMute() {
    Form().menus.mnuMusicMute.Click.Raise();
}

void WebLinks::IncreaseVolume() {
    Form().menus.mnuIncreaseVolume.Click.Raise();
}

void WebLinks::DecreaseVolume() {
    Form().menus.mnuDecreaseVolume.Click.Raise();
}

roles::PlayerGlance WebLinks::Glance() const {
    return {.orders = remote_.Orders(),
            .openings = remote_.Openings(),
            .seeks = remote_.Seeks(),
            .volume = remote_.Volume(),
            .has_selected_track = remote_.HasSelectedTrack(),
            .has_next = remote_.HasNext(),
            .has_previous = remote_.HasPrevious()};
}

roles::PlayerStatus WebLinks::Status() {
    const ports::PlaybackStatus status = remote_.Status();
    if (status == ports::PlaybackStatus::Playing) return roles::PlayerStatus::Playing;
    return status == ports::PlaybackStatus::Paused ? roles::PlayerStatus::Paused
                                                   : roles::PlayerStatus::Stopped;
}

roles::CurrentSong WebLinks::Song() {
    return {.artist = remote_.Artist(),
            .title = remote_.Title(),
            .path = Form().player.transport.lblFileNowPlaying.Caption(),
            .length = remote_.Length(),
            .speed = remote_.Speed(),
            .is_video = remote_.IsVideo()};
}

double WebLinks::Position() {
    return remote_.Position();
}

bool WebLinks::IsStopped() const {
    return desk_.state.player.PlayerStopped;
}

bool WebLinks::IsNoFileShown() const {
    return Form().player.transport.lblNoFile.Visible();
}

std::string WebLinks::TrackCaption() const {
    return Form().player.transport.lblTrack.Caption();
}

void WebLinks::SetCustomText(std::string_view text) {
    desk_.state.player.NowAlbum = text;
}

void WebLinks::SendNowPlaying() {
    Room().player->SendNowPlaying();
}

void WebLinks::SendNothingPlaying() {
    Room().player->SendNothingPlaying();
}

void WebLinks::Command1() {
    Room().library->Lists().Command1();
}

void WebLinks::RefillIfEmpty() {
    Room().library->Lists().RefillIfEmpty();
}

void WebLinks::AddMediaFromCommand(std::string_view path) {
    Room().library->Intake().AddMediaFromCommand(path);
}

void WebLinks::AddPlayList(std::string_view /*path*/) {}

void WebLinks::OfferToAddMedia() {
    Room().library->Intake().OfferToAddMedia();
}

int WebLinks::SongCount() const {
    return Form().player.queue.lstCuedSongs.ListCount();
}

int WebLinks::PathCount() const {
    return Form().player.queue.lstCuedSongsPath.ListCount();
}

void WebLinks::SelectPath(int row) {
    Form().player.queue.lstCuedSongsPath.SetListIndex(row);
}

void WebLinks::CueFile(std::string_view path, std::string_view title) {
    Form().player.queue.lstCuedSongsPath.AddItem(path);
    Form().player.queue.lstCuedSongs.AddItem(title);
    desk_.state.player.CueHeadIsPath = true;
}

void WebLinks::AddSiteToHistory(roles::HistoryKind kind, std::string_view text) {
    Room().places->History().AddSiteToHistory(kind, text);
}

void WebLinks::PopulateHistory(roles::HistoryKind kind) {
    Room().places->History().PopulateHistory(kind);
}

bool WebLinks::IsLoading() const {
    return Room().start_up->IsLoading();
}

void WebLinks::SetStage(std::string_view stage) {
    Room().activate->SetStage(stage);
}

}  // namespace window
