// The engine's sandbox does not work for root, and a test without it would prove nothing. So the program
// starts itself again in a home of its own, as an account without rights where root started it, and takes
// that home away at the end.
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include "platform/webengine/TestCertificate.h"

namespace {

constexpr uid_t kNobody = 65534;
constexpr const char* kInOwnHome = "BRINDLEPOST_TEST_HOME";

/// Goes on as the same program at home there; returns only when that failed.
void StartAtHome(const char* home, char** arguments) {
    // The engine looks at home for whom to trust.
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "TMPDIR", kInOwnHome})
        setenv(name, home, 1);
    for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        unsetenv(name);
    const bool is_root = geteuid() == 0;
    if (chdir(home) == 0 &&
        (!is_root || (setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0)))
        execv("/proc/self/exe", arguments);
    std::perror("starting again");
}

/// The exit code of this program run in a home that is gone afterwards.
int RunAtHome(char** arguments) {
    char home[] = P_tmpdir "/brindlepost-home-XXXXXX";
    if (mkdtemp(home) == nullptr || (geteuid() == 0 && chown(home, kNobody, kNobody) != 0)) return 1;
    const pid_t child = fork();
    if (child == 0) {
        StartAtHome(home, arguments);
        _exit(1);
    }
    int status = 1;
    const bool has_ended = child > 0 && waitpid(child, &status, 0) == child;
    std::error_code ignored;
    std::filesystem::remove_all(home, ignored);
    if (!has_ended) return 1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace

int main(int argc, char** argv) {
    if (std::getenv(kInOwnHome) == nullptr) return RunAtHome(argv);
    testing::InitGoogleTest(&argc, argv);
    if (!webengine_tests::MakeTrustedCertificate()) {
        std::fputs("no certificate for the tests: openssl and the library NSS are needed\n", stderr);
        return 1;
    }
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    // What a hostile environment would say; the tests see to it that it has no effect.
    setenv("QTWEBENGINE_CHROMIUM_FLAGS", "--renderer-cmd-prefix=/bin/false", 1);
    setenv("QTWEBENGINE_REMOTE_DEBUGGING", "127.0.0.1:9229", 1);
    setenv("QTWEBENGINE_DISABLE_SANDBOX", "1", 1);
    const char* const home = std::getenv("HOME");
    setenv("SSLKEYLOGFILE", (std::string(home == nullptr ? "" : home) + "/keys.log").c_str(), 1);
    int one = 1;
    QApplication application(one, argv);
    return RUN_ALL_TESTS();
}
