// What history and favourites ask of their neighbours, answered by the rooms that know.
#pragma once

#include "window/Desk.h"

namespace window {

class WebDataLinks final : public places::AddressRow,
                           public places::FrontPage,
                           public places::PlayedSongsView,
                           public places::FavouritesWindow,
                           public places::FavouritesLists {
public:
    explicit WebDataLinks(Desk& desk) : desk_(desk) {}

    // places::AddressRow
    std::string Address() const override;
    void SetAddress(std::string_view text) override;
    void ClearList() override;
    void AddToList(std::string_view text) override;
    void SetTyped(std::string_view text) override;
    std::string Mode() const override;
    void cmdGo() override;
    void PressEnter() override;
    void FocusAddress() override;

    // places::FrontPage
    bool IsPageVisible() const override;
    std::string LocationURL() const override;
    std::string LocationName() const override;

    // places::PlayedSongsView
    void BeginView() override;
    void AddSong(std::string_view song_id, std::string_view artist, std::string_view title) override;
    void EndView() override;

    // places::FavouritesWindow
    void Form_Resize() override;
    void NoMouseOvers() override;
    void KeyDown(int key_code, int shift) override;
    bool IsVideoAttached() const override;
    void ShowVideoPane() override;
    void HideVideoPane() override;
    void Command1() override;

    // places::FavouritesLists
    void populatefavs() override;
    void lstFavs_Click() override;
    void ClearFavourites() override;

private:
    BrowserForm& Window() const { return desk_.windows.frmBrowser; }

    Desk& desk_;
};

}  // namespace window
