#include "platform/gstreamer/Priority.h"

#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>

namespace gstreamer {
namespace {

constexpr int kClass = 1;
// Without the real-time class.
constexpr int kNice = -11;
// What the service allows at most, in microseconds.
constexpr rlim_t kLongestWork = 200'000;
constexpr const char* kTaskFolder = "/proc/self/task";
// The library's thread, by the name that it has in the versions around.
constexpr std::string_view kLibraryThreads[] = {"threaded-ml", "pulsesink"};

std::function<void(pid_t)> ask_service;  // set before there are threads

bool SetClass(pid_t thread, int policy, int priority) {
    const sched_param wanted{.sched_priority = priority};
    return sched_setscheduler(thread, policy, &wanted) == 0;
}

bool SetNice(pid_t thread, int nice) {
    return setpriority(PRIO_PROCESS, static_cast<id_t>(thread), nice) == 0;
}

// The service grants nothing to a process without the guard.
void SetGuard() {
    rlimit limit{};
    if (getrlimit(RLIMIT_RTTIME, &limit) != 0 || limit.rlim_cur <= kLongestWork) return;
    limit.rlim_cur = limit.rlim_max = kLongestWork;
    setrlimit(RLIMIT_RTTIME, &limit);
}

bool RaiseByOneself(pid_t thread) {
    return SetClass(thread, SCHED_RR | SCHED_RESET_ON_FORK, kClass) || SetNice(thread, kNice);
}

void RaiseThread(pid_t thread) {
    SetGuard();
    if (!RaiseByOneself(thread) && ask_service) ask_service(thread);
}

bool IsOfTheLibrary(const std::filesystem::path& task) {
    std::ifstream file(task / "comm");
    std::string name;
    std::getline(file, name);
    return std::ranges::find(kLibraryThreads, name) != std::end(kLibraryThreads);
}

}  // namespace

void Priority::AskWith(std::function<void(pid_t thread)> ask) {
    ask_service = std::move(ask);
}

void Priority::Raise() {
    RaiseThread(gettid());
}

void Priority::Restore() {
    SetClass(gettid(), SCHED_OTHER, 0);
    SetNice(gettid(), 0);
}

void Priority::RaiseClientLibrary() {
    std::error_code error;
    for (const auto& task : std::filesystem::directory_iterator(kTaskFolder, error)) {
        if (!IsOfTheLibrary(task.path())) continue;
        const std::string number = task.path().filename();
        pid_t thread = 0;
        if (std::from_chars(number.data(), number.data() + number.size(), thread).ec == std::errc())
            RaiseThread(thread);
    }
}

}  // namespace gstreamer
