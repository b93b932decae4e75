// What start-up and session ask of the other subsystems.
//
// The main window's room implements these with one-line forwarders.
#pragma once

#include <string>
#include <string_view>

namespace session {

/// The lists of the music tab.
class MediaLists {
public:
    virtual ~MediaLists() = default;
    /// Rebuilds every list from the stores.
    virtual void Command1() = 0;
};

class HistoryLists {
public:
    virtual ~HistoryLists() = default;
    virtual void PopulateHistory(std::string_view kind) = 0;
};

/// The favourites panel and its dialog.
class FavouritesStart {
public:
    virtual ~FavouritesStart() = default;
    /// The click of `cmdFavs`.
    virtual void TogglePanel() = 0;
    /// What the click of `imgAddOver` and the dialog's cancel do together, without the dialog flashing up:
    /// the lists are filled and the main window is shown and enabled.
    virtual void SettleFavourites() = 0;
};

/// The tab strip. Tabs are counted from 1; 0 is the template.
class Tabs {
public:
    virtual ~Tabs() = default;
    /// Members of the tab arrays, the template included.
    virtual int TabCount() const = 0;
    virtual bool IsTabVisible(int index) const = 0;
    /// The tab's close target was clicked.
    virtual void CloseTab(int index) = 0;
    /// The tab was clicked with the left button.
    virtual void BringTabToFront(int index) = 0;
    virtual void NameTab(int index, std::string_view caption) = 0;
    /// `imgMusicTab` shows: the music tab is not closed.
    virtual bool IsMusicTabVisible() const = 0;
    /// The click of `imgMusicTabMini`: opens the music tab and puts it in front.
    virtual void OpenMusicTab() = 0;
    /// `imgMusicTab` was clicked with the left button.
    virtual void BringMusicTabToFront() = 0;
    /// The click of `tabMusicClose`.
    virtual void CloseMusicTab() = 0;
    virtual void CorrectTabs() = 0;
    /// The backdrop page goes to an address.
    virtual void NavigateBackdrop(std::string_view address) = 0;
};

class AddressBar {
public:
    virtual ~AddressBar() = default;
    /// Text of `cmbAddress`.
    virtual std::string Address() const = 0;
    virtual void SetAddress(std::string_view address) = 0;
    virtual bool IsAddressVisible() const = 0;
    /// Enter in `cmbAddress`.
    virtual void PressEnter() = 0;
    virtual void cmdGo() = 0;
    /// The keyboard goes to `txtAddress`.
    virtual void FocusAddress() = 0;
};

/// The player, as far as a session starts, keeps and ends it.
class SessionPlayer {
public:
    virtual ~SessionPlayer() = default;
    /// Volume step 5, volume 100, mute off, `lblProgress` hidden.
    virtual void SetPlayerDefaults() = 0;
    virtual void ClearVideoPicture() = 0;
    virtual void SetSongSpeed(int speed) = 0;
    /// The click of `mnuQuickFade`.
    virtual void ChooseQuickFade() = 0;
    virtual bool IsTitleScrolling() const = 0;
    virtual void SetTitleScrolling(bool scrolling) = 0;
    /// The routine that stops what plays.
    virtual void StopPlaying() = 0;
    /// Closes both media channels.
    virtual void CloseMedia() = 0;
    /// Tells the messenger that nothing plays.
    virtual void SendNothingPlaying() = 0;
};

class Skin {
public:
    virtual ~Skin() = default;
    virtual void NoMouseOvers() = 0;
};

/// Other runs of the program for the same folder and user.
class OtherInstance {
public:
    virtual ~OtherInstance() = default;
    virtual bool IsRunning() const = 0;
    /// Brings the other run's window to the front and gives it the command line. Failures are nobody's
    /// concern.
    virtual void HandOver(std::string_view command) = 0;
};

/// What the multimedia keys do.
class MediaKeyActions {
public:
    virtual ~MediaKeyActions() = default;
    virtual void ToggleMute() = 0;      ///< the click of `mnuMusicMute`
    virtual void DecreaseVolume() = 0;  ///< the click of `mnuDecreaseVolume`
    virtual void IncreaseVolume() = 0;  ///< the click of `mnuIncreaseVolume`
    virtual void EndOfSongCode() = 0;
    virtual void PlayPreviousTrack() = 0;
    virtual void Stop() = 0;  ///< the click of `imgStopOver`
    /// `imgPlay` or `imgPlayOver` shows.
    virtual bool IsPlayShown() const = 0;
    virtual void Play() = 0;         ///< the click of `imgPlayOver`
    virtual void Pause() = 0;        ///< the click of `imgPauseOver`
    virtual void GoBack() = 0;       ///< the click of `imgBackOver`
    virtual void GoForward() = 0;    ///< the click of `imgForwardOver`
    virtual void RefreshPage() = 0;  ///< the click of `lblRefresh2`
};

/// The text on the splash that says what is being loaded.
class StageLabel {
public:
    virtual ~StageLabel() = default;
    /// Loads the splash window if it never was.
    virtual void SetStage(std::string_view stage) = 0;
};

/// The splash, as the login uses it.
class Splash {
public:
    virtual ~Splash() = default;
    /// Shows it and lets it count up to the main window.
    virtual void StartCounting() = 0;
};

/// The login window, as log out uses it.
class LoginWindow {
public:
    virtual ~LoginWindow() = default;
    virtual void ShowLogin() = 0;
};

/// The dialogs as the end of a session uses them.
class ClosingDialogs {
public:
    virtual ~ClosingDialogs() = default;
    /// Sets the preferences' `unloadme`, so that their window may unload.
    virtual void AllowPreferencesToUnload() = 0;
};

}  // namespace session
