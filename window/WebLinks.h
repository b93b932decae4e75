// What the web subsystem asks of other subjects, answered by the rooms that know.
#pragma once

#include "controls/Form.h"
#include "controls/Menu.h"
#include "window/Desk.h"
#include "window/RemoteLinks.h"

namespace window {

class WebLinks final : public roles::Window,
                       public roles::Layout,
                       public roles::Highlights,
                       public roles::MediaKeys,
                       public roles::Transport,
                       public roles::NowPlaying,
                       public roles::MessengerLine,
                       public roles::TrackLists,
                       public roles::MediaIntake,
                       public roles::CueList,
                       public roles::History,
                       public roles::Start {
public:
    explicit WebLinks(Desk& desk) : desk_(desk), remote_(desk) {}

    // roles::Window
    double Left() const override;
    double Top() const override;
    double Width() const override;
    controls::WindowState State() const override;
    void SetState(controls::WindowState state) override;
    void SetCaption(std::string_view caption) override;
    void Show() override;
    void SetEnabled(bool enabled) override;
    void Refresh() override;
    void PopupMenu(controls::Menu& menu) override;
    void ShowMusicPanel(bool shown) override;
    void BringMusicPanelToFront() override;

    // roles::Layout
    void Form_Resize() override;
    void PlaceBelowSplitter() override;
    void PlaceFavouritesPanel() override;

    // roles::Highlights
    void NoMouseOvers() override;

    // roles::MediaKeys
    void KeyDown(int key_code, int shift) override;

    // roles::Transport
    void PlaySong(std::string_view path) override;
    void Play() override;
    void Pause() override;
    bool IsPlayShown() const override;
    void Stop() override;
    void StopAndForget() override;
    void Next() override;
    void Previous() override;
    void SeekTo(double second) override;
    void SetSpeed(double percent) override;
    void SetVolume(double level) override;
    void ToggleMute() override;
    void IncreaseVolume() override;
    void DecreaseVolume() override;

    // roles::NowPlaying
    roles::PlayerGlance Glance() const override;
    roles::PlayerStatus Status() override;
    roles::CurrentSong Song() override;
    double Position() override;
    bool IsStopped() const override;
    bool IsNoFileShown() const override;
    std::string TrackCaption() const override;

    // roles::MessengerLine
    void SetCustomText(std::string_view text) override;
    void SendNowPlaying() override;
    void SendNothingPlaying() override;

    // roles::TrackLists
    void Command1() override;
    void RefillIfEmpty() override;

    // roles::MediaIntake. Play list files are not read yet.
    void AddMediaFromCommand(std::string_view path) override;
    void AddPlayList(std::string_view path) override;
    void OfferToAddMedia() override;

    // roles::CueList
    int SongCount() const override;
    int PathCount() const override;
    void SelectPath(int row) override;
    void CueFile(std::string_view path, std::string_view title) override;

    // roles::History
    void AddSiteToHistory(roles::HistoryKind kind, std::string_view text) override;
    void PopulateHistory(roles::HistoryKind kind) override;

    // roles::Start
    bool IsLoading() const override;
    void SetStage(std::string_view stage) override;

private:
    BrowserForm& Form() const { return desk_.windows.frmBrowser; }
    Rooms& Room() const { return desk_.rooms; }

    Desk& desk_;
    RemoteLinks remote_;
};

}  // namespace window
