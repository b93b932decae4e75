// The desktop's file manager, asked over the bus to show a file selected among its neighbours.
#pragma once

#include <functional>
#include <string>

#include "platform/dbus/SessionBus.h"

namespace dbus {

class BusFileManager final {
public:
    explicit BusFileManager(SessionBus& bus) : bus_(bus) {}
    ~BusFileManager() { bus_.WaitForAnswers(); }
    BusFileManager(const BusFileManager&) = delete;
    BusFileManager& operator=(const BusFileManager&) = delete;

    /// `file` is a native path. `otherwise` is called, at once or later, where no file manager can: there is
    /// no bus, nobody answers to the name, or it refuses. One that is slow to start is waited for by the bus.
    void Show(const std::string& file, std::function<void()> otherwise);

private:
    SessionBus& bus_;
};

}  // namespace dbus
