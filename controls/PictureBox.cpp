#include "controls/PictureBox.h"

#include <cmath>

namespace controls {

bool PictureBox::SetScaleWidth(double units) {
    if (!std::isfinite(units) || units <= 0) return false;
    if (scaled_ && units == scale_width_) return true;
    const double before = ScaleWidth();
    scaled_ = true;
    scale_width_ = units;
    if (before > 0 && before != units) {
        const double factor = units / before;
        for (Control* child : Children()) {
            child->Move(child->Left() * factor, child->Top(), child->Width() * factor, child->Height());
        }
    }
    Report(Property::Scale);
    return true;
}

}  // namespace controls
