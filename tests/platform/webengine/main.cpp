// The engine's sandbox does not work for root, and a test without it would prove nothing. So a test program
// that root starts becomes an account without rights, with a home of its own, and starts anew as that.
#include <grp.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/webengine/TestCertificate.h"

namespace {

constexpr uid_t kNobody = 65534;

/// A home of the test's own: the engine looks there for whom to trust.
bool MakeHome() {
    char home[] = P_tmpdir "/brindlepost-home-XXXXXX";
    return mkdtemp(home) != nullptr && setenv("HOME", home, 1) == 0;
}

int BecomeNobody(char** arguments) {
    char home[] = P_tmpdir "/brindlepost-pages-XXXXXX";
    if (mkdtemp(home) == nullptr || chown(home, kNobody, kNobody) != 0) return 1;
    setenv("HOME", home, 1);
    setenv("XDG_RUNTIME_DIR", home, 1);
    setenv("TMPDIR", home, 1);
    for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        unsetenv(name);
    if (chdir(home) != 0 || setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0)
        return 1;
    execv("/proc/self/exe", arguments);
    std::perror("starting anew");
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (geteuid() == 0) return BecomeNobody(argv);
    testing::InitGoogleTest(&argc, argv);
    if (!MakeHome() || !webengine_tests::MakeTrustedCertificate()) {
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
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    int one = 1;
    QApplication application(one, argv);
    return RUN_ALL_TESTS();
}
