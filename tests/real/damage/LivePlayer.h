// The whole player on the real media engine and real files: rooms and controls without a screen, timers on
// the real clock.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

#include "base/MediaKinds.h"
#include "platform/gstreamer/MediaEngine.h"
#include "platform/linux/LinuxFiles.h"
#include "player/PlayerHouse.h"

namespace damage {

/// The tests on paths as the program makes them; songs are known by their paths only.
class KindsOfFiles final : public player::FileKinds, public player::SongPaths {
public:
    explicit KindsOfFiles(const ports::Files& files) : files_(files) {}
    bool IsMediaFile(std::string_view path) const override { return base::IsMediaFile(path); }
    bool IsVideoFile(std::string_view path) const override { return base::IsVideoFile(path); }
    bool FileExists(std::string_view path) const override { return files_.FileExists(path); }
    std::string FileNameOf(std::string_view path) const override { return base::FileNameOf(path); }
    std::string SongPathFromId(std::int64_t) override { return {}; }

private:
    const ports::Files& files_;
};

/// Real files and the real engine.
struct RealMedia {
    linux::LinuxFiles files{linux::RunningProgram()};
    gstreamer::MediaEngine engine{[this](std::string_view path) { return files.ToNative(path); }};
    KindsOfFiles kinds{files};
};

class LivePlayer final : public RealMedia, public player_tests::PlayerParts {
public:
    LivePlayer();

    /// A row of the visible tracks, by native path.
    void AddTrack(std::string_view native_path);
    /// Lets timers tick until `done` says so; false when `seconds` pass before.
    bool RunUntil(const std::function<bool()>& done, double seconds);
    /// What the next button of a keyboard does.
    void Next() { player.EndOfSongCode(); }
    void Stop() { controls.transport.imgStopOver.Click.Raise(); }

    /// Native path of the current song.
    std::string NativePath() const { return files.ToNative(NowPlaying()); }
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

    std::chrono::steady_clock::time_point now_;
};

}  // namespace damage
