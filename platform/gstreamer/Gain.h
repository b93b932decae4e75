// The level of each channel, laid on samples as they pass.
//
// Samples pass some time before they are heard, and how long before changes from piece to piece. So a level
// is heard a fixed time after it was set, to the sample, and a row of levels keeps its rhythm however
// unevenly the sound server takes its samples.
//
// Levels are linear amplitude in tenths of a percent, 0 to 1000. A new level is reached in an even ramp of a
// few milliseconds, so that it does not click. Levels are set on any thread, samples pass on one.
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <deque>
#include <mutex>

namespace gstreamer {

class Gain final {
public:
    using Clock = std::chrono::steady_clock;

    static constexpr int kFull = 1000;
    static constexpr double kRampSeconds = 0.005;
    /// From the moment a level is set to the moment it is heard; no less than samples may pass ahead.
    static constexpr std::chrono::milliseconds kDelay{200};

    void SetLeft(int level, Clock::time_point now = Clock::now()) { Set(0, level, now); }
    void SetRight(int level, Clock::time_point now = Clock::now()) { Set(1, level, now); }
    int Left() const { return targets_[0]; }
    int Right() const { return targets_[1]; }

    /// The next samples begin at the levels that are set now, without delay or ramp.
    void Snap();
    /// True when Apply would change nothing, so that it need not be called.
    bool IsIdle() const;
    /// `samples` holds `frames` pairs of left and right; `rate` is frames a second; `heard` is when the first
    /// of them is heard.
    void Apply(float* samples, std::size_t frames, int rate, Clock::time_point heard);

private:
    struct Ramp {
        float level = 1;
        float target = 1;
        float step = 0;
    };
    struct Change {
        std::size_t channel = 0;
        float target = 1;
        Clock::time_point heard;
    };
    void Set(std::size_t channel, int level, Clock::time_point now);
    void StartAfresh();
    std::deque<Change> TakeChanges(Clock::time_point until);
    static void Aim(Ramp& ramp, float target, int rate);
    static float Next(Ramp& ramp);
    void Run(float* samples, std::size_t begin, std::size_t end);

    std::array<std::atomic<int>, 2> targets_{kFull, kFull};
    std::atomic<bool> snap_ = true;
    mutable std::mutex mutex_;
    std::deque<Change> changes_;        // in the order of their times; guarded by mutex_
    std::array<float, 2> start_{1, 1};  // the levels of the last Snap; guarded by mutex_
    std::array<Ramp, 2> ramps_{};
};

}  // namespace gstreamer
