// Opens for one decoder's process what it may have, and refuses the rest.
//
// The process itself can open nothing: the kernel holds the call up and reports it here, the program opens
// the file to read from, or connects the socket, and hands the result over as a descriptor. The song of an
// open command is among it for as long as it is open. What the process may not do for its threads is passed
// on.
#pragma once

#include <linux/seccomp.h>
#include <sys/types.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "platform/decoder/Policy.h"
#include "platform/linux/Descriptor.h"

namespace decoder {

/// Asks the system for a thread of a process to be woken in time; called on any thread.
using Raiser = std::function<void(pid_t process, pid_t thread)>;

class Gatekeeper final {
public:
    /// `process` is the process that asks.
    Gatekeeper(Policy policy, pid_t process, Raiser raise)
        : policy_(std::move(policy)), process_(process), raise_(std::move(raise)) {}

    /// A song that may be read from now on; once for each time it is forgotten.
    void Hand(const std::string& native_path);
    void Forget(const std::string& native_path);

    /// Waits for the hello on `socket`, then serves the process until it is gone or the socket is shut down.
    /// Runs on a thread of its own.
    void Serve(int socket);
    /// True as soon as the hello was there; waits for it, `patience` at most.
    bool WaitUntilReady(std::chrono::milliseconds patience);
    bool IsReady();
    /// True also of a process that is gone since.
    bool WasReady();

private:
    void ServeRequests(int socket, int requests);
    bool TakeWish(int socket) const;
    void ServeOne(int requests);
    void Answer(int requests, const seccomp_notif& asked, seccomp_notif_resp& answer);
    int Open(int requests, const seccomp_notif& asked, std::uint64_t path_at, std::uint64_t flags,
             seccomp_notif_resp& answer);
    int Connect(const seccomp_notif& asked) const;
    int OpenAllowed(const std::string& path, int flags);
    Reading MayRead(const std::string& path);
    std::string ReadText(std::uint64_t address) const;

    const Policy policy_;
    const pid_t process_;
    const Raiser raise_;
    linux::Descriptor memory_;  // of the process, to read its requests from
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> songs_;  // guarded by mutex_, as the next two
    bool ready_ = false;
    bool gone_ = false;
};

}  // namespace decoder
