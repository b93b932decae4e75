#include "platform/gstreamer/PrivateDisplay.h"

#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace gstreamer_tests {
namespace {

using Words = std::vector<std::string>;

constexpr std::chrono::milliseconds kGlance{10};

template <class Reply>
struct FreeReply {
    void operator()(Reply* reply) const { std::free(reply); }
};

template <class Reply>
std::unique_ptr<Reply, FreeReply<Reply>> Hold(Reply* reply) {
    return std::unique_ptr<Reply, FreeReply<Reply>>(reply);
}

// The server writes the number of its display and a line end.
std::string ReadNumber(int pipe) {
    std::string number;
    for (char letter = 0; read(pipe, &letter, 1) == 1 && letter != '\n';)
        number += letter;
    return number;
}

bool IsNear(Pixel found, Pixel wanted, int tolerance) {
    for (const int shift : {0, 8, 16}) {
        const int difference =
            static_cast<int>(found >> shift & 0xFFU) - static_cast<int>(wanted >> shift & 0xFFU);
        if (std::abs(difference) > tolerance) return false;
    }
    return true;
}

}  // namespace

PrivateDisplay& PrivateDisplay::Get() {
    static PrivateDisplay display;
    return display;
}

PrivateDisplay::PrivateDisplay() {
    int pipe = -1;
    Words words{"Xvfb", "-displayfd", "1", "-screen", "0", "800x600x24", "-nolisten", "tcp", "-ac"};
    // As bare as displays come: nothing that scales, shares or keeps pictures.
    for (const char* extension : {"XVideo", "GLX", "Composite", "MIT-SHM"})
        words.insert(words.end(), {"-extension", extension});
    server_ = std::make_unique<sound::Child>(words, &pipe);
    const std::string number = ReadNumber(pipe);
    close(pipe);
    if (number.empty()) throw std::runtime_error("the display did not start");
    setenv("DISPLAY", (":" + number).c_str(), 1);
    line_ = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(line_) != 0) throw std::runtime_error("the display did not answer");
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(line_)).data;
}

PrivateDisplay::~PrivateDisplay() {
    xcb_disconnect(line_);
}

xcb_window_t PrivateDisplay::MakeWindow(int width, int height, Pixel colour) {
    const xcb_window_t window = xcb_generate_id(line_);
    xcb_create_window(line_, XCB_COPY_FROM_PARENT, window, screen_->root, 0, 0,
                      static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL, &colour);
    SetSeen(window, true);
    return window;
}

void PrivateDisplay::Resize(xcb_window_t window, int width, int height) {
    const std::array<std::uint32_t, 2> size = {static_cast<std::uint32_t>(width),
                                               static_cast<std::uint32_t>(height)};
    xcb_configure_window(line_, window, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size.data());
    xcb_flush(line_);
}

void PrivateDisplay::SetSeen(xcb_window_t window, bool seen) {
    if (seen) {
        xcb_map_window(line_, window);
    } else {
        xcb_unmap_window(line_, window);
    }
    Hold(xcb_get_input_focus_reply(line_, xcb_get_input_focus(line_), nullptr));
}

void PrivateDisplay::Destroy(xcb_window_t window) {
    xcb_destroy_window(line_, window);
    Hold(xcb_get_input_focus_reply(line_, xcb_get_input_focus(line_), nullptr));
}

Pixel PrivateDisplay::At(xcb_window_t window, int x, int y) {
    const auto place = Hold(xcb_translate_coordinates_reply(
        line_,
        xcb_translate_coordinates(line_, window, screen_->root, static_cast<std::int16_t>(x),
                                  static_cast<std::int16_t>(y)),
        nullptr));
    if (place == nullptr) return 0;
    const auto image = Hold(xcb_get_image_reply(
        line_,
        xcb_get_image(line_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root, place->dst_x, place->dst_y, 1, 1, ~0U),
        nullptr));
    if (image == nullptr || xcb_get_image_data_length(image.get()) < 4) return 0;
    const std::uint8_t* const parts = xcb_get_image_data(image.get());
    return Pixel{parts[2]} << 16U | Pixel{parts[1]} << 8U | Pixel{parts[0]};
}

bool PrivateDisplay::Shows(xcb_window_t window, int x, int y, Pixel colour, double seconds, int tolerance) {
    const auto until = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (!IsNear(At(window, x, y), colour, tolerance)) {
        if (std::chrono::steady_clock::now() > until) return false;
        std::this_thread::sleep_for(kGlance);
    }
    return true;
}

int PrivateDisplay::ChildrenOf(xcb_window_t window) {
    const auto tree = Hold(xcb_query_tree_reply(line_, xcb_query_tree(line_, window), nullptr));
    return tree == nullptr ? 0 : xcb_query_tree_children_length(tree.get());
}

}  // namespace gstreamer_tests
