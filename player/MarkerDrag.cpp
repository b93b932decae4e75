#include "player/MarkerDrag.h"

#include "player/Whole.h"

namespace player {

void MarkerDrag::Press(double x) {
    is_on_ = true;
    pressed_x_ = Whole16(x);
}

bool MarkerDrag::Move(controls::Label& marker, double x, double end) const {
    if (!is_on_ || pressed_x_ == 0) return false;
    marker.SetLeft(marker.Left() + x / pressed_x_);
    const bool is_at_start = marker.Left() <= 0;
    if (is_at_start) marker.SetLeft(0);
    if (is_at_start && ends_ == DragEnds::FirstThatHolds) return true;
    if (marker.Right() >= end) marker.SetLeft(end - marker.Width());
    return true;
}

}  // namespace player
