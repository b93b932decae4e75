// The whole player on stand-ins: real controls and rooms, a made-up device, a clock the test moves.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Number.h"
#include "base/Text.h"
#include "controls/Form.h"
#include "controls/ListBox.h"
#include "controls/Menu.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeKeptTexts.h"
#include "fakes/FakeMediaControl.h"
#include "fakes/SeededStores.h"
#include "player/Player.h"

namespace player_tests {

struct RecordingHistory final : roles::History {
    void AddSiteToHistory(roles::HistoryKind kind, std::string_view text) override {
        Rows.push_back(std::string(roles::TextOf(kind)) + ":" + std::string(text));
    }
    void DeleteHistory() override {}
    void PopulateHistory(roles::HistoryKind) override {}
    std::vector<std::string> Rows;
};

struct RecordingMessenger final : roles::Messenger {
    void SendNowPlaying(const roles::NowPlayingText& text) override {
        std::string line = text.enabled ? "on" : "off";
        for (const std::string_view part : {text.format, text.first, text.second, text.third, text.extra}) {
            line += "|" + std::string(part);
        }
        Sent.push_back(line);
        if (WhenSent) WhenSent();
    }
    std::vector<std::string> Sent;
    std::function<void()> WhenSent;  ///< a look at how things stand at that moment
};

/// The player only moves the focus there and lets it clear itself.
struct RecordingAddressRow final : roles::AddressRow {
    std::string Address() const override { return {}; }
    void SetAddress(std::string_view) override {}
    bool IsAddressVisible() const override { return true; }
    void ClearList() override {}
    void AddToList(std::string_view) override {}
    void SetTyped(std::string_view) override {}
    void ShowLocation(std::string_view) override {}
    roles::AddressMode Mode() const override { return roles::AddressMode::Web; }
    void FocusAddress() override { ++Focused; }
    void ClearStaleAddress() override { ++Cleared; }
    int Focused = 0;
    int Cleared = 0;
};

/// The main window, as one that notes what it is asked for.
struct FakeMainWindow final : roles::Window,
                              roles::Layout,
                              roles::Hole,
                              roles::Highlights,
                              roles::MediaKeys,
                              roles::Start,
                              roles::Favourites {
    int VideoPanePlacings = 0;
    double Left() const override { return 1500; }
    double Top() const override { return 900; }
    double Width() const override { return 15000; }
    controls::WindowState State() const override { return Now; }
    void SetState(controls::WindowState state) override {
        Now = state;
        Calls.emplace_back(state == controls::WindowState::Maximised ? "maximise" : "normal");
    }
    void SetCaption(std::string_view) override {}
    void Show() override { Calls.emplace_back("show"); }
    void SetEnabled(bool enabled) override { Calls.emplace_back(enabled ? "enable" : "disable"); }
    void Refresh() override { Calls.emplace_back("refresh"); }
    void PopupMenu(controls::Menu& menu) override { Calls.push_back("popup " + menu.Name()); }
    void ShowMusicPanel(bool) override {}
    void ToggleFullScreen() override {}
    void BringMusicPanelToFront() override {}
    void Form_Resize() override {
        Calls.emplace_back("resize");
        if (LaidOut) LaidOut();
    }
    void PlaceFavouritesPanel() override { ++VideoPanePlacings; }
    void PlaceBelowSplitter() override { Calls.emplace_back("below splitter"); }
    void MakeHole() override { Calls.emplace_back("make hole"); }
    void CloseHole() override { Calls.emplace_back("close hole"); }
    void NoMouseOvers() override { Calls.emplace_back("no mouse overs"); }
    void KeyDown(int key_code, int shift) override {
        Calls.push_back("key " + base::ToText(key_code) + " " + base::ToText(shift));
    }
    bool IsLoading() const override { return Loading; }
    void SetStage(std::string_view) override {}
    bool IsOver() const override { return false; }
    void LoadFavs() override {}
    void SettleAtStart() override {}
    bool IsPanelClosed() const override { return FavouritesClosed; }
    void TogglePanel() override { Calls.emplace_back("favourites"); }
    void AddPageInFront() override {}

    std::vector<std::string> TakeCalls() { return std::exchange(Calls, {}); }

    controls::WindowState Now = controls::WindowState::Normal;
    bool Loading = false;
    bool FavouritesClosed = false;
    std::vector<std::string> Calls;
    std::function<void()> LaidOut;
};

struct FakeChance final : ports::Chance {
    double Below1() override { return Value; }
    double Value = 0;
};

struct NoWindows final : ports::WindowServices {
    bool GetWindowRect(std::int64_t, ports::WindowRect&) const override { return false; }
};

/// The player on a desk of its own, over the media and the files that a test gives it; which outlive it.
struct PlayerParts {
    PlayerParts(ports::MediaControl& media, const ports::Files& files)
        : mci(media, no_windows, files),
          player(
              {.controls = controls,
               .menu = menu,
               .video = frmVideo,
               .speaker_test = frmSpeakerTest,
               .tracks = {.lstTracks = lstTracks, .lstMaybe = lstMaybe, .ListMaybeChanged = ListMaybeChanged},
               .lists = {.lstArtists = lstArtists, .lstPlayLists = lstPlayLists, .lstTracks = lstTracks}},
              state,
              {.window = window,
               .layout = window,
               .hole = window,
               .highlights = window,
               .keys = window,
               .address = address,
               .history = history,
               .start = window,
               .favourites = window,
               .messenger = message},
              {.media = media,
               .windows = no_windows,
               .files = files,
               .songs = datSong,
               .dialogs = dialogs,
               .loop = desktop,
               .chance = chance,
               .kept = kept}) {
        // What the layout does to the player at its end.
        window.LaidOut = [this] {
            player.RestoreBars();
            if (state.PlayerStopped) player.StayStopped();
        };
        controls.PutInto(frmBrowser, frmBrowser);
        PlaceBars();
        desktop.Adopt(frmBrowser);
        desktop.Adopt(frmVideo);
        stores.Bind(datSong, "tblSong");
    }

