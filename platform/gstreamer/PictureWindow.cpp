#include "platform/gstreamer/PictureWindow.h"

#include <X11/Xlib.h>

#include <algorithm>
#include <cstdlib>

namespace gstreamer {
namespace {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

// A window that goes away while somebody draws into it would end the program.
int PassOver(Display* /*display*/, XErrorEvent* /*error*/) {
    return 0;
}

// One line to the display for all pictures, for as long as the program runs; null when there is none.
xcb_connection_t* Line() {
    static xcb_connection_t* const display = [] {
        xcb_connection_t* const made = xcb_connect(nullptr, nullptr);
        if (xcb_connection_has_error(made) == 0) return made;
        xcb_disconnect(made);
        return static_cast<xcb_connection_t*>(nullptr);
    }();
    return display != nullptr && xcb_connection_has_error(display) == 0 ? display : nullptr;
}

bool IsDone(xcb_connection_t& display, xcb_void_cookie_t request) {
    const std::unique_ptr<xcb_generic_error_t, FreeReply> error(xcb_request_check(&display, request));
    return error == nullptr && xcb_connection_has_error(&display) == 0;
}

}  // namespace

void PictureWindow::IgnoreErrors() {
    XSetErrorHandler(PassOver);
}

std::unique_ptr<PictureWindow> PictureWindow::In(std::int64_t parent) {
    xcb_connection_t* const display = Line();
    if (display == nullptr) return nullptr;
    const auto outer = static_cast<xcb_window_t>(parent);
    const std::unique_ptr<xcb_get_geometry_reply_t, FreeReply> size(
        xcb_get_geometry_reply(display, xcb_get_geometry(display, outer), nullptr));
    if (size == nullptr) return nullptr;
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(display)).data;
    const auto picture = xcb_generate_id(display);
    const auto glass = xcb_generate_id(display);
    // A display that can keep what was drawn need not be told again when something moves away from it.
    const std::array<std::uint32_t, 2> looks = {screen->black_pixel, XCB_BACKING_STORE_WHEN_MAPPED};
    const auto made =
        xcb_create_window_checked(display, XCB_COPY_FROM_PARENT, picture, outer, 0, 0, size->width,
                                  size->height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                                  XCB_CW_BACK_PIXEL | XCB_CW_BACKING_STORE, looks.data());
    xcb_create_window(display, 0, glass, outer, 0, 0, size->width, size->height, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    if (!IsDone(*display, made)) return nullptr;
    return std::unique_ptr<PictureWindow>(new PictureWindow(*display, picture, glass));
}

PictureWindow::~PictureWindow() {
    xcb_destroy_window(&display_, glass_);
    xcb_destroy_window(&display_, picture_);
    xcb_flush(&display_);
}

void PictureWindow::Show() {
    xcb_map_window(&display_, picture_);
    xcb_map_window(&display_, glass_);
    WaitForDisplay();
}

void PictureWindow::Put(const std::array<int, 4>& place) {
    constexpr int kMost = 32767;
    std::array<std::uint32_t, 4> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int least = i < 2 ? -kMost : 1;
        values.at(i) = static_cast<std::uint32_t>(std::clamp(place.at(i), least, kMost));
    }
    constexpr std::uint16_t kPlace =
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT;
    xcb_configure_window(&display_, picture_, kPlace, values.data());
    xcb_configure_window(&display_, glass_, kPlace, values.data());
    WaitForDisplay();
}

void PictureWindow::WaitForDisplay() {
    const std::unique_ptr<xcb_get_input_focus_reply_t, FreeReply> answer(
        xcb_get_input_focus_reply(&display_, xcb_get_input_focus(&display_), nullptr));
}

}  // namespace gstreamer
