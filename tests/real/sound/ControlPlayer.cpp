#include "real/sound/ControlPlayer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string_view>
#include <thread>

#include "real/sound/PrivateSound.h"

namespace sound {
namespace {

constexpr double kHertz = 1501;
constexpr double kAmplitude = 0.3;
// What holds up one player for longer than its store may meet the other a little sooner or later.
constexpr std::size_t kNear = kRate / 5;

std::string ToneOf(double seconds) {
    const auto count = static_cast<std::size_t>(seconds * kRate);
    std::vector<std::int16_t> samples(2 * count);
    for (std::size_t i = 0; i < count; ++i) {
        const double turn = 2 * std::numbers::pi * kHertz * static_cast<double>(i) / kRate;
        samples[2 * i + 1] = static_cast<std::int16_t>(32767 * kAmplitude * std::sin(turn));
    }
    return {reinterpret_cast<const char*>(samples.data()), samples.size() * sizeof(std::int16_t)};
}

}  // namespace

std::vector<Gap> Gaps(const std::vector<float>& samples, double level, double seconds) {
    const auto least = static_cast<std::size_t>(seconds * kRate);
    std::vector<Gap> gaps;
    Gap now;
    for (std::size_t i = 0; i <= samples.size(); ++i) {
        if (i < samples.size() && std::abs(samples[i]) <= level) continue;
        now.end = i;
        if (now.end - now.begin >= std::max<std::size_t>(least, 1)) gaps.push_back(now);
        now.begin = i + 1;
    }
    return gaps;
}

std::vector<Gap> OwnGaps(const std::vector<Gap>& own, const std::vector<Gap>& control) {
    std::vector<Gap> left = own;
    std::erase_if(left, [&control](const Gap& gap) {
        return std::ranges::any_of(control, [&gap](const Gap& other) {
            return gap.begin < other.end + kNear && other.begin < gap.end + kNear;
        });
    });
    return left;
}

ControlPlayer::ControlPlayer(GeneratedMedia& files, double seconds)
    : child_({"pacat", "--raw", "--format=s16le", "--rate=44100", "--channels=2", "--latency-msec=55",
              "--process-time-msec=2", files.Write("control.raw", ToneOf(seconds))}) {
    PutInTime(child_);
}

OtherWork::OtherWork() {
    for (unsigned i = 0; i < std::max(std::thread::hardware_concurrency(), 2U); ++i)
        children_.emplace_back(std::vector<std::string>{"sh", "-c", "while :; do :; done"});
}

}  // namespace sound
