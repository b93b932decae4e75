#include "platform/linux/HandOffSocket.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <thread>
#include <utility>

#include "base/Text.h"

namespace linux {
namespace {

using Moment = std::chrono::steady_clock::time_point;

constexpr std::size_t kLengthBytes = 4;
constexpr int kBacklog = 64;
constexpr char kProcessed = '!';
constexpr auto kPatienceToConnect = std::chrono::seconds(5);
constexpr auto kPatienceForAnswer = std::chrono::seconds(30);
constexpr auto kBetweenTries = std::chrono::milliseconds(10);

// A socket address holds 107 characters; the way through the open folder is always short enough.
sockaddr_un AddressOf(const SocketPlace& place, std::string_view suffix = {}) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::string path = "/proc/self/fd/" + std::to_string(place.folder) + "/" + place.name;
    path.append(suffix);
    path.resize(std::min(path.size(), sizeof address.sun_path - 1));
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return address;
}

Descriptor NewSocket() {
    return Descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
}

template <class Call>
bool WithAddress(Call call, const Descriptor& socket, const sockaddr_un& address) {
    return call(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool IsOfThisUser(const Descriptor& socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(socket.Number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::geteuid();
}

bool Watch(const Descriptor& events, const Descriptor& socket) {
    epoll_event wanted{};
    wanted.events = EPOLLIN;
    wanted.data.fd = socket.Number();
    return ::epoll_ctl(events.Number(), EPOLL_CTL_ADD, socket.Number(), &wanted) == 0;
}

std::size_t AnnouncedLength(std::string_view received) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < kLengthBytes; ++i) {
        length |= std::size_t{static_cast<unsigned char>(received[i])} << (8 * i);
    }
    return length;
}

std::string Framed(std::string_view text) {
    std::string frame;
    for (std::size_t i = 0; i < kLengthBytes; ++i)
        frame += static_cast<char>((text.size() >> (8 * i)) & 0xFFU);
    return frame.append(text);
}

constexpr char kAroundId = '\0';
constexpr char kBeforeOption = '\1';

std::string MessageOf(std::string_view startup_id, std::string_view text) {
    const bool has_id = !startup_id.empty() && !base::Contains(startup_id, std::string_view(&kAroundId, 1));
    if (!has_id) return std::string(text);
    return (std::string(1, kAroundId).append(startup_id) + kAroundId).append(text);
}

struct Message {
    std::string startup_id;
    std::string text;
};

Message MessageIn(std::string_view received) {
    const std::size_t end = received.starts_with(kAroundId) ? received.find(kAroundId, 1) : 0;
    if (end == 0 || end == std::string_view::npos) return {"", std::string(received)};
    return {std::string(received.substr(1, end - 1)), std::string(received.substr(end + 1))};
}

int MillisecondsUntil(Moment end) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    return left.count() > 0 ? static_cast<int>(left.count()) : 0;
}

bool WaitFor(const Descriptor& socket, short what, Moment end) {
    pollfd wanted{socket.Number(), what, 0};
    int ready = 0;
    do {
        ready = ::poll(&wanted, 1, MillisecondsUntil(end));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

// The instance that holds the lock may be about to listen, or be busy with others.
Descriptor Connect(const SocketPlace& place) {
    const Moment end = std::chrono::steady_clock::now() + kPatienceToConnect;
    while (true) {
        Descriptor socket = NewSocket();
        if (WithAddress(::connect, socket, AddressOf(place))) return socket;
        const bool may_come = errno == ENOENT || errno == ECONNREFUSED || errno == EAGAIN || errno == EINTR;
        if (!may_come || MillisecondsUntil(end) == 0) return {};
        std::this_thread::sleep_for(kBetweenTries);
    }
}

bool SendAll(const Descriptor& socket, std::string_view bytes, Moment end) {
    while (!bytes.empty()) {
        const ssize_t count = ::send(socket.Number(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR && (errno != EAGAIN || !WaitFor(socket, POLLOUT, end))) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool HandOffServer::Listen(const SocketPlace& place) {
    constexpr std::string_view kUnfinished = ".new";
    const std::string unfinished = place.name + std::string(kUnfinished);
    Descriptor socket = NewSocket();
    Descriptor events(::epoll_create1(EPOLL_CLOEXEC));
    // Made under another name, so that what has the right name always listens and is closed to others.
    ::unlinkat(place.folder, unfinished.c_str(), 0);
    if (!WithAddress(::bind, socket, AddressOf(place, kUnfinished)) ||
        ::fchmodat(place.folder, unfinished.c_str(), 0600, 0) != 0 ||
        ::listen(socket.Number(), kBacklog) != 0 ||
        ::renameat(place.folder, unfinished.c_str(), place.folder, place.name.c_str()) != 0 ||
        !Watch(events, socket)) {
        ::unlinkat(place.folder, unfinished.c_str(), 0);
        return false;
    }
    socket_ = std::move(socket);
    events_ = std::move(events);
    return true;
}

void HandOffServer::Close(const SocketPlace& place) {
    if (!IsListening()) return;
    ::unlinkat(place.folder, place.name.c_str(), 0);
    connections_.clear();
    complete_.clear();
    socket_.Close();
    events_.Close();
}

bool HandOffServer::IsOption(const Connection& connection) {
    return std::string_view(connection.received).substr(kLengthBytes).starts_with(kBeforeOption);
}

void HandOffServer::Serve(const Listeners& listeners) {
    if (!IsListening()) return;
    AcceptAll();
    ReadAll();
    while (true) {
        const auto next = std::find_if(complete_.begin(), complete_.end(), [&](const Connection& one) {
            return IsOption(one) ? listeners.options != nullptr : listeners.texts != nullptr;
        });
        if (next == complete_.end()) return;
        const Connection connection = std::move(*next);
        complete_.erase(next);
        if (IsOption(connection)) {
            AnswerOption(connection, *listeners.options);
        } else {
            Notify(connection, listeners);
        }
    }
}

void HandOffServer::Notify(const Connection& connection, const Listeners& listeners) {
    const Message message = MessageIn(std::string_view(connection.received).substr(kLengthBytes));
    if (listeners.take_id) listeners.take_id(message.startup_id);
    listeners.texts->OnBringToFront();
    listeners.texts->OnCommandText(message.text);
    listeners.texts->OnTrigger();
    ::send(connection.socket.Number(), &kProcessed, 1, MSG_NOSIGNAL);
}

void HandOffServer::AnswerOption(const Connection& connection, ports::OptionListener& options) {
    const ports::OptionAnswer answer =
        options.OnOption(std::string_view(connection.received).substr(kLengthBytes + 1));
    const std::string bytes =
        std::string{kProcessed, static_cast<char>('0' + answer.exit_code)} + answer.text;
    // A text of a few lines always has room in the connection.
    ::send(connection.socket.Number(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

void HandOffServer::AcceptAll() {
    while (true) {
        Descriptor socket(::accept4(socket_.Number(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (!socket.IsOpen()) return;
        if (!IsOfThisUser(socket) || !Watch(events_, socket)) continue;
        if (connections_.size() >= kMostConnections) connections_.pop_front();
        connections_.push_back({std::move(socket), {}});
    }
}

void HandOffServer::ReadAll() {
    for (auto connection = connections_.begin(); connection != connections_.end();) {
        const Progress progress = Read(*connection);
        if (progress == Progress::Waiting) {
            ++connection;
            continue;
        }
        if (progress == Progress::Complete) {
            ::epoll_ctl(events_.Number(), EPOLL_CTL_DEL, connection->socket.Number(), nullptr);
            complete_.push_back(std::move(*connection));
        }
        connection = connections_.erase(connection);
    }
}

HandOffServer::Progress HandOffServer::Read(Connection& connection) {
    std::string& received = connection.received;
    std::array<char, 16384> buffer{};
    while (true) {
        const ssize_t count = ::recv(connection.socket.Number(), buffer.data(), buffer.size(), 0);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0 && errno == EAGAIN) return Progress::Waiting;
        if (count <= 0) return Progress::Broken;
        received.append(buffer.data(), static_cast<std::size_t>(count));
        if (received.size() < kLengthBytes) continue;
        const std::size_t length = AnnouncedLength(received);
        if (length > kLongestText || received.size() > kLengthBytes + length) return Progress::Broken;
        if (received.size() == kLengthBytes + length) return Progress::Complete;
    }
}

bool IsSomeoneListening(const SocketPlace& place) {
    const Descriptor socket = NewSocket();
    return WithAddress(::connect, socket, AddressOf(place)) || errno == EAGAIN;
}

bool Deliver(const SocketPlace& place, std::string_view startup_id, std::string_view text) {
    const std::string message = MessageOf(startup_id, text);
    if (message.size() > HandOffServer::kLongestText) return false;
    const Descriptor socket = Connect(place);
    if (!socket.IsOpen() || !IsOfThisUser(socket)) return false;
    const Moment end = std::chrono::steady_clock::now() + kPatienceForAnswer;
    if (!SendAll(socket, Framed(message), end)) return false;
    // An instance that is still busy when the time is up has the text all the same.
    if (!WaitFor(socket, POLLIN, end)) return true;
    char answer = 0;
    return ::recv(socket.Number(), &answer, 1, 0) == 1;
}

std::optional<ports::OptionAnswer> AskOption(const SocketPlace& place, std::string_view option) {
    const Descriptor socket = NewSocket();
    if (!WithAddress(::connect, socket, AddressOf(place)) || !IsOfThisUser(socket)) return std::nullopt;
    const Moment end = std::chrono::steady_clock::now() + kPatienceForAnswer;
    if (!SendAll(socket, Framed(std::string(1, kBeforeOption).append(option)), end)) return std::nullopt;
    std::string answer;
    std::array<char, 4096> buffer{};
    while (WaitFor(socket, POLLIN, end)) {
        const ssize_t count = ::recv(socket.Number(), buffer.data(), buffer.size(), 0);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) break;
        answer.append(buffer.data(), static_cast<std::size_t>(count));
    }
    if (answer.size() < 2 || answer[0] != kProcessed) return std::nullopt;
    return ports::OptionAnswer{.exit_code = answer[1] - '0', .text = answer.substr(2)};
}

}  // namespace linux
