// What the web subsystem asks of its neighbours: the player, the library, the history, the messenger, the
// window.
//
// The main window's room implements these with one-line forwarders.
#pragma once

#include <string>
#include <string_view>

namespace web {

/// The player, as far as an address or a closed music tab reaches it.
class MusicPlayer {
public:
    virtual ~MusicPlayer() = default;
    virtual void PlaySong(std::string_view path) = 0;
    /// The sign that the last song could not be played (`lblNoFile`) shows.
    virtual bool IsNoFileShown() const = 0;
    /// The routine that stops the current song.
    virtual void StopCurrentSong() = 0;
    /// Caption of `lblTrack`.
    virtual std::string TrackCaption() const = 0;
    virtual void ClearTrackCaption() = 0;
};

/// The library and its lists.
class MediaLibrary {
public:
    virtual ~MediaLibrary() = default;
    /// Rebuilds every list after a change to a table.
    virtual void Command1() = 0;
    virtual void AddPlayList(std::string_view path) = 0;
    virtual void AddMediaFromCommand(std::string_view path) = 0;
    /// Fills the track list if it has no row.
    virtual void RefillEmptyTrackList() = 0;
    /// Asks whether to add media now, if the library has none.
    virtual void OfferToAddMedia() = 0;
};

/// The cue list: `lstCuedSongs` and, in step with it, `lstCuedSongsPath`.
class CueList {
public:
    virtual ~CueList() = default;
    virtual int CuedSongs() const = 0;
    virtual int CuedPaths() const = 0;
    /// Selects a row of `lstCuedSongsPath`.
    virtual void SelectCuedPath(int row) = 0;
    /// Adds one song to both lists and marks the cue list as changed.
    virtual void CueFile(std::string_view path, std::string_view title) = 0;
};

class HistoryLog {
public:
    virtual ~HistoryLog() = default;
    virtual void AddSiteToHistory(std::string_view kind, std::string_view text) = 0;
    virtual void PopulateHistory(std::string_view kind) = 0;
};

/// The line that the messenger shows.
class NowPlayingLine {
public:
    virtual ~NowPlayingLine() = default;
    /// The third field of the line (`NowAlbum`).
    virtual void SetCustomText(std::string_view text) = 0;
    /// Sends artist, title and custom text as they stand.
    virtual void SendNowPlaying() = 0;
    /// Sends that nothing plays.
    virtual void SendNothingPlaying() = 0;
};

/// The panel of the music tab, `fraMusicTab`.
class MusicPanel {
public:
    virtual ~MusicPanel() = default;
    virtual void ShowPanel() = 0;
    virtual void HidePanel() = 0;
    virtual void BringPanelToFront() = 0;
};

/// The main window itself.
class BrowserWindow {
public:
    virtual ~BrowserWindow() = default;
    virtual void SetCaption(std::string_view caption) = 0;
    /// Width of the window, in twips.
    virtual double Width() const = 0;
    virtual void Form_Resize() = 0;
    virtual void NoMouseOvers() = 0;
    /// The multimedia keys.
    virtual void KeyDown(int key_code, int shift) = 0;
    virtual void PopupTabMenu() = 0;    ///< `mnuTab`
    virtual void PopupMusicMenu() = 0;  ///< `mnuMusicPlayer`
    virtual void PopupHelpMenu() = 0;   ///< `mnuHelp`
};

/// Flags of the session that other windows keep.
class Session {
public:
    virtual ~Session() = default;
    virtual bool Internet_Connection() const = 0;
    virtual bool Save_History() const = 0;
    virtual bool Allow_Multiple_Users() const = 0;
    virtual bool Auto_Login() const = 0;
    /// The start-up timer `tmrLoad` runs.
    virtual bool IsLoading() const = 0;
    virtual bool StartedWithArguments() const = 0;
    virtual void ClearStartedWithArguments() = 0;
};

/// Fills in the login form of the page in tab `index` with what the person stored.
class SiteLogins {
public:
    virtual ~SiteLogins() = default;
    virtual void LoginToMySpace(int index) = 0;
    virtual void LoginToHotmail(int index) = 0;
};

/// Paths as a person types or drops them, and the kinds of file they name.
class FileNames {
public:
    virtual ~FileNames() = default;
    /// By the last three characters only; neither looks whether there is such a file.
    virtual bool IsMediaFile(std::string_view path) const = 0;
    virtual bool IsPlayListFile(std::string_view path) const = 0;
    /// What stands behind the last separator.
    virtual std::string FileNameOf(std::string_view path) const = 0;
    /// The drive form of a native path ("/home/a.mp3" becomes "C:\home\a.mp3"); any other text stays as it
    /// is.
    virtual std::string ToDriveForm(std::string_view typed) const = 0;
};

}  // namespace web
