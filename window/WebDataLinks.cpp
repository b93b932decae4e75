#include "window/WebDataLinks.h"

namespace window {

std::string WebDataLinks::Address() const {
    return desk_.rooms.web->Address().Address();
}

void WebDataLinks::SetAddress(std::string_view text) {
    desk_.rooms.web->Address().SetAddress(text);
}

void WebDataLinks::ClearList() {
    desk_.rooms.web->Address().ClearList();
}

void WebDataLinks::AddToList(std::string_view text) {
    desk_.rooms.web->Address().AddToList(text);
}

void WebDataLinks::SetTyped(std::string_view text) {
    desk_.rooms.web->Address().SetTyped(text);
}

std::string WebDataLinks::Mode() const {
    return Window().web.address.cmbType.Text();
}

void WebDataLinks::cmdGo() {
    desk_.rooms.web->Opener().OpenTab(Address());
}

void WebDataLinks::PressEnter() {
    desk_.rooms.web->Opener().Enter(Address());
}

void WebDataLinks::FocusAddress() {
    desk_.rooms.web->Address().FocusAddress();
}

bool WebDataLinks::IsPageVisible() const {
    return desk_.rooms.web->Front().IsPageVisible();
}

std::string WebDataLinks::LocationURL() const {
    return desk_.rooms.web->Front().LocationURL();
}

std::string WebDataLinks::LocationName() const {
    return desk_.rooms.web->Front().LocationName();
}

void WebDataLinks::BeginView() {
    desk_.rooms.library->View().BeginView();
}

void WebDataLinks::AddSong(std::string_view song_id, std::string_view artist, std::string_view title) {
    desk_.rooms.library->View().AddPlayedSong(song_id, artist, title);
}

void WebDataLinks::EndView() {
    desk_.rooms.library->View().EndView();
}

void WebDataLinks::Form_Resize() {
    desk_.rooms.layout->Form_Resize();
}

void WebDataLinks::NoMouseOvers() {
    desk_.rooms.skin->NoMouseOvers();
}

void WebDataLinks::KeyDown(int key_code, int shift) {
    desk_.rooms.keys->KeyDown(key_code, shift);
}

bool WebDataLinks::IsVideoAttached() const {
    return desk_.rooms.player->IsVideoAttached();
}

void WebDataLinks::ShowVideoPane() {
    Window().player.video.picVideo.SetVisible(true);
    desk_.rooms.hole->MakeHole();
}

void WebDataLinks::HideVideoPane() {
    Window().player.video.picVideo.SetVisible(false);
    desk_.rooms.hole->CloseHole();
}

void WebDataLinks::Command1() {
    desk_.rooms.library->Lists().Command1();
}

void WebDataLinks::populatefavs() {
    desk_.rooms.favourites->populatefavs();
}

void WebDataLinks::lstFavs_Click() {
    desk_.rooms.favourites->lstFavs_Click();
}

void WebDataLinks::ClearFavourites() {
    desk_.rooms.favourites->ClearFavourites();
}

}  // namespace window
