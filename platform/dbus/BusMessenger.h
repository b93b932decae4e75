// Messengers on the session bus. Every program whose name on the bus is the window class, a dot and more
// counts as a window of it ("MsnMsgrUIManager.Main", "MsnMsgrUIManager.Second.Account").
//
// A block arrives there as a call of the method "CopyData" of the interface "<class>.Window" at the path
// "/<class>", with three arguments: dwData (u), cbData (u), the bytes (ay). No reply is asked for.
#pragma once

#include "platform/dbus/SessionBus.h"
#include "ports/Messenger.h"

namespace dbus {

class BusMessenger final : public ports::Messenger {
public:
    explicit BusMessenger(SessionBus& bus) : bus_(bus) {}
    ~BusMessenger() override { bus_.WaitForAnswers(); }
    BusMessenger(const BusMessenger&) = delete;
    BusMessenger& operator=(const BusMessenger&) = delete;

    void SendToWindows(std::string_view window_class, const ports::CopyData& block) override;

private:
    SessionBus& bus_;
};

}  // namespace dbus
