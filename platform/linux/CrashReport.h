// What is written to the log of a run that crashes: which signal, and where the program was.
//
// The signals of a fault (SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGTRAP), and with SIGABRT an exception
// that nobody catches. Afterwards the signal takes its usual course, so a desktop's own crash collector sees
// it as well. Of each place the name of the library, the offset and the function are told, and no path.
#pragma once

#include <array>
#include <cstddef>

namespace linux {

class CrashReport final {
public:
    /// `log` is a descriptor that stays open as long as this; below 0 nothing is reported. One object a
    /// program.
    explicit CrashReport(int log);
    ~CrashReport();
    CrashReport(const CrashReport&) = delete;
    CrashReport& operator=(const CrashReport&) = delete;

    /// Takes the signals again where an engine has taken them since.
    static void Renew();

private:
    static constexpr std::size_t kStack = 65'536;

    // Where the handler runs when the stack of the first thread is full.
    std::array<char, kStack> stack_{};
};

}  // namespace linux
