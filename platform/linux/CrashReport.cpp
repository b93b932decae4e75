#include "platform/linux/CrashReport.h"

#include <dlfcn.h>
#include <execinfo.h>
#include <poll.h>
#include <pthread.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/linux/RunLog.h"

namespace linux {
namespace {

constexpr std::array kFaults{SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGTRAP};
constexpr int kMostFrames = 64;
constexpr int kForEver = -1;
/// A handler that meets a lock of the loader in use would wait for ever; the system then ends the program.
constexpr unsigned kMostSeconds = 5;

// A handler reaches nothing but what stands for the whole program.
std::atomic<int> report_number{-1};
std::atomic_flag is_reporting = ATOMIC_FLAG_INIT;

// Only what a handler may do: no memory is asked for, no lock of the C library's streams is taken.
class Line {
public:
    Line& Add(std::string_view text) {
        for (const char letter : text) {
            if (length_ < text_.size()) text_.at(length_++) = letter;
        }
        return *this;
    }
    Line& Add(const char* text) { return Add(std::string_view(text, std::strlen(text))); }
    Line& AddHex(std::uintptr_t number) {
        std::array<char, 18> digits{};
        std::size_t at = digits.size();
        do {
            digits.at(--at) = "0123456789abcdef"[number % 16U];
            number /= 16U;
        } while (number != 0);
        return Add("0x").Add(std::string_view(digits.data() + at, digits.size() - at));
    }
    void Write(int number) {
        Add("\n");
        [[maybe_unused]] const ssize_t written = write(number, text_.data(), length_);
    }

private:
    std::array<char, 512> text_{};
    std::size_t length_ = 0;
};

const char* NameOf(int signal) {
    switch (signal) {
        case SIGSEGV:
            return "SIGSEGV";
        case SIGABRT:
            return "SIGABRT";
        case SIGBUS:
            return "SIGBUS";
        case SIGFPE:
            return "SIGFPE";
        case SIGILL:
            return "SIGILL";
        default:
            return "SIGTRAP";
    }
}

void WritePlace(int number, void* place) {
    const auto address = reinterpret_cast<std::uintptr_t>(place);
    Dl_info found{};
    Line line;
    line.Add("  ");
    if (dladdr(place, &found) == 0 || found.dli_fname == nullptr) {
        line.AddHex(address).Write(number);
        return;
    }
    const char* const slash = std::strrchr(found.dli_fname, '/');
    line.Add(slash == nullptr ? found.dli_fname : slash + 1).Add("+");
    line.AddHex(address - reinterpret_cast<std::uintptr_t>(found.dli_fbase));
    if (found.dli_sname != nullptr) line.Add(" ").Add(found.dli_sname);
    line.Write(number);
}

void Report(int number, int signal, const siginfo_t* cause) {
    std::array<char, 17> thread{};
    prctl(PR_GET_NAME, thread.data());
    Line line;
    line.Add(RunLog::kCrash).Add(NameOf(signal)).Add(" in thread ").Add(thread.data());
    if (cause != nullptr && cause->si_code <= 0 && signal != SIGABRT) line.Add(", sent by a process");
    line.Write(number);
    std::array<void*, kMostFrames> places{};
    const int count = backtrace(places.data(), kMostFrames);
    for (int i = 0; i < count; ++i)
        WritePlace(number, places.at(static_cast<std::size_t>(i)));
}

void OnFault(int signal, siginfo_t* cause, void* /*context*/) {
    const int number = report_number.load();
    if (number >= 0) {
        // A second thread in trouble waits for the end that the first one brings.
        if (is_reporting.test_and_set()) poll(nullptr, 0, kForEver);
        alarm(kMostSeconds);
        Report(number, signal, cause);
        alarm(0);
    }
    raise(signal);
}

}  // namespace

CrashReport::CrashReport(int log) {
    if (log < 0) return;
    std::array<void*, 1> first{};
    backtrace(first.data(), 1);  // what it needs is loaded now, not in the handler
    report_number = log;
    stack_t stack{};
    stack.ss_sp = stack_.data();
    stack.ss_size = stack_.size();
    sigaltstack(&stack, nullptr);
    Renew();
}

CrashReport::~CrashReport() {
    if (report_number.exchange(-1) < 0) return;
    for (const int fault : kFaults)
        ::signal(fault, SIG_DFL);
    stack_t none{};
    none.ss_flags = SS_DISABLE;
    sigaltstack(&none, nullptr);
}

void CrashReport::Renew() {
    if (report_number.load() < 0) return;
    struct sigaction action{};
    action.sa_sigaction = OnFault;
    action.sa_flags = static_cast<int>(SA_SIGINFO | SA_RESETHAND | SA_ONSTACK);
    for (const int fault : kFaults)
        sigaction(fault, &action, nullptr);
}

}  // namespace linux