    void DoubleClickTrack(int row) {
        lstTracks.SetListIndex(row);
        lstTracks.DblClick.Raise();
    }
    /// The bars of a main window as large as it starts.
    void PlaceBars() {
        controls.transport.fraControls.Move(0, 0, 14220, 1680);
        controls.transport.picTrackTitle.Move(1650, 180, 7050, 360);
        controls.transport.picSongProgress.Move(1650, 630, 8790, 240);
        controls.levels.picVolume.Move(10680, 600, 1935, 330);
        controls.levels.picSpeed.Move(2370, 1050, 2700, 195);
        player::KeepMarkerWidth(controls.levels.lblSongSpeed, controls.levels.picSpeed,
                                player::kSpeedMarkerWidth);
    }
    /// With no track selected this calls theresize, and else shows only which buttons fit.
    void DoubleClickNoTrack() { DoubleClickTrack(-1); }
    const std::string& NowPlaying() const { return controls.transport.lblFileNowPlaying.Caption(); }

    fakes::FakeDesktop desktop;
    fakes::FakeDialogs dialogs;
    fakes::SeededStores stores{desktop};
    RecordingHistory history;
    RecordingMessenger message;
    RecordingAddressRow address;
    FakeMainWindow window;
    FakeChance chance;
    NoWindows no_windows;
    fakes::FakeKeptTexts kept;
    store::DataSource datSong{"datSong"};
    controls::Form frmBrowser{"frmBrowser", "Brindlepost"};
    player::PlayerControls controls;
    player::PlayerMenu menu;
    player::VideoForm frmVideo;
    player::SpeakerTestForm frmSpeakerTest;
    controls::ListBox lstTracks{"lstTracks"};
    controls::ListBox lstMaybe{"lstMaybe"};
    controls::ListBox lstArtists{"lstArtists"};
    controls::ListBox lstPlayLists{"lstPlayLists"};
    bool ListMaybeChanged = false;
    player::PlayerState state;
    player::MciLayer mci;  ///< a second one, for tests that ask the device themselves
    player::Player player;
};

/// Files and a device that exist in memory only.
struct FakeMedia {
    fakes::FakeFiles files;
    fakes::FakeMediaControl device;
};

/// Songs at "C:\m\", half a minute long unless a test says otherwise; quick fade and no panning, as at the
/// start.
struct PlayerHouse : FakeMedia, PlayerParts {
    PlayerHouse() : PlayerParts(device, files) {
        menu.mnuQuickFade.SetChecked(true);
        menu.mnuPanOff.SetChecked(true);
        controls.video.picVideo.Move(300, 6000, 2400, 1800);
    }

