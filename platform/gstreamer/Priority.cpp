#include "platform/gstreamer/Priority.h"

#include <gio/gio.h>
#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

namespace gstreamer {
namespace {

constexpr int kClass = 1;
// Without the real-time class; the service grants no more than 15 levels by default.
constexpr int kNice = -11;
// What the service allows at most, in microseconds.
constexpr rlim_t kLongestWork = 200'000;
constexpr const char* kService = "org.freedesktop.RealtimeKit1";
constexpr const char* kServicePath = "/org/freedesktop/RealtimeKit1";
constexpr const char* kTaskFolder = "/proc/self/task";
// The library's thread, by the name that it has in the versions around.
constexpr std::string_view kLibraryThreads[] = {"threaded-ml", "pulsesink"};

std::mutex mutex;
GDBusConnection* bus = nullptr;  // guarded by mutex, as the next
bool is_prepared = false;
std::function<void(pid_t)> ask_otherwise;  // set before there are threads

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

// The second question is for a service that refuses the first. Neither is waited for.
void AskService(pid_t thread) {
    if (ask_otherwise) return ask_otherwise(thread);
    const std::lock_guard lock(mutex);
    if (bus == nullptr) return;
    const auto ask = [](const char* what, GVariant* arguments) {
        g_dbus_connection_call(bus, kService, kServicePath, kService, what, arguments, nullptr,
                               G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr, nullptr);
    };
    const auto number = static_cast<std::uint64_t>(thread);
    ask("MakeThreadHighPriority", g_variant_new("(ti)", number, kNice));
    ask("MakeThreadRealtime", g_variant_new("(tu)", number, kClass));
}

void RaiseThread(pid_t thread) {
    SetGuard();
    if (!RaiseByOneself(thread)) AskService(thread);
}

bool MayRaise() {
    constexpr int kNoneOfTheLimit = 20;  // a limit of 31 allows a nice level of 20 - 31
    rlimit nice{};
    rlimit real_time{};
    if (geteuid() == 0) return true;
    if (getrlimit(RLIMIT_RTPRIO, &real_time) == 0 && real_time.rlim_cur >= kClass) return true;
    return getrlimit(RLIMIT_NICE, &nice) == 0 &&
           nice.rlim_cur >= static_cast<rlim_t>(kNoneOfTheLimit - kNice);
}

bool IsOfTheLibrary(const std::filesystem::path& task) {
    std::ifstream file(task / "comm");
    std::string name;
    std::getline(file, name);
    return std::ranges::find(kLibraryThreads, name) != std::end(kLibraryThreads);
}

}  // namespace

void Priority::AskWith(std::function<void(pid_t thread)> ask) {
    ask_otherwise = std::move(ask);
}

void Priority::Prepare() {
    if (ask_otherwise) return;
    {
        const std::lock_guard lock(mutex);
        if (std::exchange(is_prepared, true) || MayRaise()) return;
    }
    GDBusConnection* const connection = g_bus_get_sync(G_BUS_TYPE_SYSTEM, nullptr, nullptr);
    if (connection == nullptr) return;
    g_dbus_connection_set_exit_on_close(connection, FALSE);
    const std::lock_guard lock(mutex);
    bus = connection;
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
