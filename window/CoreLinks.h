// What start-up and session ask of their neighbours, answered by the rooms that know.
#pragma once

#include "window/Desk.h"

namespace window {

class CoreLinks final : public session::MediaLists,
                        public session::HistoryLists,
                        public session::FavouritesStart,
                        public session::Tabs,
                        public session::AddressBar,
                        public session::SessionPlayer,
                        public session::Skin,
                        public session::OtherInstance,
                        public session::ClosingDialogs,
                        public session::MediaKeyActions {
public:
    explicit CoreLinks(Desk& desk) : desk_(desk) {}

    // session::MediaLists
    void Command1() override;

    // session::HistoryLists
    void PopulateHistory(std::string_view kind) override;

    // session::FavouritesStart
    void TogglePanel() override;
    void SettleFavourites() override;

    // session::Tabs
    int TabCount() const override;
    bool IsTabVisible(int index) const override;
    void CloseTab(int index) override;
    void BringTabToFront(int index) override;
    void NameTab(int index, std::string_view caption) override;
    bool IsMusicTabVisible() const override;
    void OpenMusicTab() override;
    void BringMusicTabToFront() override;
    void CloseMusicTab() override;
    void CorrectTabs() override;
    void NavigateBackdrop(std::string_view address) override;

    // session::AddressBar
    std::string Address() const override;
    void SetAddress(std::string_view address) override;
    bool IsAddressVisible() const override;
    void PressEnter() override;
    void cmdGo() override;
    void FocusAddress() override;

    // session::SessionPlayer
    void SetPlayerDefaults() override;
    void ClearVideoPicture() override;
    void SetSongSpeed(int speed) override;
    void ChooseQuickFade() override;
    bool IsTitleScrolling() const override;
    void SetTitleScrolling(bool scrolling) override;
    void StopPlaying() override;
    void CloseMedia() override;
    void SendNothingPlaying() override;

    // session::Skin
    void NoMouseOvers() override;

    // session::OtherInstance
    bool IsRunning() const override;
    void HandOver(std::string_view command) override;

    // session::ClosingDialogs
    void AllowPreferencesToUnload() override;

    // session::MediaKeyActions
    void ToggleMute() override;
    void DecreaseVolume() override;
    void IncreaseVolume() override;
    void EndOfSongCode() override;
    void PlayPreviousTrack() override;
    void Stop() override;
    bool IsPlayShown() const override;
    void Play() override;
    void Pause() override;
    void GoBack() override;
    void GoForward() override;
    void RefreshPage() override;

private:
    BrowserForm& Window() const { return desk_.windows.frmBrowser; }
    Rooms& Room() const { return desk_.rooms; }

    Desk& desk_;
};

}  // namespace window
