// The screen saver of the session, by the first of three ways that is there: the screen saver's own service,
// the power manager's, the desktop portal's. Each of them lets the screen go dark again when this program's
// connection ends, so a bus that is joined again is asked again.
#pragma once

#include <QVariant>
#include <cstddef>

#include "platform/dbus/SessionBus.h"
#include "ports/ScreenSaver.h"

namespace dbus {

class BusScreenSaver final : public ports::ScreenSaver {
public:
    explicit BusScreenSaver(SessionBus& bus);
    ~BusScreenSaver() override { bus_.WaitForAnswers(); }
    BusScreenSaver(const BusScreenSaver&) = delete;
    BusScreenSaver& operator=(const BusScreenSaver&) = delete;

    void SetInhibited(bool inhibited) override;

private:
    void Ask(std::size_t way);
    void Take(std::size_t way, const QDBusMessage& reply);
    void Release();

    SessionBus& bus_;
    bool wanted_ = false;
    bool asking_ = false;
    /// The cookie or handle of the inhibition, to be released with it; invalid while there is none.
    QVariant receipt_;
    std::size_t held_by_ = 0;
};

}  // namespace dbus
