// Keeps the toolkit away from a bus that takes connections and says nothing.
//
// Why: the toolkit joins the session bus by itself at its start (accessibility, the desktop's settings) and
// waits for it without end, so that no window would come. A bus that lives answers within a millisecond.
#pragma once

#include <QString>
#include <chrono>

namespace dbus {

/// Where the desktop says that its session bus is; empty when there is none.
QString AddressOfDesktop();

/// Asks the desktop's bus for a word, before the toolkit starts. When none comes within `patience` the
/// process has no session bus any more, and the address is returned, for who looks for that bus again later.
/// Empty when all is well, or nobody is there at all.
QString LeaveSilentBus(std::chrono::milliseconds patience = std::chrono::seconds(1));

}  // namespace dbus
