#include "platform/linux/EndSignal.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace linux {
namespace {

// A handler reaches nothing but what stands for the whole program. Both ends stay open to the end.
std::array<int, 2> pipe_ends{-1, -1};

void OnSignal(int /*signal*/) {
    const int error = errno;
    const char byte = 0;
    // A pipe that is full has been told already.
    [[maybe_unused]] const ssize_t written = write(pipe_ends[1], &byte, 1);
    errno = error;
}

}  // namespace

EndSignal::EndSignal() {
    if (pipe2(pipe_ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    struct sigaction action{};
    action.sa_handler = OnSignal;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
}

int EndSignal::FileDescriptor() {
    return pipe_ends[0];
}

}  // namespace linux