    /// A file that exists and can be played, in the library under `song_id` when that is not 0.
    std::string AddSong(std::string_view name, int length_ms = 30000, int song_id = 0) {
        std::string path = "C:\\m\\" + std::string(name);
        files.AddFile(path);
        const int frames = base::EndsWith(path, ".avi") ? 25 : 1000;
        device.AddFile(files.GetShortPathName(path),
                       {.milliseconds = length_ms, .frames_per_second = frames});
        if (song_id > 0) {
            stores.Seed("tblSong", {{base::ToText(song_id), "", "", path, "0"}});
        }
        return path;
    }

    /// One that does not tell how long it is.
    std::string AddSongWithoutLength(std::string_view name, int length_ms) {
        std::string path = AddSong(name, length_ms);
        device.AddFile(files.GetShortPathName(path), {.milliseconds = length_ms, .tells_length = false});
        return path;
    }

    /// A file that exists and cannot be opened.
    std::string AddBrokenSong(std::string_view name) {
        std::string path = "C:\\m\\" + std::string(name);
        files.AddFile(path);
        device.AddBroken(files.GetShortPathName(path));
        return path;
    }

    /// The path of a file that is not there any more.
    static std::string Gone(std::string_view name) { return "C:\\m\\" + std::string(name); }

    /// A row of the cue list, as a drop or a command puts it there; whoever cues sets the flags.
    void Cue(std::string_view text, std::string_view entry) {
        controls.queue.lstCuedSongs.AddItem(text);
        controls.queue.lstCuedSongsPath.AddItem(entry);
    }

    /// A row of the visible tracks.
    void AddTrack(std::string_view text, std::string_view entry) {
        lstTracks.AddItem(text);
        lstMaybe.AddItem(entry);
        ListMaybeChanged = true;
    }

    /// The video window away from its hole.
    void Float(double left, double top, double width, double height) {
        state.resized = true;
        frmVideo.Move(left, top, width, height);
    }

    /// The commands since the last call.
    std::vector<std::string> TakeCommands() { return device.NewCommands(); }
    bool IsOpen(std::string_view alias) const { return device.IsOpen(alias); }
    /// Path of the song that plays on an alias; empty when none does.
    std::string PlayingOn(player::Alias alias) const { return PlayingOn(player::TextOf(alias)); }
    std::string PlayingOn(std::string_view alias) const {
        if (device.Mode(alias) != "playing") return {};
        return files.FromNative(files.ToNative(device.PathOf(alias)));
    }
    /// Percent of the left and the right speaker; -1 when the alias is not open.
    int LevelOf(std::string_view alias) const { return IsOpen(alias) ? device.Left(alias) / 10 : -1; }
    int RightLevelOf(std::string_view alias) const { return IsOpen(alias) ? device.Right(alias) / 10 : -1; }
    /// Device and clock go on together, in the steps of the heartbeat.
    void RunFor(int milliseconds) {
        for (; milliseconds > 0; milliseconds -= 50) {
            device.Advance(std::min(milliseconds, 50));
            desktop.Advance(std::min(milliseconds, 50));
        }
    }
    static void Press(controls::Control& control, double x, double y = 0) {
        control.MouseDown.Raise(controls::kLeftButton, 0, x, y);
    }
    static void MoveTo(controls::Control& control, double x, double y = 0) {
        control.MouseMove.Raise(controls::kLeftButton, 0, x, y);
    }
    static void Release(controls::Control& control, int button = controls::kLeftButton) {
        control.MouseUp.Raise(button, 0, 0, 0);
    }
};

/// The commands without the questions.
inline std::vector<std::string> Orders(const std::vector<std::string>& commands) {
    std::vector<std::string> orders;
    for (const std::string& command : commands) {
        if (!base::StartsWith(command, "status") && !base::Contains(command, "time format")) {
            orders.push_back(command);
        }
    }
    return orders;
}

}  // namespace player_tests
