// The whole player on the real media engine and real files: rooms and controls without a screen, timers on
// the real clock.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

#include "library/Naming.h"
#include "platform/gstreamer/MediaEngine.h"
#include "platform/linux/LinuxFiles.h"
#include "player/PlayerHouse.h"

namespace damage {

/// The tests on paths as the program makes them; songs are known by their paths only.
class KindsOfFiles final : public player::FileKinds, public player::SongPaths {
public:
    explicit KindsOfFiles(const ports::Files& files) : files_(files) {}
    bool IsMediaFile(std::string_view path) const override { return library::IsMediaFile(path); }
    bool IsVideoFile(std::string_view path) const override { return library::IsVideoFile(path); }
    bool FileExists(std::string_view path) const override { return library::FileExists(files_, path); }
    std::string FileNameOf(std::string_view path) const override { return library::FileNameOf(path); }
    std::string SongPathFromId(std::int64_t) override { return {}; }

private:
    const ports::Files& files_;
};

class LivePlayer final {
public:
    LivePlayer();

    /// A row of the visible tracks, by native path.
    void AddTrack(std::string_view native_path);
    /// As a person would, on that row.
    void DoubleClickTrack(int row);
    /// Lets timers tick until `done` says so; false when `seconds` pass before.
    bool RunUntil(const std::function<bool()>& done, double seconds);
    /// What the next button of a keyboard does.
    void Next() { player.EndOfSongCode(); }
    void Stop() { controls.transport.imgStopOver.Click.Raise(); }

    /// Native path of the current song.
    std::string NowPlaying() const;
    /// The current song plays.
    bool IsPlaying();
    /// Milliseconds; -1 when nothing is open.
    std::int64_t Place() { return mci.MciPosition(state.CurrentAlias) * 1000 / Frames(); }
    std::int64_t Length() { return mci.MciLengthMs(state.CurrentAlias); }
    const std::string& RunningTime() const { return controls.transport.lblRunningTime.Caption(); }
    const std::string& Title() const { return controls.transport.lblTrack.Caption(); }

private:
    std::int64_t Frames() const { return state.FramesPerSecond > 0 ? state.FramesPerSecond : 1; }
    void CatchUp();

public:
    fakes::FakeDesktop desktop;
    fakes::FakeDialogs dialogs;
    linux_os::LinuxFiles files{linux_os::RunningProgram()};
    gstreamer::MediaEngine engine{[this](std::string_view path) { return files.ToNative(path); }};
    fakes::SeededStores stores{desktop};
    KindsOfFiles kinds{files};
    player_tests::RecordingHistory history;
    player_tests::RecordingMessage message;
    player_tests::RecordingAddressRow address;
    player_tests::FakeMainWindow window;
    player_tests::FakeChance chance;
    player_tests::NoWindows no_windows;
    store::DataSource datSong{"datSong"};
    controls::Form frmBrowser{"frmBrowser", "Brindlepost"};
    player::PlayerControls controls;
    player_tests::PlayerMenuEntries menu;
    player::VideoForm frmVideo;
    player::SpeakerTestForm frmSpeakerTest;
    controls::ListBox lstTracks{"lstTracks"};
    controls::ListBox lstMaybe{"lstMaybe"};
    controls::ListBox lstArtists{"lstArtists"};
    controls::ListBox lstPlayLists{"lstPlayLists"};
    bool ListMaybeChanged = false;
    player::PlayerState state;
    player::MciLayer mci{engine, no_windows, files};
    player::Player player{{controls,
                           menu.References(),
                           frmVideo,
                           frmSpeakerTest,
                           {lstTracks, lstMaybe, ListMaybeChanged},
                           {lstArtists, lstPlayLists, lstTracks}},
                          state,
                          {kinds, kinds, history, message, address, window},
                          {mci, datSong, dialogs, desktop, chance}};

private:
    std::chrono::steady_clock::time_point now_;
};

}  // namespace damage
