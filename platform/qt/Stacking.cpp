#include "platform/qt/Stacking.h"

#include <xcb/xcb.h>

#include <QGuiApplication>

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

// Windows with a frame are no siblings, so the display itself would refuse; the request is sent to the window
// manager in the form that such a refusal calls for.
void PutBelow(QWidget& lower, QWidget& upper) {
    xcb_connection_t* const display = Display();
    if (display == nullptr) return;
    xcb_delete_property(display, IdOf(lower), XCB_ATOM_WM_TRANSIENT_FOR);
    xcb_configure_request_event_t request{};
    request.response_type = XCB_CONFIGURE_REQUEST;
    request.stack_mode = XCB_STACK_MODE_BELOW;
    request.parent = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    request.window = IdOf(lower);
    request.sibling = IdOf(upper);
    request.value_mask = XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE;
    xcb_send_event(display, 0, request.parent,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&request));
    xcb_flush(display);
}

void KeepAbove(QWidget& upper, QWidget& lower) {
    xcb_connection_t* const display = Display();
    if (display == nullptr) return;
    const xcb_window_t owner = IdOf(lower);
    xcb_change_property(display, XCB_PROP_MODE_REPLACE, IdOf(upper), XCB_ATOM_WM_TRANSIENT_FOR,
                        XCB_ATOM_WINDOW, 32, 1, &owner);
    xcb_flush(display);
}

}  // namespace qt
