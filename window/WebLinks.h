// What the web subsystem asks of its neighbours, answered by the rooms that know.
#pragma once

#include "window/Desk.h"

namespace window {

class WebLinks final : public web::BrowserWindow,
                       public web::MusicPanel,
                       public web::MusicPlayer,
                       public web::MediaLibrary,
                       public web::CueList,
                       public web::HistoryLog,
                       public web::NowPlayingLine,
                       public web::SiteLogins,
                       public web::Session,
                       public web::FileNames {
public:
    explicit WebLinks(Desk& desk) : desk_(desk) {}

    // web::BrowserWindow
    void SetCaption(std::string_view caption) override;
    double Width() const override;
    void Form_Resize() override;
    void NoMouseOvers() override;
    void KeyDown(int key_code, int shift) override;
    void PopupTabMenu() override;
    void PopupMusicMenu() override;
    void PopupHelpMenu() override;

    // web::MusicPanel
    void ShowPanel() override;
    void HidePanel() override;
    void BringPanelToFront() override;

    // web::MusicPlayer
    void PlaySong(std::string_view path) override;
    bool IsNoFileShown() const override;
    void StopCurrentSong() override;
    std::string TrackCaption() const override;
    void ClearTrackCaption() override;

    // web::MediaLibrary. Play list files are not read yet.
    void Command1() override;
    void AddPlayList(std::string_view path) override;
    void AddMediaFromCommand(std::string_view path) override;
    void RefillEmptyTrackList() override;
    void OfferToAddMedia() override;

    // web::CueList
    int CuedSongs() const override;
    int CuedPaths() const override;
    void SelectCuedPath(int row) override;
    void CueFile(std::string_view path, std::string_view title) override;

    // web::HistoryLog
    void AddSiteToHistory(std::string_view kind, std::string_view text) override;
    void PopulateHistory(std::string_view kind) override;

    // web::NowPlayingLine
    void SetCustomText(std::string_view text) override;
    void SendNowPlaying() override;
    void SendNothingPlaying() override;

    // web::SiteLogins
    void LoginToMySpace(int index) override;
    void LoginToHotmail(int index) override;

    // web::Session
    bool Internet_Connection() const override;
    bool Save_History() const override;
    bool Allow_Multiple_Users() const override;
    bool Auto_Login() const override;
    bool IsLoading() const override;
    bool StartedWithArguments() const override;
    void ClearStartedWithArguments() override;

    // web::FileNames
    bool IsMediaFile(std::string_view path) const override;
    bool IsPlayListFile(std::string_view path) const override;
    std::string FileNameOf(std::string_view path) const override;
    std::string ToDriveForm(std::string_view typed) const override;

private:
    BrowserForm& Window() const { return desk_.windows.frmBrowser; }
    Rooms& Room() const { return desk_.rooms; }

    Desk& desk_;
};

}  // namespace window
