#include "real/damage/LivePlayer.h"

#include <thread>

#include "base/MediaKinds.h"

namespace damage {

using Clock = std::chrono::steady_clock;

LivePlayer::LivePlayer() : PlayerParts(engine, files), now_(Clock::now()) {
    menu.mnuFadeOff.Click.Raise();
    menu.mnuPanOff.SetChecked(true);
    // The next song starts at the end of the one before.
    state.FadeSeconds = 0;
}

void LivePlayer::AddTrack(std::string_view native_path) {
    const std::string path = files.FromNative(native_path);
    lstTracks.AddItem(base::FileNameOf(path));
    lstMaybe.AddItem(path);
    ListMaybeChanged = true;
}

void LivePlayer::CatchUp() {
    const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - now_);
    now_ += passed;
    desktop.Advance(static_cast<int>(passed.count()));
}

bool LivePlayer::RunUntil(const std::function<bool()>& done, double seconds) {
    const auto until = Clock::now() + std::chrono::duration<double>(seconds);
    while (!done()) {
        if (Clock::now() > until) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        CatchUp();
    }
    return true;
}

bool LivePlayer::IsPlaying() {
    return mci.MciStatusMode(player::TextOf(state.CurrentAlias)) == "playing";
}

}  // namespace damage
