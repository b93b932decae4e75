#include "platform/gstreamer/Gain.h"

#include <cstdlib>
#include <utility>

namespace gstreamer {
namespace {

// While nothing passes, as in a pause, only the newest levels count.
constexpr std::size_t kMostChanges = 1000;
// The levels of both sides are told one after the other.
constexpr std::chrono::milliseconds kTogether{5};
constexpr std::chrono::milliseconds kLeadsOf{500};

float Fraction(int level) {
    return static_cast<float>(level) / Gain::kFull;
}

double SecondsOf(Gain::Clock::duration time) {
    return std::chrono::duration<double>(time).count();
}

}  // namespace

double Gain::RampOf(int step, Clock::duration since) {
    if (std::abs(step) > kSmallStep || since > kRow) return kRampSeconds;
    return std::clamp(SecondsOf(since), kRampSeconds, kLongestRampSeconds);
}

// A row keeps its delay, so as to keep its rhythm; with one that has become too short each step would be late
// by as much as its samples happen to be.
void Gain::TakeMoment(Clock::time_point now) {
    if (now - moment_.begin < kTogether) return;
    const bool in_row = now - moment_.begin < kRow;
    const Clock::duration delay = in_row ? std::max(moment_.delay, LongestLead()) : Clock::duration::zero();
    moment_ = {.begin = now, .delay = delay};
}

void Gain::Set(std::size_t channel, int level, Clock::time_point now) {
    const std::lock_guard lock(mutex_);
    TakeMoment(now);
    const int before = targets_.at(channel).exchange(level);
    if (before == level) return;
    const Clock::time_point changed_at = std::exchange(changed_at_.at(channel), now);
    Clock::time_point heard = now + moment_.delay;
    if (!changes_.empty()) heard = std::max(heard, changes_.back().heard);
    changes_.push_back({.channel = channel,
                        .target = Fraction(level),
                        .seconds = RampOf(level - before, now - changed_at),
                        .heard = heard});
    if (changes_.size() > kMostChanges) changes_.pop_front();
}

void Gain::NoteLead(Clock::duration lead, Clock::time_point now) {
    const std::lock_guard lock(mutex_);
    if (now - leads_since_ > kLeadsOf) {
        leads_ = {Clock::duration::zero(), leads_[0]};
        leads_since_ = now;
    }
    leads_[0] = std::max(leads_[0], lead);
}

Gain::Clock::duration Gain::Delay() const {
    const std::lock_guard lock(mutex_);
    return std::max(LongestLead(), moment_.delay);
}

bool Gain::IsHeard(Clock::time_point now) const {
    const std::lock_guard lock(mutex_);
    const Clock::duration settled =
        std::max(LongestLead(), moment_.delay) +
        std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(kLongestRampSeconds));
    return std::ranges::all_of(changed_at_, [&](Clock::time_point at) { return now - at > settled; });
}

bool Gain::IsIdle() const {
    for (std::size_t channel = 0; channel < ramps_.size(); ++channel) {
        if (targets_.at(channel) != kFull || ramps_.at(channel).level != 1.0F) return false;
    }
    const std::lock_guard lock(mutex_);
    return changes_.empty();
}

void Gain::Snap() {
    const std::lock_guard lock(mutex_);
    changes_.clear();
    start_ = {Fraction(targets_[0]), Fraction(targets_[1])};
    snap_ = true;
}

void Gain::StartAfresh() {
    const std::lock_guard lock(mutex_);
    for (std::size_t channel = 0; channel < ramps_.size(); ++channel) {
        const float level = start_.at(channel);
        ramps_.at(channel) = {.level = level, .target = level, .step = 0};
    }
}

std::deque<Gain::Change> Gain::TakeChanges(Clock::time_point until) {
    const std::lock_guard lock(mutex_);
    const auto later = std::find_if(changes_.begin(), changes_.end(),
                                    [until](const Change& change) { return change.heard >= until; });
    std::deque<Change> due(changes_.begin(), later);
    changes_.erase(changes_.begin(), later);
    return due;
}

void Gain::Aim(Ramp& ramp, const Change& change, int rate) {
    if (change.target == ramp.target) return;
    ramp.target = change.target;
    ramp.step = static_cast<float>((change.target - ramp.level) / (change.seconds * rate));
}

float Gain::Next(Ramp& ramp) {
    if (ramp.step == 0) return ramp.level;
    ramp.level += ramp.step;
    const bool arrived = ramp.step > 0 ? ramp.level >= ramp.target : ramp.level <= ramp.target;
    if (arrived) ramp = {.level = ramp.target, .target = ramp.target, .step = 0};
    return ramp.level;
}

void Gain::Run(float* samples, std::size_t begin, std::size_t end) {
    for (std::size_t channel = 0; channel < ramps_.size(); ++channel) {
        Ramp ramp = ramps_.at(channel);
        for (std::size_t i = begin; i < end; ++i)
            samples[2 * i + channel] *= Next(ramp);
        ramps_.at(channel) = ramp;
    }
}

void Gain::Apply(float* samples, std::size_t frames, int rate, Clock::time_point heard) {
    if (snap_.exchange(false)) StartAfresh();
    const std::chrono::duration<double> length(static_cast<double>(frames) / rate);
    std::size_t done = 0;
    for (const Change& change : TakeChanges(heard + std::chrono::duration_cast<Clock::duration>(length))) {
        const double place = std::max(SecondsOf(change.heard - heard) * rate, 0.0);
        const std::size_t begin = std::clamp(static_cast<std::size_t>(place), done, frames);
        Run(samples, done, begin);
        Aim(ramps_.at(change.channel), change, rate);
        done = begin;
    }
    Run(samples, done, frames);
}

}  // namespace gstreamer
