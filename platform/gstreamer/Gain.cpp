#include "platform/gstreamer/Gain.h"

#include <algorithm>

namespace gstreamer {
namespace {

// While nothing passes, as in a pause, only the newest levels count.
constexpr std::size_t kMostChanges = 1000;

float Fraction(int level) {
    return static_cast<float>(level) / Gain::kFull;
}

}  // namespace

void Gain::Set(std::size_t channel, int level, Clock::time_point now) {
    const std::lock_guard lock(mutex_);
    targets_.at(channel) = level;
    changes_.push_back({.channel = channel, .target = Fraction(level), .heard = now + kDelay});
    if (changes_.size() > kMostChanges) changes_.pop_front();
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

void Gain::Aim(Ramp& ramp, float target, int rate) {
    if (target == ramp.target) return;
    ramp.target = target;
    ramp.step = static_cast<float>((target - ramp.level) / (kRampSeconds * rate));
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
    const auto seconds_of = [](Clock::duration time) { return std::chrono::duration<double>(time).count(); };
    const std::chrono::duration<double> length(static_cast<double>(frames) / rate);
    std::size_t done = 0;
    for (const Change& change : TakeChanges(heard + std::chrono::duration_cast<Clock::duration>(length))) {
        const double place = std::max(seconds_of(change.heard - heard) * rate, 0.0);
        const std::size_t begin = std::clamp(static_cast<std::size_t>(place), done, frames);
        Run(samples, done, begin);
        Aim(ramps_.at(change.channel), change.target, rate);
        done = begin;
    }
    Run(samples, done, frames);
}

}  // namespace gstreamer
