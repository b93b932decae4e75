// A bare player of the sound server's own client, recorded beside the engine: a gap that both have at one
// time is the machine's.
#pragma once

#include <string>
#include <vector>

#include "real/sound/Child.h"
#include "real/sound/GeneratedMedia.h"
#include "real/sound/Samples.h"

namespace sound {

/// From one sample to another.
struct Gap {
    std::size_t begin = 0;
    std::size_t end = 0;

    double Seconds() const { return static_cast<double>(end - begin) / kRate; }
};

/// Every run of samples no louder than `level` that lasts `seconds` at least.
std::vector<Gap> Gaps(const std::vector<float>& samples, double level, double seconds);
/// Those of `own` that no gap of `control` comes near.
std::vector<Gap> OwnGaps(const std::vector<Gap>& own, const std::vector<Gap>& control);

/// Plays a tone on the right side, with as much in the server's store as the engine has and the same
/// priority.
class ControlPlayer final {
public:
    ControlPlayer(GeneratedMedia& files, double seconds);

private:
    Child child_;
};

/// Keeps every core busy while it lives.
class OtherWork final {
public:
    OtherWork();

private:
    std::vector<Child> children_;
};

}  // namespace sound
