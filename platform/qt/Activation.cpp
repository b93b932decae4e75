#include "platform/qt/Activation.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

namespace qt {
namespace {

/// Longest part of a start-up message that one event carries.
constexpr std::size_t kMessagePart = 20;
/// The request comes from the user, not from the program.
constexpr std::uint32_t kFromUser = 2;

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

xcb_atom_t AtomOf(xcb_connection_t* display, std::string_view name) {
    const auto cookie = xcb_intern_atom(display, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
        xcb_intern_atom_reply(display, cookie, nullptr));
    return reply != nullptr ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t RootOf(xcb_connection_t* display) {
    return xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
}

void Send(xcb_connection_t* display, std::uint32_t mask, const xcb_client_message_event_t& event) {
    xcb_send_event(display, 0, RootOf(display), mask, reinterpret_cast<const char*>(&event));
}

/// The time of the user's act, as the end of a start-up id tells; 0 when it does not.
std::uint32_t TimeOf(std::string_view startup_id) {
    constexpr std::string_view kMark = "_TIME";
    const std::size_t mark = startup_id.rfind(kMark);
    if (mark == std::string_view::npos) return 0;
    const std::string_view digits = startup_id.substr(mark + kMark.size());
    std::uint32_t time = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), time);
    return result.ec == std::errc() ? time : 0;
}

void ShowTime(xcb_connection_t* display, xcb_window_t window, const std::string& startup_id,
              std::uint32_t time) {
    xcb_change_property(display, XCB_PROP_MODE_REPLACE, window, AtomOf(display, "_NET_STARTUP_ID"),
                        AtomOf(display, "UTF8_STRING"), 8, static_cast<std::uint32_t>(startup_id.size()),
                        startup_id.data());
    if (time == 0) return;
    xcb_change_property(display, XCB_PROP_MODE_REPLACE, window, AtomOf(display, "_NET_WM_USER_TIME"),
                        XCB_ATOM_CARDINAL, 32, 1, &time);
}

void AskForFocus(xcb_connection_t* display, xcb_window_t window, std::uint32_t time) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = AtomOf(display, "_NET_ACTIVE_WINDOW");
    event.data.data32[0] = kFromUser;
    event.data.data32[1] = time;
    Send(display, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, event);
}

/// The start-up notification: a launcher that shows that a start is under way stops showing it.
void EndStart(xcb_connection_t* display, xcb_window_t window, const std::string& startup_id) {
    std::string id;
    for (const char character : startup_id) {
        if (character == '"' || character == '\\' || character == ' ') id += '\\';
        id += character;
    }
    const std::string message = "remove: ID=" + id;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 8;
    event.window = window;
    event.type = AtomOf(display, "_NET_STARTUP_INFO_BEGIN");
    // The end of the text is a zero byte.
    for (std::size_t at = 0; at <= message.size(); at += kMessagePart) {
        std::memset(event.data.data8, 0, kMessagePart);
        std::memcpy(event.data.data8, message.data() + at, std::min(kMessagePart, message.size() - at));
        Send(display, XCB_EVENT_MASK_PROPERTY_CHANGE, event);
        event.type = AtomOf(display, "_NET_STARTUP_INFO");
    }
}

}  // namespace

std::string StartupIdOfProcess() {
    const QByteArray id = qgetenv("DESKTOP_STARTUP_ID");
    return (id.isEmpty() ? qgetenv("XDG_ACTIVATION_TOKEN") : id).toStdString();
}

void ActivateForUser(QWidget& window, const std::string& startup_id) {
    window.raise();
    window.activateWindow();
    const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* const display = x11 != nullptr ? x11->connection() : nullptr;
    if (display == nullptr) return;
    const auto id = static_cast<xcb_window_t>(window.winId());
    const std::uint32_t time = TimeOf(startup_id);
    if (!startup_id.empty()) ShowTime(display, id, startup_id, time);
    AskForFocus(display, id, time);
    if (!startup_id.empty()) EndStart(display, id, startup_id);
    xcb_flush(display);
}

}  // namespace qt
