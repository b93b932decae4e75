#include "platform/decoder/Process.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <string>
#include <thread>
#include <utility>

#include "platform/decoder/Wire.h"
#include "platform/linux/RunLog.h"

extern "C" char** environ;

namespace decoder {
namespace {

constexpr std::chrono::milliseconds kGlance{2};
// What was killed is gone within this time, unless the kernel waits for a disk on its behalf.
constexpr std::chrono::milliseconds kDying{300};
constexpr std::chrono::seconds kLongStart{60};
constexpr std::chrono::seconds kPause{5};
constexpr int kMostVainStarts = 3;
// Clear of the numbers that the process has its sockets at.
constexpr int kHighNumber = 10;

/// What a process is started with; freed in the end.
struct SpawnPlan {
    SpawnPlan() {
        posix_spawn_file_actions_init(&actions);
        posix_spawnattr_init(&attributes);
    }
    ~SpawnPlan() {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
};

linux::Descriptor Raised(linux::Descriptor low) {
    return linux::Descriptor(fcntl(low.Number(), F_DUPFD_CLOEXEC, kHighNumber));
}

}  // namespace

Process::Process(std::string program, std::string channel, Raiser raise, int errors)
    : program_(std::move(program)), channel_(std::move(channel)), raise_(std::move(raise)), errors_(errors) {}

Process::~Process() {
    Leave();
    Wait(Clock::now() + kDying);
}

void Process::Start() {
    const auto now = Clock::now();
    if (process_ != 0 || now < not_before_) return;
    SocketPair commands = SocketPair::Make();
    SocketPair gate = SocketPair::Make();
    if (!commands.ours.IsOpen() || !gate.ours.IsOpen()) return;
    started_ = now;
    has_answered_ = false;
    if (!Spawn(Raised(std::move(commands.theirs)).Number(), Raised(std::move(gate.theirs)).Number())) {
        not_before_ = now + kPause;
        return;
    }
    commands_ = std::move(commands.ours);
    gate_socket_ = std::move(gate.ours);
    gate_ = std::make_shared<Gatekeeper>(Policy(Surroundings::OfThisProcess()), process_, raise_);
    threads_ = std::make_unique<gstreamer::Threads>();
    // The thread has a descriptor of its own, for it may outlive this start.
    auto line = std::make_shared<linux::Descriptor>(fcntl(gate_socket_.Number(), F_DUPFD_CLOEXEC, 0));
    if (!threads_->Start([keeper = gate_, line] { keeper->Serve(line->Number()); }))
        Kill("has no gatekeeper");
}

bool Process::Spawn(int commands, int gate) {
    SpawnPlan plan;
    posix_spawn_file_actions_addopen(&plan.actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&plan.actions, errors_, STDERR_FILENO);
    posix_spawn_file_actions_adddup2(&plan.actions, commands, kCommandSocket);
    posix_spawn_file_actions_adddup2(&plan.actions, gate, kGateSocket);
    posix_spawn_file_actions_addclosefrom_np(&plan.actions, kGateSocket + 1);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&plan.attributes, &none);
    posix_spawnattr_setflags(&plan.attributes, POSIX_SPAWN_SETSIGMASK);
    std::string program = program_;
    std::string channel = channel_;
    std::string self = std::to_string(getpid());
    char* const arguments[] = {program.data(), channel.data(), self.data(), nullptr};
    const int error =
        posix_spawn(&process_, program_.c_str(), &plan.actions, &plan.attributes, arguments, environ);
    if (error == 0) return true;
    process_ = 0;
    linux::RunLog::Tell("the decoder of channel " + channel_ + " cannot be started: " + std::strerror(error));
    return false;
}

bool Process::IsRunning() {
    std::erase_if(leaving_, [](pid_t process) { return waitpid(process, nullptr, WNOHANG) != 0; });
    if (process_ == 0) return false;
    pollfd line{.fd = commands_.Number(), .events = 0, .revents = 0};
    if (poll(&line, 1, 0) == 0) return true;
    Kill(nullptr);
    return false;
}

bool Process::WaitUntilReady() {
    if (!IsRunning()) return false;
    if (gate_->WaitUntilReady(kStartPatience)) return true;
    if (IsRunning() && Clock::now() - started_ > kLongStart) Kill("did not get ready");
    return false;
}

std::optional<ports::MediaReply> Process::Ask(std::string text, std::string path) {
    if (process_ == 0) return std::nullopt;
    const std::uint32_t serial = ++serial_;
    const auto until = Clock::now() + kPatience;
    Message message{.serial = serial, .error = 0, .text = std::move(text), .path = std::move(path)};
    Arrival arrival = Send(commands_.Number(), message) ? Arrival::Message : Arrival::Gone;
    do {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
        if (arrival != Arrival::Gone)
            arrival = Receive(commands_.Number(), message, std::max(left, std::chrono::milliseconds::zero()));
    } while ((arrival == Arrival::Message && message.serial != serial) ||
             (arrival == Arrival::TooLate && Clock::now() < until));
    has_answered_ = has_answered_ || arrival == Arrival::Message;
    if (arrival == Arrival::Message)
        return ports::MediaReply{.error = message.error, .text = std::move(message.text)};
    has_hung_ = arrival == Arrival::TooLate;
    Kill(has_hung_ ? "did not answer" : nullptr);
    return std::nullopt;
}

void Process::Leave() {
    if (process_ != 0) shutdown(commands_.Number(), SHUT_RDWR);
}

void Process::Wait(Clock::time_point until) {
    while (process_ != 0 && Clock::now() < until) {
        if (waitpid(process_, nullptr, WNOHANG) != 0) {
            process_ = 0;
            break;
        }
        std::this_thread::sleep_for(kGlance);
    }
    if (process_ != 0) {
        MakeEnd();
        // One that never answered may still be loading its engine. That is no fault of an orderly end.
        if (has_answered_)
            linux::RunLog::Tell("the decoder of channel " + channel_ + " did not leave, and was ended");
    }
    Bury();
}

/// How it ended; nothing while the system still holds it.
std::optional<int> Process::MakeEnd() {
    kill(process_, SIGKILL);
    int status = 0;
    const auto until = Clock::now() + kDying;
    pid_t ended = waitpid(process_, &status, WNOHANG);
    while (ended == 0 && Clock::now() < until) {
        std::this_thread::sleep_for(kGlance);
        ended = waitpid(process_, &status, WNOHANG);
    }
    if (ended == 0) leaving_.push_back(process_);
    process_ = 0;
    return ended > 0 ? std::optional(status) : std::nullopt;
}

/// `why` is null for a process that is gone by itself.
void Process::Kill(const char* why) {
    const std::optional<int> status = MakeEnd();
    if (why == nullptr && status && WIFSIGNALED(*status)) why = strsignal(WTERMSIG(*status));
    linux::RunLog::Tell("the decoder of channel " + channel_ + " ended (" +
                        (why == nullptr ? "by itself" : why) + ")");
    // One that was ready works on this system, whatever ended it: a file, or somebody else.
    if (gate_ != nullptr && gate_->WasReady()) vain_starts_ = -1;
    if (++vain_starts_ > kMostVainStarts) not_before_ = Clock::now() + kPause;
    Bury();
}

void Process::Bury() {
    if (gate_socket_.IsOpen()) shutdown(gate_socket_.Number(), SHUT_RDWR);
    if (threads_ != nullptr) threads_->End(kDying);
    threads_.reset();
    gate_.reset();
    commands_.Close();
    gate_socket_.Close();
}

}  // namespace decoder
