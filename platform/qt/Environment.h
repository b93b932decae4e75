// What has to be settled before the application object is made.
#pragma once

#include <string>

namespace qt {

/// Replaces what the environment says about the page engine's start (its options could start programs, open a
/// debugging port, switch the sandbox off or write down the keys of encrypted connections) and about styles
/// and plug-ins, and asks for X11 windows, which
/// may place themselves. To be called first of all, before any thread is started.
void PrepareEnvironment();

/// Empty when there is a display to show windows on; otherwise the message for the user.
std::string MissingDisplay();

}  // namespace qt
