// The desktop's real-time service, asked on behalf of another process of the user.
#pragma once

#include <sys/types.h>

namespace dbus {

/// Asks for the lowest real-time class for a thread that feeds the sound server, or at least for a raised
/// priority. Does not wait for an answer; called from any thread. Does nothing where there is no service.
void RaiseThread(pid_t process, pid_t thread);

}  // namespace dbus
