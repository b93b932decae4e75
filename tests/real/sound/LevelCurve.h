// The course of a level as it was told, held against the course that is heard.
//
// What was told is drawn sample by sample, with the ramp in which a level is reached, and must be
// heard one fixed time later, give or take what the clock of a sound server is off. Both are looked at
// through the same window, every few milliseconds.
#pragma once

#include <string>
#include <vector>

#include "platform/gstreamer/MciCommand.h"
#include "real/sound/Samples.h"
#include "real/sound/TimedMedia.h"

namespace sound {

/// How far two courses are apart, over the windows in which the told level is at least `kFloor`.
struct CurveMatch {
    static constexpr double kFloor = 0.02;  ///< of full; below it a decibel is too little to hear or measure

    double worst = 1e9;   ///< decibels
    double residue = 0;   ///< loudest, of full, where nothing should be heard
    double delay_ms = 0;  ///< between told and heard
    int windows = 0;      ///< compared
};

class LevelCurve final {
public:
    /// The levels of an alias on one side, from sample `begin` to sample `end` of the recording, beginning at
    /// `level` (1 is full).
    LevelCurve(const std::vector<ToldLevel>& told, const std::string& alias, gstreamer::Channel side,
               std::size_t begin, std::size_t end, double level);

    /// Finds the delay, of those a player can have, with which `heard` fits best. `heard` begins at `begin`
    /// and holds a tone of amplitude `full` when the level is full.
    CurveMatch Match(const std::vector<float>& heard, double hertz, double full) const;

private:
    std::vector<double> Windows() const;
    static CurveMatch Compare(const std::vector<double>& told, const std::vector<double>& measured,
                              int delay_ms);

    std::vector<double> levels_;  // sample by sample
};

}  // namespace sound
