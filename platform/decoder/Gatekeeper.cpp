#include "platform/decoder/Gatekeeper.h"

#include <fcntl.h>
#include <poll.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <string_view>

#include "platform/decoder/Wire.h"

namespace decoder {
namespace {

constexpr std::size_t kPage = 4096;
constexpr int kNothing = 0;
constexpr int kReadOnly = O_RDONLY;
constexpr std::string_view kOwnThreads = "/proc/self/task";

std::string Normal(const std::string& path) {
    return std::filesystem::path(path).lexically_normal().string();
}

std::string NameOfOpened(int file) {
    std::array<char, PATH_MAX> name;
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t size = readlink(link.c_str(), name.data(), name.size());
    return size > 0 ? std::string(name.data(), static_cast<std::size_t>(size)) : std::string();
}

// The list of the process's threads, and the name of one. Here "self" would be the program.
int OpenOwnThreads(const std::string& rest, pid_t process, int flags) {
    const std::string folder = "/proc/" + std::to_string(process) + "/task";
    const std::size_t digits = std::min(rest.find_first_not_of("0123456789", 1), rest.size());
    const bool is_name = rest.starts_with('/') && digits > 1 && rest.substr(digits) == "/comm";
    if (!rest.empty() && !is_name) return -ENOENT;
    const int file = open((folder + rest).c_str(), O_RDONLY | O_CLOEXEC | (flags & O_DIRECTORY));
    return file < 0 ? -errno : file;
}

bool OnlyReads(std::uint64_t flags) {
    constexpr std::uint64_t kChanging = O_CREAT | O_TRUNC | O_APPEND | (O_TMPFILE & ~O_DIRECTORY);
    return (flags & O_ACCMODE) == kReadOnly && (flags & kChanging) == 0;
}

}  // namespace

void Gatekeeper::Hand(const std::string& native_path) {
    const std::lock_guard lock(mutex_);
    songs_.push_back(Normal(native_path));
}

void Gatekeeper::Forget(const std::string& native_path) {
    const std::lock_guard lock(mutex_);
    const auto found = std::find(songs_.begin(), songs_.end(), Normal(native_path));
    if (found != songs_.end()) songs_.erase(found);
}

bool Gatekeeper::WaitUntilReady(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, patience, [this] { return ready_ || gone_; });
    return ready_ && !gone_;
}

bool Gatekeeper::WasReady() {
    const std::lock_guard lock(mutex_);
    return ready_;
}

bool Gatekeeper::IsReady() {
    return WaitUntilReady(std::chrono::milliseconds::zero());
}

void Gatekeeper::Serve(int socket) {
    Hello hello;
    if (ReceiveHello(socket, hello)) {
        memory_ = linux::Descriptor(
            open(("/proc/" + std::to_string(process_) + "/mem").c_str(), O_RDONLY | O_CLOEXEC));
        if (!memory_.IsOpen() && hello.requests.IsOpen()) hello.missing += " files of its own";
        if (!hello.missing.empty())
            std::fprintf(stderr, "Brindlepost: this system does not keep a decoder from:%s\n",
                         hello.missing.c_str());
        {
            const std::lock_guard lock(mutex_);
            ready_ = true;
        }
        changed_.notify_all();
        ServeRequests(socket, hello.requests.Number());
    }
    const std::lock_guard lock(mutex_);
    gone_ = true;
    changed_.notify_all();
}

void Gatekeeper::ServeRequests(int socket, int requests) {
    while (true) {
        std::array<pollfd, 2> waited{{{.fd = socket, .events = POLLIN, .revents = 0},
                                      {.fd = requests, .events = POLLIN, .revents = 0}}};
        if (poll(waited.data(), waited.size(), -1) < 0 && errno != EINTR) return;
        if (waited[0].revents != 0 && !TakeWish(socket)) return;
        if ((waited[1].revents & (POLLHUP | POLLERR)) != 0) return;
        if ((waited[1].revents & POLLIN) != 0) ServeOne(requests);
    }
}

/// False when the process is gone.
bool Gatekeeper::TakeWish(int socket) const {
    Message wish;
    if (Receive(socket, wish, std::chrono::milliseconds::zero()) != Arrival::Message) return false;
    if (raise_) raise_(process_, static_cast<pid_t>(wish.serial));
    return true;
}

// Both parts are of the kernel's sizes, and zero at first.
void Gatekeeper::ServeOne(int requests) {
    seccomp_notif* asked = nullptr;
    seccomp_notif_resp* answer = nullptr;
    if (seccomp_notify_alloc(&asked, &answer) != 0) return;
    // Whoever asked may have been ended meanwhile.
    if (seccomp_notify_receive(requests, asked) == 0) {
        answer->id = asked->id;
        Answer(requests, *asked, *answer);
        seccomp_notify_respond(requests, answer);
    }
    seccomp_notify_free(asked, answer);
}

