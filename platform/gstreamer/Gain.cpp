#include "platform/gstreamer/Gain.h"

namespace gstreamer {

bool Gain::IsIdle() const {
    for (std::size_t channel = 0; channel < ramps_.size(); ++channel) {
        if (targets_.at(channel) != kFull || ramps_.at(channel).level != 1.0F) return false;
    }
    return true;
}

void Gain::Aim(Ramp& ramp, float target, int rate) const {
    if (target == ramp.target) return;
    ramp.target = target;
    ramp.step = static_cast<float>((target - ramp.level) / (kRampSeconds * rate));
}

void Gain::Apply(float* samples, std::size_t frames, int rate) {
    const bool snap = snap_.exchange(false);
    for (std::size_t channel = 0; channel < ramps_.size(); ++channel) {
        const float target = static_cast<float>(targets_.at(channel)) / kFull;
        Ramp ramp = ramps_.at(channel);
        if (snap) ramp = {.level = target, .target = target, .step = 0};
        Aim(ramp, target, rate);
        for (std::size_t i = channel; i < 2 * frames; i += 2) {
            if (ramp.step != 0) {
                ramp.level += ramp.step;
                const bool arrived = ramp.step > 0 ? ramp.level >= ramp.target : ramp.level <= ramp.target;
                if (arrived) ramp = {.level = ramp.target, .target = ramp.target, .step = 0};
            }
            samples[i] *= ramp.level;
        }
        ramps_.at(channel) = ramp;
    }
}

}  // namespace gstreamer
