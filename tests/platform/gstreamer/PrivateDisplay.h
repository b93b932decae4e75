// A display of the test's own, with a window on it, and what is seen there.
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "real/sound/Child.h"

namespace gstreamer_tests {

/// Red, green and blue, as 0xRRGGBB.
using Pixel = std::uint32_t;

/// One display for the whole test program, since the engine keeps its line to the first it sees.
class PrivateDisplay final {
public:
    static PrivateDisplay& Get();

    /// A window on the screen, as a player's would be. Its colour shows that nothing covers it.
    xcb_window_t MakeWindow(int width, int height, Pixel colour);
    void Resize(xcb_window_t window, int width, int height);
    void SetSeen(xcb_window_t window, bool seen);
    void Destroy(xcb_window_t window);
    /// The colour on the screen, counted from the window's corner.
    Pixel At(xcb_window_t window, int x, int y);
    /// True once it is within `tolerance` of each part of `colour`; asks for `seconds` at most.
    bool Shows(xcb_window_t window, int x, int y, Pixel colour, double seconds = 5, int tolerance = 40);
    /// Windows inside of the window.
    int ChildrenOf(xcb_window_t window);

private:
    PrivateDisplay();
    ~PrivateDisplay();

    std::unique_ptr<sound::Child> server_;
    xcb_connection_t* line_ = nullptr;
    xcb_screen_t* screen_ = nullptr;
};

}  // namespace gstreamer_tests
