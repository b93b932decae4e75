// What the player asks of its neighbours: the library, the history, the messenger, the main window.
//
// The main window's room implements these with one-line forwarders.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/Form.h"
#include "controls/Menu.h"

namespace player {

/// Tests on paths; no failure is ever reported, an unreadable path is no file.
class FileKinds {
public:
    virtual ~FileKinds() = default;
    virtual bool IsMediaFile(std::string_view path) const = 0;
    virtual bool IsVideoFile(std::string_view path) const = 0;
    virtual bool FileExists(std::string_view path) const = 0;
    /// All behind the last "\" or "/".
    virtual std::string FileNameOf(std::string_view path) const = 0;
};

class SongPaths {
public:
    virtual ~SongPaths() = default;
    /// FilePath of the song; empty when there is none with that number.
    virtual std::string SongPathFromId(std::int64_t song_id) = 0;
};

class HistoryLog {
public:
    virtual ~HistoryLog() = default;
    virtual void AddSiteToHistory(std::string_view kind, std::string_view text) = 0;
};

/// The line that the messenger shows.
class NowPlayingMessage {
public:
    virtual ~NowPlayingMessage() = default;
    virtual void SendNowPlaying(std::string_view first, std::string_view second, std::string_view third,
                                std::string_view extra, std::string_view format, bool enabled,
                                std::string_view category) = 0;
};

/// The address row, as far as the player touches it.
class AddressRow {
public:
    virtual ~AddressRow() = default;
    /// Keyboard focus to txtAddress.
    virtual void FocusAddress() = 0;
    /// While the music tab shows: empties txtAddress if it still holds the remembered page address. Called at
    /// every tick, so it must cost next to nothing.
    virtual void ClearStaleAddress() = 0;
};

/// The main window: its place, its layout, the hole for the video.
class MainWindow {
public:
    virtual ~MainWindow() = default;
    /// Outer place, in twips.
    virtual double Left() const = 0;
    virtual double Top() const = 0;
    virtual controls::WindowState State() const = 0;
    virtual void SetState(controls::WindowState state) = 0;
    virtual void ShowWindow() = 0;
    virtual void EnableWindow(bool enabled) = 0;
    virtual void RefreshWindow() = 0;
    virtual void Form_Resize() = 0;
    /// The splitter was dragged: what stands below it follows.
    virtual void PlaceBelowSplitter() = 0;
    /// picVideo came or went: the favourites panel gives or takes back its room.
    virtual void PlaceVideoPane() = 0;
    virtual void MakeHole() = 0;
    virtual void CloseHole() = 0;
    virtual void NoMouseOvers() = 0;
    /// The multimedia keys.
    virtual void KeyDown(int key_code, int shift) = 0;
    virtual void PopupMenu(controls::Menu& menu) = 0;
    /// The start-up timer tmrLoad is enabled.
    virtual bool IsLoading() const = 0;
    /// The favourites panel is closed: cmdFavs shows ">".
    virtual bool IsFavouritesPanelClosed() const = 0;
    virtual void cmdFavs_Click() = 0;
};

}  // namespace player
