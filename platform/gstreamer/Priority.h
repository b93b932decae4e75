// The priority of the threads that feed the sound server: they copy a few kilobytes a hundred times a second,
// and must be woken in time on a machine that has other work.
//
// They get the lowest real-time class, under the guard of the system that ends a process whose real-time
// thread works for longer than a fifth of a second without a rest. Where the process may not take it by
// itself somebody is asked who can reach the desktop's real-time service; where there is none, the threads
// stay as they are.
#pragma once

#include <sys/types.h>

#include <functional>

namespace gstreamer {

class Priority final {
public:
    /// What the process may not do itself is asked of `ask` from now on, by the number of the thread. Called
    /// before anything else here; without it nobody is asked.
    static void AskWith(std::function<void(pid_t thread)> ask);
    /// Raises the calling thread; does not wait.
    static void Raise();
    /// Puts the calling thread back.
    static void Restore();
    /// Raises the thread of the sound server's client library that passes on what the server asks for.
    static void RaiseClientLibrary();
};

}  // namespace gstreamer
