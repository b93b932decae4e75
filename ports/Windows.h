// Window services and window regions of the platform. Handles are the platform's own numbers; 0 is no window.
#pragma once

#include <cstdint>
#include <string_view>

namespace ports {

/// Pixels, right and bottom just outside.
struct WindowRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

class WindowServices {
public:
    virtual ~WindowServices() = default;
    /// The place of a window on the screen; an unknown handle leaves `rect` as it is and gives false.
    virtual bool GetWindowRect(std::int64_t handle, WindowRect& rect) const = 0;
};

/// A region is a set of pixels of the main window, counted from its outer corner: two pixels of border at the
/// left and 24 of title above the menu bar.
using RegionHandle = int;

enum class RegionCombine { And = 1, Or = 2, Xor = 3, Difference = 4, Copy = 5 };

class Regions {
public:
    virtual ~Regions() = default;
    virtual RegionHandle CreateRectRgn(int left, int top, int right, int bottom) = 0;
    virtual RegionHandle CreateEllipticRgn(int left, int top, int right, int bottom) = 0;
    virtual RegionHandle CreateRoundRectRgn(int left, int top, int right, int bottom, int corner_width,
                                            int corner_height) = 0;
    /// Puts the combination of `first` and `second` into `result`. An unknown handle changes nothing and
    /// gives false.
    virtual bool CombineRgn(RegionHandle result, RegionHandle first, RegionHandle second,
                            RegionCombine mode) = 0;
    /// Gives the main window that shape and takes the region over.
    virtual bool SetWindowRgn(RegionHandle region, bool redraw) = 0;
};

}  // namespace ports
