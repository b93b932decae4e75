#include "platform/decoder/Policy.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>

namespace decoder {
namespace {

// Nothing of a user is below these.
constexpr std::array<std::string_view, 9> kSystemFolders = {"/usr/",
                                                            "/lib/",
                                                            "/lib64/",
                                                            "/etc/alternatives/",
                                                            "/etc/pulse/",
                                                            "/etc/fonts/",
                                                            "/etc/ld.so.conf.d/",
                                                            "/sys/devices/system/cpu/",
                                                            "/run/current-system/"};
constexpr std::array<std::string_view, 12> kSystemFiles = {
    "/etc/ld.so.cache", "/etc/ld.so.preload", "/etc/machine-id", "/var/lib/dbus/machine-id",
    "/etc/localtime",   "/etc/nsswitch.conf", "/etc/passwd",     "/proc/cpuinfo",
    "/proc/meminfo",    "/dev/null",          "/dev/zero",       "/dev/urandom"};
constexpr std::string_view kUnix = "unix:";
constexpr std::string_view kDisplaySockets = "/tmp/.X11-unix/X";

std::string FromEnvironment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

}  // namespace

Surroundings Surroundings::OfThisProcess() {
    return {.home = FromEnvironment("HOME"),
            .runtime_folder = FromEnvironment("XDG_RUNTIME_DIR"),
            .sound_folder = FromEnvironment("PULSE_RUNTIME_PATH"),
            .sound_server = FromEnvironment("PULSE_SERVER"),
            .display = FromEnvironment("DISPLAY"),
            .display_key = FromEnvironment("XAUTHORITY")};
}

Policy::Policy(const Surroundings& surroundings) {
    AddDisplay(surroundings);
    AddSoundServer(surroundings);
}

Reading Policy::MayRead(std::string_view path) const {
    if (!path.starts_with('/') || path.find("/../") != path.npos || path.ends_with("/..")) return Reading::No;
    if (std::find(files_.begin(), files_.end(), path) != files_.end()) return Reading::Exactly;
    if (std::find(kSystemFiles.begin(), kSystemFiles.end(), path) != kSystemFiles.end())
        return Reading::Exactly;
    const bool is_below =
        std::any_of(kSystemFolders.begin(), kSystemFolders.end(), [path](std::string_view folder) {
            return path.starts_with(folder) || path == folder.substr(0, folder.size() - 1);
        });
    return is_below ? Reading::Below : Reading::No;
}

// Without a folder for what runs, the server's socket is in one beside its settings, named after the machine.
bool Policy::MayConnect(std::string_view address) const {
    if (std::find(addresses_.begin(), addresses_.end(), address) != addresses_.end()) return true;
    return address.starts_with(sound_settings_ + "/") && address.ends_with("-runtime/native") &&
           address.find("/..") == address.npos;
}

// ":1.0" and "unix:1" are displays of this machine; one with a name before the colon may be another's.
void Policy::AddDisplay(const Surroundings& surroundings) {
    const std::string& display = surroundings.display;
    const std::size_t colon = display.rfind(':');
    if (colon == std::string::npos) return;
    const std::string host = display.substr(0, colon);
    const std::string number = display.substr(colon + 1, display.find('.', colon) - colon - 1);
    if (host.starts_with('/')) {
        addresses_.push_back(display);
    } else if (!host.empty() && host != "unix") {
        needs_network_ = true;
    }
    addresses_.push_back(std::string(kDisplaySockets) + number);
    addresses_.push_back(std::string(1, '\0') + std::string(kDisplaySockets) + number);
    files_.push_back(surroundings.display_key);
    files_.push_back(surroundings.home + "/.Xauthority");
}

// Several servers may be named, each perhaps with the name of a machine in braces before it.
void Policy::AddSoundServer(const Surroundings& surroundings) {
    std::istringstream servers(surroundings.sound_server);
    for (std::string server; servers >> server;) {
        if (server.starts_with('{')) server.erase(0, server.find('}') + 1);
        if (server.starts_with(kUnix)) server.erase(0, kUnix.size());
        if (server.starts_with('/')) {
            addresses_.push_back(server);
        } else {
            needs_network_ = true;
        }
    }
    const std::string& named = surroundings.sound_folder;
    const std::string folder = named.empty() ? surroundings.runtime_folder + "/pulse" : named;
    addresses_.push_back(folder + "/native");
    addresses_.emplace_back("/run/pulse/native");
    addresses_.emplace_back("/var/run/pulse/native");
    files_.push_back(folder);
    sound_settings_ = surroundings.home + "/.config/pulse";
    for (const char* name : {"", "/client.conf", "/cookie"})
        files_.push_back(sound_settings_ + name);
    for (const char* name : {"/.pulse/client.conf", "/.pulse-cookie"})
        files_.push_back(surroundings.home + name);
}

}  // namespace decoder
