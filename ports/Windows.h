// Places of windows, and the shape of the main window. Handles are the platform's own numbers; 0 is no
// window.
#pragma once

#include <cstdint>
#include <optional>

namespace ports {

/// Pixels, right and bottom just outside.
struct WindowRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const WindowRect&) const = default;
};

class WindowServices {
public:
    virtual ~WindowServices() = default;
    /// The place of a window on the screen; an unknown handle leaves `rect` as it is and gives false.
    virtual bool GetWindowRect(std::int64_t handle, WindowRect& rect) const = 0;
};

/// A box in the main window with rounded corners. Pixels, counted from the window's outer corner: two of
/// border at the left and 24 of title above the menu bar come first.
struct Hole {
    WindowRect box;
    int corner_width = 0;  ///< 0 for square corners; the box's own size makes an ellipse
    int corner_height = 0;

    bool operator==(const Hole&) const = default;
};

/// Why: a video plays in a window of its own, after the main window in the stack, and shows through a hole.
class WindowShape {
public:
    virtual ~WindowShape() = default;
    /// Cuts the hole out of the main window, in place of the last one; with none the window is whole. The
    /// screen follows at the end of the handler.
    virtual void SetHole(const std::optional<Hole>& hole) = 0;
};

}  // namespace ports
