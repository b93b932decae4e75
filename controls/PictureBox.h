// A surface with a colour and, if wanted, a horizontal scale of its own: ScaleWidth units across its width.
#pragma once

#include <cstdint>
#include <string_view>

#include "controls/Control.h"

namespace controls {

/// A colour as 0xRRGGBB.
using Colour = std::uint32_t;

class PictureBox : public Container {
public:
    explicit PictureBox(std::string_view name) : Container(Kind::PictureBox, name) {}

    Colour BackColor() const { return back_colour_; }
    void SetBackColor(Colour colour) { Assign(back_colour_, colour, Property::Colour); }

    /// Units across the width; twips until it is set.
    double ScaleWidth() const { return scaled_ ? scale_width_ : Width(); }
    /// Sets the units across the width. Children stay where they are on the screen, so their Left and Width
    /// are converted to the new units. A value that is not above 0, or not a number, changes nothing and
    /// returns false.
    bool SetScaleWidth(double units);
    bool HasOwnScale() const { return scaled_; }

    /// The platform's handle of the surface that video is drawn into; 0 while there is none.
    std::int64_t Handle() const { return handle_; }
    void SetHandle(std::int64_t handle) { handle_ = handle; }

private:
    Colour back_colour_ = 0x000000;
    bool scaled_ = false;
    double scale_width_ = 0;
    std::int64_t handle_ = 0;
};

}  // namespace controls
