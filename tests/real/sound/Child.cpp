#include "real/sound/Child.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <thread>
#include <utility>

namespace sound {
namespace {

void SendTo(int from, int to) {
    dup2(from, to);
    close(from);
}

}  // namespace

Child::Child(const std::vector<std::string>& words, int* output) {
    std::array<int, 2> pipe_ends{-1, -1};
    if (output != nullptr && pipe2(pipe_ends.data(), O_CLOEXEC) != 0) return;
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    pid_ = fork();
    if (pid_ == 0) {
        const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
        dup2(nothing, STDIN_FILENO);
        dup2(nothing, STDERR_FILENO);
        if (output == nullptr) {
            dup2(nothing, STDOUT_FILENO);
        } else {
            SendTo(pipe_ends[1], STDOUT_FILENO);
        }
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    if (output == nullptr) return;
    close(pipe_ends[1]);
    *output = pipe_ends[0];
}

Child::~Child() {
    Kill();
}

Child::Child(Child&& other) noexcept
    : pid_(std::exchange(other.pid_, -1)), exit_code_(std::exchange(other.exit_code_, -1)) {}

Child& Child::operator=(Child&& other) noexcept {
    std::swap(pid_, other.pid_);
    std::swap(exit_code_, other.exit_code_);
    return *this;
}

bool Child::IsRunning() {
    if (pid_ <= 0) return false;
    int status = 0;
    if (waitpid(pid_, &status, WNOHANG) != pid_) return true;
    exit_code_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    pid_ = -1;
    return false;
}

void Child::Signal(int signal) const {
    if (pid_ > 0) kill(pid_, signal);
}

void Child::Kill() {
    if (!IsRunning()) return;
    Signal(SIGKILL);
    waitpid(pid_, nullptr, 0);
    pid_ = -1;
}

int Child::Wait(double seconds) {
    const auto until = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (IsRunning() && std::chrono::steady_clock::now() < until) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return exit_code_;
}

}  // namespace sound
