// The level of each channel, laid on samples as they pass.
//
// Levels are linear amplitude in tenths of a percent, 0 to 1000. A new level is reached in an even ramp of a
// few milliseconds, so that it does not click. Levels are set on any thread, samples pass on one.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>

namespace gstreamer {

class Gain final {
public:
    static constexpr int kFull = 1000;
    static constexpr double kRampSeconds = 0.005;

    void SetLeft(int level) { targets_[0] = level; }
    void SetRight(int level) { targets_[1] = level; }
    int Left() const { return targets_[0]; }
    int Right() const { return targets_[1]; }

    /// The next samples begin at the level that is set, without a ramp.
    void Snap() { snap_ = true; }
    /// True when Apply would change nothing, so that it need not be called.
    bool IsIdle() const;
    /// `samples` holds `frames` pairs of left and right; `rate` is frames a second.
    void Apply(float* samples, std::size_t frames, int rate);

private:
    struct Ramp {
        float level = 1;
        float target = 1;
        float step = 0;
    };
    void Aim(Ramp& ramp, float target, int rate) const;

    std::array<std::atomic<int>, 2> targets_{kFull, kFull};
    std::atomic<bool> snap_ = true;
    std::array<Ramp, 2> ramps_{};
};

}  // namespace gstreamer
