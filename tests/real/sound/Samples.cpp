#include "real/sound/Samples.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace sound {

double Rms(const std::vector<float>& samples) {
    double sum = 0;
    for (const float sample : samples)
        sum += static_cast<double>(sample) * sample;
    return samples.empty() ? 0 : std::sqrt(sum / static_cast<double>(samples.size()));
}

// Goertzel's filter behind a Hann window, so that a tone between two bins is not lost and its neighbours are.
double Amplitude(const std::vector<float>& samples, double hertz) {
    const auto count = static_cast<double>(samples.size());
    const double turn = 2 * std::numbers::pi * hertz / kRate;
    const double twice_cosine = 2 * std::cos(turn);
    double last = 0;
    double before_last = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double window = 1 - std::cos(2 * std::numbers::pi * static_cast<double>(i) / count);
        const double now = window * samples[i] + twice_cosine * last - before_last;
        before_last = last;
        last = now;
    }
    const double power = last * last + before_last * before_last - twice_cosine * last * before_last;
    return samples.empty() ? 0 : 2 * std::sqrt(std::max(power, 0.0)) / count;
}

double Pitch(const std::vector<float>& samples, double from, double to) {
    double best = from;
    for (const double step : {1.0, 0.1}) {
        const double begin = step == 1.0 ? from : best - 1;
        const int steps = static_cast<int>(((step == 1.0 ? to : best + 1) - begin) / step);
        double loudest = -1;
        for (int i = 0; i <= steps; ++i) {
            const double hertz = begin + i * step;
            const double amplitude = Amplitude(samples, hertz);
            if (amplitude <= loudest) continue;
            loudest = amplitude;
            best = hertz;
        }
    }
    return best;
}

double LargestStep(const std::vector<float>& samples) {
    double largest = 0;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        largest = std::max(largest, std::abs(static_cast<double>(samples[i]) - samples[i - 1]));
    }
    return largest;
}

double LongestGap(const std::vector<float>& samples, double level) {
    std::size_t longest = 0;
    std::size_t run = 0;
    for (const float sample : samples) {
        run = std::abs(sample) > level ? 0 : run + 1;
        longest = std::max(longest, run);
    }
    return static_cast<double>(longest) / kRate;
}

std::vector<float> Piece(const std::vector<float>& samples, std::size_t begin, std::size_t count) {
    const std::size_t first = std::min(begin, samples.size());
    const std::size_t last = std::min(first + count, samples.size());
    return {samples.begin() + static_cast<std::ptrdiff_t>(first),
            samples.begin() + static_cast<std::ptrdiff_t>(last)};
}

double Decibels(double amplitude, double other) {
    constexpr double kNothing = 1e-5;
    return 20 * std::log10(std::max(amplitude, kNothing) / std::max(other, kNothing));
}

std::size_t FirstLouderThan(const std::vector<float>& samples, double level) {
    const auto found = std::find_if(samples.begin(), samples.end(),
                                    [level](float sample) { return std::abs(sample) > level; });
    return static_cast<std::size_t>(found - samples.begin());
}

}  // namespace sound
