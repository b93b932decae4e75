// Dragging a marker along its bar. The marker moves by the ratio of the present to the pressed position, and
// not by their difference: it creeps, and that is how it is meant to feel.
#pragma once

#include <cstdint>

#include "controls/Label.h"

namespace player {

/// Which ends of the bar hold a marker back. EachEnd looks at the right end again after the left end held
/// the marker; that matters only where the marker is wider than its bar.
enum class DragEnds { FirstThatHolds, EachEnd };

class MarkerDrag final {
public:
    explicit MarkerDrag(DragEnds ends) : ends_(ends) {}

    /// Starts a drag. `x` is within the marker, in the units of its bar.
    void Press(double x);
    void End() { is_on_ = false; }
    bool IsOn() const { return is_on_; }
    /// Moves the marker on its bar, which reaches from 0 to `end`. False, and nothing moves, when it is not
    /// dragged or was pressed at its first unit, where there is no ratio.
    bool Move(controls::Label& marker, double x, double end) const;

private:
    DragEnds ends_;
    bool is_on_ = false;
    std::int16_t pressed_x_ = 0;
};

}  // namespace player
