#include "platform/qt/Stacking.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <cstdlib>
#include <memory>

namespace qt {
namespace {

xcb_connection_t* Display() {
    const auto* const display = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return display != nullptr ? display->connection() : nullptr;
}

xcb_window_t IdOf(const QWidget& window) {
    return static_cast<xcb_window_t>(window.winId());
}

}  // namespace

// Window managers put a window above all others or below all, whatever neighbour one names. What is raised
// last lies on top.
void PutBelow(QWidget& lower, QWidget& upper) {
    if (xcb_connection_t* const display = Display()) {
        xcb_delete_property(display, IdOf(lower), XCB_ATOM_WM_TRANSIENT_FOR);
    }
    if (QApplication::activeWindow() == nullptr) {
        lower.lower();
        return;
    }
    lower.raise();
    upper.raise();
}

void KeepAbove(QWidget& upper, QWidget& lower) {
    xcb_connection_t* const display = Display();
    if (display == nullptr) return;
    const xcb_window_t owner = IdOf(lower);
    xcb_change_property(display, XCB_PROP_MODE_REPLACE, IdOf(upper), XCB_ATOM_WM_TRANSIENT_FOR,
                        XCB_ATOM_WINDOW, 32, 1, &owner);
    xcb_flush(display);
}

std::optional<QPoint> PlaceOnDisplay(const QWidget& window) {
    struct FreeReply {
        void operator()(void* reply) const { std::free(reply); }
    };
    xcb_connection_t* const display = Display();
    if (display == nullptr) return std::nullopt;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const std::unique_ptr<xcb_translate_coordinates_reply_t, FreeReply> corner(
        xcb_translate_coordinates_reply(display, xcb_translate_coordinates(display, IdOf(window), root, 0, 0),
                                        nullptr));
    if (corner == nullptr) return std::nullopt;
    const double ratio = window.devicePixelRatioF();
    return QPoint(qRound(corner->dst_x / ratio), qRound(corner->dst_y / ratio));
}

}  // namespace qt
