// Processes that crash, and what they leave.
#include "platform/linux/CrashReport.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <thread>

#include "platform/linux/Bench.h"
#include "platform/linux/RunLog.h"

namespace {

namespace fs = std::filesystem;
using linux::RunLog;
using End = RunLog::LastRun::End;

class CrashReportTest : public testing::Test {
protected:
    /// Runs it in a process of its own with a log; gives what that process ended with.
    int Run(const std::function<void()>& work) const {
        const pid_t process = ::fork();
        if (process == 0) {
            const rlimit no_core{0, 0};
            ::setrlimit(RLIMIT_CORE, &no_core);
            const RunLog log(state_.Path(), "/app");
            const linux::CrashReport report(log.Number());
            work();
            ::_exit(0);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(process, &status, 0), process);
        return status;
    }
    std::string Report() const {
        const RunLog next(state_.Path(), "/app");
        std::ifstream file(next.Last().file);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    End LastEnd() const { return RunLog(state_.Path(), "/app").Last().end; }

    linux_tests::PlayFolder state_;
};

TEST_F(CrashReportTest, EachFaultIsReportedAndTakesItsCourse) {
    for (const int fault : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGTRAP}) {
        const int status = Run([fault] { ::raise(fault); });

        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == fault) << fault << ": " << status;
        EXPECT_EQ(LastEnd(), End::Crashed) << fault;
    }
}

TEST_F(CrashReportTest, TheReportNamesTheSignalAndThePlacesWithoutPaths) {
    Run([] { ::raise(SIGSEGV); });

    const std::string report = Report();
    EXPECT_NE(report.find("CRASH SIGSEGV in thread test_platform"), std::string::npos) << report;
    EXPECT_NE(report.find("\n  libc.so.6+0x"), std::string::npos) << report;
    EXPECT_NE(report.find("\n  test_platform_linux+0x"), std::string::npos) << report;
    EXPECT_EQ(report.find('/'), std::string::npos) << report;
}

TEST_F(CrashReportTest, AnExceptionThatNobodyCatchesIsACrash) {
    const int status =
        Run([] { std::thread([] { throw std::runtime_error("nobody catches this"); }).join(); });

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT);
    EXPECT_NE(Report().find("CRASH SIGABRT"), std::string::npos);
}

// Each call has a page of its own to write to, so it cannot become a loop.
int FillStack(int depth) {
    std::array<char, 4096> page{};
    volatile char* const written = page.data();
    *written = static_cast<char>(depth);
    return depth < 0 ? 0 : FillStack(depth + 1) + *written;
}

TEST_F(CrashReportTest, AFullStackIsReportedAsWell) {
    const int status = Run([] { static_cast<void>(FillStack(1)); });

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGSEGV);
    EXPECT_NE(Report().find("CRASH SIGSEGV"), std::string::npos);
}

TEST_F(CrashReportTest, AKillAndAnEndThatWasAskedForAreNone) {
    for (const int signal : {SIGKILL, SIGTERM}) {
        Run([signal] { ::raise(signal); });

        EXPECT_EQ(LastEnd(), End::Unknown) << signal;
    }
}

TEST_F(CrashReportTest, AnEngineThatTookTheSignalsGivesThemBack) {
    Run([] {
        std::signal(SIGSEGV, SIG_DFL);
        linux::CrashReport::Renew();
        ::raise(SIGSEGV);
    });

    EXPECT_EQ(LastEnd(), End::Crashed);
}

}  // namespace
