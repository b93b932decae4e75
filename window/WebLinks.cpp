#include "window/WebLinks.h"

#include "base/MediaKinds.h"

namespace window {

void WebLinks::SetCaption(std::string_view caption) {
    Window().SetCaption(caption);
}

double WebLinks::Width() const {
    return Window().Width();
}

void WebLinks::Form_Resize() {
    Room().layout->Form_Resize();
}

void WebLinks::NoMouseOvers() {
    Room().skin->NoMouseOvers();
}

void WebLinks::KeyDown(int key_code, int shift) {
    Room().keys->KeyDown(key_code, shift);
}

void WebLinks::PopupTabMenu() {
    Window().PopupMenu(Window().menus.mnuTab);
}

void WebLinks::PopupMusicMenu() {
    Window().PopupMenu(Window().menus.mnuMusicPlayer);
}

void WebLinks::PopupHelpMenu() {
    Window().PopupMenu(Window().menus.mnuHelp);
}

void WebLinks::ShowPanel() {
    Window().chrome.fraMusicTab.SetVisible(true);
}

void WebLinks::HidePanel() {
    Window().chrome.fraMusicTab.SetVisible(false);
}

void WebLinks::BringPanelToFront() {
    Window().chrome.fraMusicTab.BringToFront();
}

void WebLinks::PlaySong(std::string_view path) {
    Room().player->PlaySong(path);
}

bool WebLinks::IsNoFileShown() const {
    return Window().player.transport.lblNoFile.Visible();
}

void WebLinks::StopCurrentSong() {
    Room().player->StopCurrentSong();
}

std::string WebLinks::TrackCaption() const {
    return Window().player.transport.lblTrack.Caption();
}

void WebLinks::ClearTrackCaption() {
    Window().player.transport.lblTrack.SetCaption("");
}

void WebLinks::Command1() {
    Room().lists->Command1();
}

void WebLinks::AddPlayList(std::string_view /*path*/) {}

void WebLinks::AddMediaFromCommand(std::string_view path) {
    Room().opened->AddMediaFromCommand(path);
}

void WebLinks::RefillEmptyTrackList() {
    Room().lists->RefillIfEmpty();
}

void WebLinks::OfferToAddMedia() {
    Room().opened->OfferToAddMedia();
}

int WebLinks::CuedSongs() const {
    return Window().player.queue.lstCuedSongs.ListCount();
}

int WebLinks::CuedPaths() const {
    return Window().player.queue.lstCuedSongsPath.ListCount();
}

void WebLinks::SelectCuedPath(int row) {
    Window().player.queue.lstCuedSongsPath.SetListIndex(row);
}

void WebLinks::CueFile(std::string_view path, std::string_view title) {
    Window().player.queue.lstCuedSongsPath.AddItem(path);
    Window().player.queue.lstCuedSongs.AddItem(title);
    desk_.state.player.CueHeadIsPath = true;
}

void WebLinks::AddSiteToHistory(std::string_view kind, std::string_view text) {
    Room().history->AddSiteToHistory(kind, text);
}

void WebLinks::PopulateHistory(std::string_view kind) {
    Room().history->PopulateHistory(kind);
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

void WebLinks::LoginToMySpace(int index) {
    const session::LoginState& login = desk_.state.login;
    Room().web->logins.LoginToMySpace(login.MySpaceE, login.MySpaceP, index);
}

void WebLinks::LoginToHotmail(int index) {
    const session::LoginState& login = desk_.state.login;
    Room().web->logins.LoginToHotmail(login.HotmailE, login.HotmailP, index);
}

bool WebLinks::Internet_Connection() const {
    return desk_.state.connection.Internet_Connection;
}

bool WebLinks::Save_History() const {
    return desk_.state.options.Save_History;
}

bool WebLinks::Allow_Multiple_Users() const {
    return desk_.state.login.Allow_Multiple_Users;
}

bool WebLinks::Auto_Login() const {
    return desk_.state.options.Auto_Login;
}

bool WebLinks::IsLoading() const {
    return Room().start_up->IsLoading();
}

bool WebLinks::StartedWithArguments() const {
    return desk_.state.session.StartedWithArguments;
}

void WebLinks::ClearStartedWithArguments() {
    desk_.state.session.StartedWithArguments = false;
}

bool WebLinks::IsMediaFile(std::string_view path) const {
    return base::IsMediaFile(path);
}

bool WebLinks::IsPlayListFile(std::string_view path) const {
    return base::IsPlayListFile(path);
}

std::string WebLinks::FileNameOf(std::string_view path) const {
    return base::FileNameOf(path);
}

std::string WebLinks::ToDriveForm(std::string_view typed) const {
    return desk_.ports.files.FromNative(typed);
}

}  // namespace window
