#include "platform/linux/MessageTap.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>

#include "platform/linux/RunLog.h"

namespace linux {
namespace {

constexpr int kForEver = -1;
/// A line without an end is taken in pieces.
constexpr std::size_t kLongestLine = 4096;

void TakeLines(std::string& text) {
    std::size_t end = 0;
    while ((end = text.find('\n')) != std::string::npos) {
        RunLog::TakeMessage(std::string_view(text).substr(0, end));
        text.erase(0, end + 1);
    }
    if (text.size() < kLongestLine) return;
    RunLog::TakeMessage(text);
    text.clear();
}

}  // namespace

MessageTap::MessageTap() : ours_(-1), theirs_(-1), stop_(::eventfd(0, EFD_CLOEXEC)) {
    std::array<int, 2> ends{-1, -1};
    if (!stop_.IsOpen() || ::pipe2(ends.data(), O_CLOEXEC) != 0) return;
    ours_ = Descriptor(ends[0]);
    theirs_ = Descriptor(ends[1]);
    ::fcntl(ours_.Number(), F_SETFL, O_NONBLOCK);
    // The thread takes no signal: those are the program's, and a standard error that is closed is none of it.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    try {
        thread_ = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
        theirs_.Close();
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

MessageTap::~MessageTap() {
    if (!thread_.joinable()) return;
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(stop_.Number(), &one, sizeof one);
    thread_.join();
}

int MessageTap::Number() const {
    return theirs_.IsOpen() ? theirs_.Number() : STDERR_FILENO;
}

void MessageTap::Run() const {
    std::string rest;
    for (;;) {
        std::array<pollfd, 2> lines{pollfd{ours_.Number(), POLLIN, 0}, pollfd{stop_.Number(), POLLIN, 0}};
        if (::poll(lines.data(), lines.size(), kForEver) < 0 && errno != EINTR) return;
        while (Take(rest))
            TakeLines(rest);
        if (lines[1].revents == 0) continue;
        if (!rest.empty()) RunLog::TakeMessage(rest);
        return;
    }
}

bool MessageTap::Take(std::string& rest) const {
    std::array<char, kLongestLine> buffer{};
    const ssize_t got = ::read(ours_.Number(), buffer.data(), buffer.size());
    if (got <= 0) return false;
    const std::string_view piece(buffer.data(), static_cast<std::size_t>(got));
    [[maybe_unused]] const ssize_t shown = ::write(STDERR_FILENO, piece.data(), piece.size());
    rest += piece;
    return true;
}

}  // namespace linux
