// A straight line. Left and Top are its first end; Width and Height reach to the other.
#pragma once

#include <algorithm>
#include <string_view>

#include "controls/Control.h"

namespace controls {

class Line : public Control {
public:
    explicit Line(std::string_view name) : Control(Kind::Line, name) {}
    double X1() const { return Left(); }
    double X2() const { return Right(); }
    /// Moves one end and leaves the other where it is; ends that would pass each other meet.
    void SetX1(double x) {
        const double other = X2();
        Move(std::min(x, other), Top(), std::max(other - x, 0.0), Height());
    }
    void SetX2(double x) { Move(Left(), Top(), std::max(x - Left(), 0.0), Height()); }
};

}  // namespace controls
