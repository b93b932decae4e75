// The player's own rooms over the real engine, their timers running on the real clock.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include "platform/linux/LinuxFiles.h"
#include "player/PlayerHouse.h"
#include "real/sound/GeneratedMedia.h"
#include "real/sound/PrivateSound.h"
#include "real/sound/TimedMedia.h"

namespace sound {

/// Real files and the real engine, whose levels are noted with their moments.
struct HeardMedia {
    explicit HeardMedia(PrivateSound& server)
        : media(server, [this](std::string_view name) { return files.ToNative(name); }) {}

    linux::LinuxFiles files{"/nowhere/Brindlepost"};
    TimedMedia media;
};

/// Quick fade and no panning, as at the start; no song is known to the library.
class PlayingHouse final : public HeardMedia, public player_tests::PlayerParts {
public:
    explicit PlayingHouse(PrivateSound& server) : HeardMedia(server), PlayerParts(media, files) {
        menu.mnuQuickFade.SetChecked(true);
        menu.mnuPanOff.SetChecked(true);
        controls.levels.imgVol.SetLeft(player::kFullVolumeLeft);
        player.RestoreBars();
    }

    /// Plays a file by its native path.
    void Play(const std::string& native_path) {
        const std::string path = files.FromNative(native_path);
        player.PlaySong(path);
    }
    /// The rows of the play order, by native paths.
    void SetOrder(const std::vector<std::string>& native_paths) {
        for (const std::string& native_path : native_paths) {
            const std::string path = files.FromNative(native_path);
            lstTracks.AddItem(path);
            lstMaybe.AddItem(path);
        }
        ListMaybeChanged = true;
    }

    /// Lets the timers run in real time until `done` says yes; false when it did not within `seconds`.
    bool RunUntil(const std::function<bool()>& done, double seconds) {
        using Clock = std::chrono::steady_clock;
        const auto until = Clock::now() + std::chrono::duration<double>(seconds);
        while (!done()) {
            if (Clock::now() > until) return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            Tick();
        }
        return true;
    }
    /// Lets the timers run for the time that has passed; one that was held up does not catch up.
    void Tick() {
        using std::chrono::milliseconds;
        media.Now();
        const auto now = std::chrono::steady_clock::now();
        const auto passed = std::chrono::duration_cast<milliseconds>(now - last_tick_);
        if (passed.count() == 0) return;
        desktop.Advance(static_cast<int>(std::min(passed, milliseconds(kLongestStep)).count()));
        last_tick_ = passed > milliseconds(kLongestStep) ? now : last_tick_ + passed;
    }
    bool IsFading() const { return controls.levels.tmrFade.Enabled(); }

private:
    static constexpr int kLongestStep = 10;

    std::chrono::steady_clock::time_point last_tick_ = std::chrono::steady_clock::now();
};

}  // namespace sound