void Gatekeeper::Answer(int requests, const seccomp_notif& asked, seccomp_notif_resp& answer) {
    const auto& data = asked.data;
    if (!memory_.IsOpen()) {
        answer.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
    } else if (data.nr == SCMP_SYS(connect)) {
        answer.error = -Connect(asked);
    } else if (data.nr == SCMP_SYS(openat)) {
        answer.error = -Open(requests, asked, data.args[1], data.args[2], answer);
    } else {
        answer.error = -Open(requests, asked, data.args[0], data.args[1], answer);
    }
}

/// 0, or the number of the system's error.
int Gatekeeper::Open(int requests, const seccomp_notif& asked, std::uint64_t path_at, std::uint64_t flags,
                     seccomp_notif_resp& answer) {
    const std::string path = ReadText(path_at);
    if (!OnlyReads(flags)) return EACCES;
    const int opened = OpenAllowed(path, static_cast<int>(flags));
    if (opened < 0) return -opened;
    const linux::Descriptor file(opened);
    seccomp_notif_addfd handed{};
    handed.id = asked.id;
    handed.srcfd = static_cast<std::uint32_t>(file.Number());
    handed.newfd_flags = static_cast<std::uint32_t>(flags & O_CLOEXEC);
    const int number = ioctl(requests, SECCOMP_IOCTL_NOTIF_ADDFD, &handed);
    if (number < 0) return errno;
    answer.val = number;
    return kNothing;
}

/// The file, or the negative number of the system's error. What a decoder may not read is not there for it.
int Gatekeeper::OpenAllowed(const std::string& path, int flags) {
    if (path.starts_with(kOwnThreads))
        return OpenOwnThreads(path.substr(kOwnThreads.size()), process_, flags);
    const Reading reading = MayRead(path);
    if (reading == Reading::No) return -ENOENT;
    constexpr int kKept = O_DIRECTORY | O_NOFOLLOW;
    // By the name that was looked at: with a link in it another way may lead elsewhere.
    linux::Descriptor file(
        open(Normal(path).c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | (flags & kKept)));
    if (!file.IsOpen()) return -errno;
    if (reading == Reading::Below && policy_.MayRead(NameOfOpened(file.Number())) == Reading::No)
        return -ENOENT;
    return file.Release();
}

Reading Gatekeeper::MayRead(const std::string& path) {
    const std::lock_guard lock(mutex_);
    const bool is_song = std::find(songs_.begin(), songs_.end(), Normal(path)) != songs_.end();
    return is_song && path.starts_with('/') ? Reading::Exactly : policy_.MayRead(path);
}

/// 0, or the number of the system's error. The process's own socket is connected, with all that was set on
/// it.
int Gatekeeper::Connect(const seccomp_notif& asked) const {
    sockaddr_un address{};
    const auto size = std::min<std::size_t>(asked.data.args[2], sizeof address);
    const auto at = static_cast<off_t>(asked.data.args[1]);
    if (pread(memory_.Number(), &address, size, at) != static_cast<ssize_t>(size)) return EFAULT;
    if (address.sun_family != AF_UNIX) return policy_.NeedsNetwork() ? ENETUNREACH : EACCES;
    std::string name(address.sun_path, size - offsetof(sockaddr_un, sun_path));
    if (!name.starts_with('\0')) name = name.c_str();
    if (!policy_.MayConnect(name)) return ECONNREFUSED;
    const linux::Descriptor process(static_cast<int>(syscall(SYS_pidfd_open, process_, 0)));
    const linux::Descriptor line(
        static_cast<int>(syscall(SYS_pidfd_getfd, process.Number(), asked.data.args[0], 0)));
    if (!line.IsOpen()) return EACCES;
    if (connect(line.Number(), reinterpret_cast<const sockaddr*>(&address), static_cast<socklen_t>(size)) ==
        0)
        return kNothing;
    return errno;
}

std::string Gatekeeper::ReadText(std::uint64_t address) const {
    std::string text;
    std::array<char, kPage> page;
    while (text.size() < PATH_MAX) {
        const std::size_t rest = kPage - address % kPage;
        const ssize_t size = pread(memory_.Number(), page.data(), rest, static_cast<off_t>(address));
        if (size <= 0) return {};
        const char* const end = std::find(page.data(), page.data() + size, '\0');
        text.append(page.data(), static_cast<std::size_t>(end - page.data()));
        if (end != page.data() + size) return text;
        address += static_cast<std::uint64_t>(size);
    }
    return {};
}

}  // namespace decoder
