#include "real/sound/LevelCurve.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "platform/gstreamer/Gain.h"

namespace sound {
namespace {

constexpr std::size_t kWindow = kRate / 100;
constexpr std::size_t kGrain = kRate / 1000;  // nearly a millisecond
constexpr std::size_t kGrainsPerHop = 5;
constexpr std::size_t kHop = kGrainsPerHop * kGrain;
// The sound server's clock is known to so many grains, one way or the other.
constexpr std::ptrdiff_t kSlack = 12;
constexpr int kSoonest = 0;
constexpr int kLatest = 120;
constexpr double kSameDecibels = 0.05;
constexpr double kSameResidue = 0.001;

/// The weights of the window that tones are measured with; their sum is 1.
const std::vector<double>& Weights() {
    static const std::vector<double> weights = [] {
        std::vector<double> bell(kWindow);
        for (std::size_t i = 0; i < kWindow; ++i) {
            const double turn = 2 * std::numbers::pi * static_cast<double>(i) / kWindow;
            bell[i] = (1 - std::cos(turn)) / kWindow;
        }
        return bell;
    }();
    return weights;
}

bool Concerns(const ToldLevel& told, const std::string& alias, gstreamer::Channel side) {
    return told.alias == alias && (told.channel == side || told.channel == gstreamer::Channel::Both);
}

std::vector<double> Measure(const std::vector<float>& heard, double hertz, double full) {
    std::vector<double> measured;
    for (std::size_t begin = 0; begin + kWindow <= heard.size(); begin += kHop)
        measured.push_back(Amplitude(Piece(heard, begin, kWindow), hertz) / full);
    return measured;
}

}  // namespace

LevelCurve::LevelCurve(const std::vector<ToldLevel>& told, const std::string& alias, gstreamer::Channel side,
                       std::size_t begin, std::size_t end, double level) {
    double target = level;
    double step = 0;
    std::size_t changed = 0;
    auto next = told.begin();
    for (std::size_t sample = begin; sample < end; ++sample) {
        for (; next != told.end() && next->sample <= sample; ++next) {
            if (!Concerns(*next, alias, side) || next->percent / 100 == target) continue;
            const std::chrono::duration<double> since(static_cast<double>(sample - changed) / kRate);
            const int tenths = static_cast<int>(std::lround(1000 * (next->percent / 100 - target)));
            const double ramp = gstreamer::Gain::RampOf(
                tenths, std::chrono::duration_cast<gstreamer::Gain::Clock::duration>(since));
            changed = sample;
            target = next->percent / 100;
            step = (target - level) / (ramp * kRate);
        }
        level += step;
        if ((step > 0 && level >= target) || (step < 0 && level <= target)) {
            level = target;
            step = 0;
        }
        levels_.push_back(level);
    }
}

std::vector<double> LevelCurve::Windows() const {
    std::vector<double> windows;
    for (std::size_t begin = 0; begin + kWindow <= levels_.size(); begin += kGrain) {
        double level = 0;
        for (std::size_t k = 0; k < kWindow; ++k)
            level += Weights()[k] * levels_[begin + k];
        windows.push_back(level);
    }
    return windows;
}

CurveMatch LevelCurve::Compare(const std::vector<double>& told, const std::vector<double>& measured,
                               int delay_ms) {
    CurveMatch match{.worst = 0, .delay_ms = static_cast<double>(delay_ms)};
    for (std::size_t i = 0; i < measured.size(); ++i) {
        const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(i * kGrainsPerHop) - delay_ms;
        if (at < 2 * kSlack || at + 2 * kSlack >= static_cast<std::ptrdiff_t>(told.size())) continue;
        const auto here = told.begin() + at;
        if (*std::max_element(here - 2 * kSlack, here + 2 * kSlack) == 0)
            match.residue = std::max(match.residue, measured[i]);
        const auto [least, most] = std::minmax_element(here - kSlack, here + kSlack + 1);
        if (*least < CurveMatch::kFloor) continue;
        const double nearest = std::clamp(measured[i], *least, *most);
        match.worst = std::max(match.worst, std::abs(Decibels(measured[i], nearest)));
        ++match.windows;
    }
    return match;
}

CurveMatch LevelCurve::Match(const std::vector<float>& heard, double hertz, double full) const {
    const std::vector<double> told = Windows();
    const std::vector<double> measured = Measure(heard, hertz, full);
    std::vector<CurveMatch> matches;
    for (int delay = kSoonest; delay <= kLatest; ++delay)
        matches.push_back(Compare(told, measured, delay));
    CurveMatch best = *std::ranges::min_element(matches, {}, &CurveMatch::worst);
    // Delays within the slack fit alike; where the first of those leaves sound where there is to be none, the
    // one that leaves the least is taken.
    const double most = best.worst + kSameDecibels;
    for (const CurveMatch& match : matches) {
        if (match.worst <= most && match.residue < best.residue - kSameResidue) best = match;
    }
    return best;
}

}  // namespace sound
