// What one file's picture is drawn in: a black window of its own inside the window that the player gives.
//
// Two files that cross over each have one, so neither draws into the other's picture; the newer lies above.
// What the toolkit paints into the player's window stays below. The mouse and the keyboard go past it to the
// player's window.
#pragma once

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <memory>

namespace gstreamer {

class PictureWindow final {
public:
    /// From now on the display's refusals do not end the process.
    static void IgnoreErrors();
    /// A window of the size of `parent`, not yet to be seen. Null when there is no such window, or no display
    /// that has it.
    static std::unique_ptr<PictureWindow> In(std::int64_t parent);
    /// Takes it from the screen; by now nothing may draw into it.
    ~PictureWindow();
    PictureWindow(const PictureWindow&) = delete;
    PictureWindow& operator=(const PictureWindow&) = delete;

    std::uintptr_t Handle() const { return picture_; }
    /// Shows it. It is on the screen when the call returns.
    void Show();
    /// Left, top, width and height in the player's window, in pixels. It is there when the call returns.
    void Put(const std::array<int, 4>& place);

private:
    PictureWindow(xcb_connection_t& display, xcb_window_t picture, xcb_window_t glass)
        : display_(display), picture_(picture), glass_(glass) {}
    void WaitForDisplay();

    xcb_connection_t& display_;
    xcb_window_t picture_;
    // Over the picture, and never drawn: whoever draws the picture also asks for the mouse and the keyboard
    // in it.
    xcb_window_t glass_;
};

}  // namespace gstreamer
