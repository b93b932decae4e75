// The level of each channel, laid on samples as they pass.
//
// Samples pass some time before they are heard, and how long before changes from piece to piece. A change by
// itself, as of a mute or a knob, is laid on the next samples that pass. The changes of a row, as of a fade
// or a sweep, are each heard the same time after they were set, to the sample, so that the row keeps its
// rhythm however unevenly the sound server takes its samples. That time is the longest by which samples were
// seen to pass ahead, on whatever sink there is; where it grows, the row goes on with the longer one.
//
// Levels are linear amplitude in tenths of a percent, 0 to 1000. A new level is reached in an even ramp of a
// few milliseconds, so that it does not click; a small step of a row in a ramp as long as the time since the
// step before, so that the row has no stairs. Levels are set on any thread, samples pass on one.
#pragma once

#include <algorithm>
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
    /// Of a small step in a row.
    static constexpr double kLongestRampSeconds = 0.1;
    static constexpr int kSmallStep = 20;
    /// Changes no further apart belong to a row: the slowest fade, and a late timer.
    static constexpr std::chrono::milliseconds kRow{600};

    void SetLeft(int level, Clock::time_point now = Clock::now()) { Set(0, level, now); }
    void SetRight(int level, Clock::time_point now = Clock::now()) { Set(1, level, now); }
    int Left() const { return targets_[0]; }
    int Right() const { return targets_[1]; }

    /// Samples pass by `lead` before they are heard.
    void NoteLead(Clock::duration lead, Clock::time_point now = Clock::now());
    /// The longest lead of the last second.
    Clock::duration Delay() const;
    /// All that was set is heard by now.
    bool IsHeard(Clock::time_point now = Clock::now()) const;

    /// The next samples begin at the levels that are set now, without delay or ramp.
    void Snap();
    /// True when Apply would change nothing, so that it need not be called.
    bool IsIdle() const;
    /// `samples` holds `frames` pairs of left and right; `rate` is frames a second; `heard` is when the first
    /// of them is heard.
    void Apply(float* samples, std::size_t frames, int rate, Clock::time_point heard);

    /// How long a step takes, in tenths of a percent, of a channel whose level was last changed so long ago.
    static double RampOf(int step, Clock::duration since);

private:
    struct Ramp {
        float level = 1;
        float target = 1;
        float step = 0;
    };
    struct Change {
        std::size_t channel = 0;
        float target = 1;
        double seconds = kRampSeconds;
        Clock::time_point heard;
    };
    /// Changes told at one moment, as those of the two sides are.
    struct Moment {
        Clock::time_point begin;
        Clock::duration delay{};  ///< of the row; none for a change by itself
    };
    void Set(std::size_t channel, int level, Clock::time_point now);
    void TakeMoment(Clock::time_point now);
    Clock::duration LongestLead() const { return std::max(leads_[0], leads_[1]); }
    void StartAfresh();
    std::deque<Change> TakeChanges(Clock::time_point until);
    static void Aim(Ramp& ramp, const Change& change, int rate);
    static float Next(Ramp& ramp);
    void Run(float* samples, std::size_t begin, std::size_t end);

    std::array<std::atomic<int>, 2> targets_{kFull, kFull};
    std::atomic<bool> snap_ = true;
    mutable std::mutex mutex_;
    std::deque<Change> changes_;        // in the order of their times; guarded by mutex_, as the next
    std::array<float, 2> start_{1, 1};  // the levels of the last Snap
    Moment moment_;
    std::array<Clock::time_point, 2> changed_at_{};
    std::array<Clock::duration, 2> leads_{};  // the longest of this half second and of the one before
    Clock::time_point leads_since_;
    std::array<Ramp, 2> ramps_{};
};

}  // namespace gstreamer
