#include "platform/linux/FileProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <thread>
#include <utility>

#include "platform/linux/FileMessages.h"

namespace linux {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kBetweenQuestions{5};
// A few milliseconds, if the machine has nothing else to do.
constexpr milliseconds kLongestStart{2000};
constexpr int kTriesToSeeItEnd = 20;  // a millisecond each; one that nothing holds needs none or one

// With nothing of the program's but one end of a socket.
class Spawning {
public:
    explicit Spawning(int socket) {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_adddup2(&actions_, socket, FileProcess::kSocket);
        ::posix_spawn_file_actions_addclosefrom_np(&actions_, FileProcess::kSocket + 1);
        ::posix_spawn_file_actions_addchdir_np(&actions_, "/");
    }
    ~Spawning() { ::posix_spawn_file_actions_destroy(&actions_); }
    Spawning(const Spawning&) = delete;
    Spawning& operator=(const Spawning&) = delete;

    pid_t Run(const std::string& program) {
        pid_t id = -1;
        std::string name = program.substr(program.rfind('/') + 1);
        const std::array<char*, 2> arguments{name.data(), nullptr};
        const int failure =
            ::posix_spawn(&id, program.c_str(), &actions_, nullptr, arguments.data(), environ);
        return failure == 0 ? id : -1;
    }

private:
    posix_spawn_file_actions_t actions_{};
};

}  // namespace

bool FileProcess::Start() {
    if (id_ > 0) return true;
    std::array<int, 2> ends{-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return false;
    Descriptor ours(ends[0]);
    const Descriptor theirs(ends[1]);
    ::fcntl(ours.Number(), F_SETFL, O_NONBLOCK);
    id_ = Spawning(theirs.Number()).Run(program_);
    if (id_ < 0) return false;
    socket_ = std::move(ours);
    // Its first sign of life: no share has been asked yet, so the time until then is not the share's silence.
    pollfd wanted{socket_.Number(), POLLIN, 0};
    ::poll(&wanted, 1, static_cast<int>(kLongestStart.count()));
    return true;
}

// One that a share holds goes when that lets it; nobody waits for it.
void FileProcess::End() {
    if (id_ <= 0) return;
    ::kill(id_, SIGKILL);
    for (int tries = 0; tries < kTriesToSeeItEnd && ::waitpid(id_, nullptr, WNOHANG) == 0; ++tries)
        std::this_thread::sleep_for(milliseconds(1));
    id_ = -1;
    socket_.Close();
    received_.clear();
    answer_.clear();
    is_owed_ = false;
}

FileProcess::Outcome FileProcess::Ask(std::string_view question, milliseconds patience,
                                      const ports::MayGoOn& may_go_on, std::string& answer) {
    is_asking_ = true;
    const Outcome outcome = AskOnce(question, patience, may_go_on, answer);
    is_asking_ = false;
    return outcome;
}

FileProcess::Outcome FileProcess::AskOnce(std::string_view question, milliseconds patience,
                                          const ports::MayGoOn& may_go_on, std::string& answer) {
    if (const Outcome earlier = WaitForAnswer(patience, may_go_on); earlier != Outcome::Answered)
        return earlier;
    if (!Start() || !Send(question)) return Outcome::NoProcess;
    const Outcome outcome = WaitForAnswer(patience, may_go_on);
    if (outcome == Outcome::Answered) answer = std::exchange(answer_, {});
    return outcome;
}

FileProcess::Outcome FileProcess::WaitForAnswer(milliseconds patience, const ports::MayGoOn& may_go_on) {
    while (is_owed_) {
        const auto left = std::chrono::ceil<milliseconds>(last_sign_ + patience - Clock::now());
        pollfd wanted{socket_.Number(), POLLIN, 0};
        const milliseconds wait = std::clamp(left, milliseconds(0), may_go_on ? kBetweenQuestions : patience);
        const bool is_readable = ::poll(&wanted, 1, static_cast<int>(wait.count())) > 0;
        if (is_readable && !Receive()) {
            End();
            return Outcome::NoProcess;
        }
        // Once for each step that was told, however many came at once: as often as for a folder of a disk.
        for (int i = std::max(std::exchange(steps_, 0), is_owed_ ? 1 : 0); may_go_on && i > 0; --i)
            if (!may_go_on()) return Outcome::Cancelled;
        if (is_owed_ && !is_readable && left <= milliseconds(0)) return Outcome::Silent;
    }
    return Outcome::Answered;
}

bool FileProcess::Send(std::string_view message) {
    last_sign_ = Clock::now();
    is_owed_ = true;
    steps_ = 0;
    const std::string frame = Framed(message);
    for (std::size_t sent = 0; sent < frame.size();) {
        const ssize_t count =
            ::send(socket_.Number(), frame.data() + sent, frame.size() - sent, MSG_NOSIGNAL);
        if (count >= 0) {
            sent += static_cast<std::size_t>(count);
            continue;
        }
        // It reads the whole question before it asks anybody, so it never makes the program wait here.
        pollfd wanted{socket_.Number(), POLLOUT, 0};
        if (errno != EINTR && (errno != EAGAIN || ::poll(&wanted, 1, 1000) <= 0)) {
            End();
            return false;
        }
    }
    return true;
}

// False when the process ended.
bool FileProcess::Receive() {
    std::array<char, 65536> buffer{};
    while (true) {
        const ssize_t count = ::recv(socket_.Number(), buffer.data(), buffer.size(), 0);
        if (count > 0) {
            received_.append(buffer.data(), static_cast<std::size_t>(count));
            last_sign_ = Clock::now();
            continue;
        }
        if (count < 0 && errno == EINTR) continue;
        if (count == 0 || errno != EAGAIN) return false;
        TakeMessages();
        return true;
    }
}

void FileProcess::TakeMessages() {
    while (std::optional<std::string> message = TakeMessage(received_)) {
        if (*message == kSignOfLife) {
            ++steps_;
            continue;
        }
        answer_ = message->substr(1);
        is_owed_ = false;
    }
}

milliseconds FileProcess::Silence() {
    if (is_owed_ && !is_asking_ && !Receive()) End();
    return is_owed_ ? std::chrono::duration_cast<milliseconds>(Clock::now() - last_sign_) : milliseconds(0);
}

}  // namespace linux
