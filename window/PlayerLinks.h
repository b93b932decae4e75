// What the player asks of its neighbours, answered by the rooms that know.
#pragma once

#include "controls/Form.h"
#include "controls/Menu.h"
#include "window/Desk.h"

namespace window {

class PlayerLinks final : public player::FileKinds,
                          public player::SongPaths,
                          public player::HistoryLog,
                          public player::NowPlayingMessage,
                          public player::AddressRow,
                          public player::MainWindow,
                          public LayoutPartners {
public:
    explicit PlayerLinks(Desk& desk) : desk_(desk) {}

    // player::FileKinds
    bool IsMediaFile(std::string_view path) const override;
    bool IsVideoFile(std::string_view path) const override;
    bool FileExists(std::string_view path) const override;
    std::string FileNameOf(std::string_view path) const override;

    // player::SongPaths
    std::string SongPathFromId(std::int64_t song_id) override;

    // player::HistoryLog
    void AddSiteToHistory(std::string_view kind, std::string_view text) override;

    // player::NowPlayingMessage
    void SendNowPlaying(std::string_view first, std::string_view second, std::string_view third,
                        std::string_view extra, std::string_view format, bool enabled,
                        std::string_view category) override;

    // player::AddressRow
    void FocusAddress() override;
    void ClearStaleAddress() override;

    // player::MainWindow
    double Left() const override;
    double Top() const override;
    controls::WindowState State() const override;
    void SetState(controls::WindowState state) override;
    void ShowWindow() override;
    void EnableWindow(bool enabled) override;
    void RefreshWindow() override;
    void Form_Resize() override;
    void PlaceBelowSplitter() override;
    void PlaceVideoPane() override;
    void MakeHole() override;
    void CloseHole() override;
    void NoMouseOvers() override;
    void KeyDown(int key_code, int shift) override;
    void PopupMenu(controls::Menu& menu) override;
    bool IsLoading() const override;
    bool IsFavouritesPanelClosed() const override;
    void cmdFavs_Click() override;

    // LayoutPartners
    bool IsPlayerStopped() const override;
    void StopPlayer() override;
    bool IsVideoAttached() const override;
    void RestoreBars() override;

private:
    BrowserForm& Window() const { return desk_.windows.frmBrowser; }

    Desk& desk_;
};

}  // namespace window
