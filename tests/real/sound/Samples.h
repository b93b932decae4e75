// Recorded sound and what can be measured on it.
#pragma once

#include <cstddef>
#include <vector>

namespace sound {

inline constexpr int kRate = 44100;

/// Both channels, 1 being full scale.
struct Samples {
    std::vector<float> left;
    std::vector<float> right;

    double Seconds() const { return static_cast<double>(left.size()) / kRate; }
};

/// Root mean square; a full sine has 0.707.
double Rms(const std::vector<float>& samples);
/// Amplitude of one tone; a full sine has 1.
double Amplitude(const std::vector<float>& samples, double hertz);
/// The strongest tone between two frequencies, to a tenth of a hertz.
double Pitch(const std::vector<float>& samples, double from, double to);
/// The largest step between neighbours.
double LargestStep(const std::vector<float>& samples);
/// The longest run of samples no louder than `level`, in seconds.
double LongestGap(const std::vector<float>& samples, double level);
/// A piece, cut where the samples end.
std::vector<float> Piece(const std::vector<float>& samples, std::size_t begin, std::size_t count);
/// How much louder the first is than the second, in decibels; a large number when one of them is silent.
double Decibels(double amplitude, double other);
/// Place of the first sample louder than `level`; the size when there is none.
std::size_t FirstLouderThan(const std::vector<float>& samples, double level);

}  // namespace sound
