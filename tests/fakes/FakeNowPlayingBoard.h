// The desktop's player controls without a desktop: what was shown, and whoever asks.
#pragma once

#include <vector>

#include "ports/NowPlaying.h"

namespace fakes {

class FakeNowPlayingBoard final : public ports::NowPlayingBoard {
public:
    void SetListener(ports::RemoteControl* listener) override { Listener = listener; }
    void Show(const ports::NowPlaying& now) override {
        if (now == Shown) return;
        Shown = now;
        News.push_back(now);
    }
    void ShowJump(std::int64_t position) override { Jumps.push_back(position); }

    ports::RemoteControl* Listener = nullptr;
    /// The state now, and each change of it.
    ports::NowPlaying Shown;
    std::vector<ports::NowPlaying> News;
    std::vector<std::int64_t> Jumps;
};

}  // namespace fakes
