#include "platform/qt/Environment.h"

#include <unistd.h>
#include <QByteArray>
#include <QLibrary>

namespace qt {
namespace {

constexpr const char* kForgotten[] = {
    "QTWEBENGINE_REMOTE_DEBUGGING",
    "QTWEBENGINEPROCESS_PATH",
    "QTWEBENGINE_RESOURCES_PATH",
    "QTWEBENGINE_LOCALES_PATH",
    "QT_STYLE_OVERRIDE",
    "QT_PLUGIN_PATH",
    "QT_QPA_PLATFORM_PLUGIN_PATH",
    "QT_QPA_GENERIC_PLUGINS",
    // The keys of every encrypted connection would be written into that file.
    "SSLKEYLOGFILE",
};

using Connect = void* (*)(const char* display, int* screen);
using HasError = int (*)(void* connection);
using Disconnect = void (*)(void* connection);

bool CanConnect() {
    QLibrary xcb(QStringLiteral("xcb"), 1);
    const auto connect = reinterpret_cast<Connect>(xcb.resolve("xcb_connect"));
    const auto has_error = reinterpret_cast<HasError>(xcb.resolve("xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<Disconnect>(xcb.resolve("xcb_disconnect"));
    // Without the library Qt says what is missing.
    if (connect == nullptr || has_error == nullptr || disconnect == nullptr) return true;
    void* connection = connect(nullptr, nullptr);
    const bool good = has_error(connection) == 0;
    disconnect(connection);
    return good;
}

}  // namespace

void PrepareEnvironment() {
    for (const char* name : kForgotten)
        qunsetenv(name);
    // Root cannot have a sandbox; whoever starts the program as root says so in the environment.
    if (geteuid() != 0) qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-logging");
    qputenv("QT_QPA_PLATFORM", "xcb");
    // A desktop's own theme module would be loaded for colours and letters that the skin brings itself.
    qputenv("QT_QPA_PLATFORMTHEME", "generic");
}

std::string MissingDisplay() {
    const QByteArray display = qgetenv("DISPLAY");
    if (display.isEmpty()) {
        return "Brindlepost needs a display: DISPLAY is not set. Start it from a desktop session with X11 or "
               "XWayland.";
    }
    if (CanConnect()) return {};
    return "Brindlepost cannot reach the display \"" + display.toStdString() +
           "\". Start it from a desktop session with X11 or XWayland.";
}

}  // namespace qt
