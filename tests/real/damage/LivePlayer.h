// The whole player on the real media engine and real files: rooms and controls without a screen, timers on
// the real clock.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

#include "platform/gstreamer/MediaEngine.h"
#include "platform/linux/LinuxFiles.h"
#include "player/PlayerHouse.h"

namespace damage {

/// Real files and the real engine.
struct RealMedia {
    linux::LinuxFiles files{linux::RunningProgram()};
    gstreamer::MediaEngine engine{[this](std::string_view path) { return files.ToNative(path); }};
};

class LivePlayer final : public RealMedia, public player_tests::PlayerParts {
public:
    LivePlayer();

    /// A row of the visible tracks, by native path.
    void AddTrack(std::string_view native_path);
    /// Lets timers tick until `done` says so; false when `seconds` pass before.
    bool RunUntil(const std::function<bool()>& done, double seconds);
    /// What the next button of a keyboard does.
    void Next() { player.Next(); }
    void Stop() { controls.transport.imgStopOver.Click.Raise(); }

    /// Native path of the current song.
    std::string NativePath() const { return files.ToNative(NowPlaying()); }
    /// The current song plays.
    bool IsPlaying();
    /// Milliseconds; -1 when nothing is open.
    std::int64_t Place() { return mci.MciPosition(player::TextOf(state.CurrentAlias)) * 1000 / Frames(); }
    std::int64_t Length() { return mci.MciLengthMs(player::TextOf(state.CurrentAlias)); }
    const std::string& RunningTime() const { return controls.transport.lblRunningTime.Caption(); }
    const std::string& Title() const { return controls.transport.lblTrack.Caption(); }

private:
    std::int64_t Frames() const { return state.FramesPerSecond > 0 ? state.FramesPerSecond : 1; }
    void CatchUp();

    std::chrono::steady_clock::time_point now_;
};

}  // namespace damage
