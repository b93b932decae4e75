#include "platform/linux/EndSignal.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using linux::EndSignal;

constexpr int kSurvived = 7;

bool HasSignal() {
    pollfd pipe{.fd = EndSignal::FileDescriptor(), .events = POLLIN, .revents = 0};
    return poll(&pipe, 1, 0) == 1;
}

/// How a process of its own ends that gets `first` and, perhaps, `second`.
int StatusAfter(int first, int second) {
    const pid_t child = fork();
    if (child == 0) {
        const EndSignal signals;
        const bool nothing_yet = !HasSignal();
        raise(first);
        const bool told = HasSignal();
        if (second != 0) raise(second);
        _exit(nothing_yet && told ? kSurvived : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

TEST(EndSignal, TellsAnEndAndLetsTheProgramGoOn) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const int status = StatusAfter(signal, 0);

        ASSERT_TRUE(WIFEXITED(status)) << signal;
        EXPECT_EQ(WEXITSTATUS(status), kSurvived) << signal;
    }
}

TEST(EndSignal, ASecondSignalOfTheKindEndsTheProgram) {
    const int status = StatusAfter(SIGTERM, SIGTERM);

    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

}  // namespace
