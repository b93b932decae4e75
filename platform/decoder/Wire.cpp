#include "platform/decoder/Wire.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace decoder {
namespace {

struct Head {
    std::uint32_t serial = 0;
    std::int32_t error = 0;
    std::uint32_t text_size = 0;
};

/// Where the one descriptor of a message travels.
struct Freight {
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> space{};
};

ssize_t ReceiveOnce(int socket, msghdr& message) {
    ssize_t size = -1;
    do
        size = recvmsg(socket, &message, MSG_CMSG_CLOEXEC);
    while (size < 0 && errno == EINTR);
    return size;
}

}  // namespace

bool Send(int socket, const Message& message) {
    const Head head{message.serial, message.error, static_cast<std::uint32_t>(message.text.size())};
    std::string bytes(reinterpret_cast<const char*>(&head), sizeof head);
    bytes += message.text;
    bytes += message.path;
    if (bytes.size() > kLongestMessage) return false;
    ssize_t sent = -1;
    do
        sent = send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    while (sent < 0 && errno == EINTR);
    return sent == static_cast<ssize_t>(bytes.size());
}

Arrival Receive(int socket, Message& message, std::chrono::milliseconds patience) {
    pollfd waited{.fd = socket, .events = POLLIN, .revents = 0};
    const int ready = poll(&waited, 1, static_cast<int>(patience.count()));
    if (ready < 0) return errno == EINTR ? Arrival::TooLate : Arrival::Gone;
    if (ready == 0) return Arrival::TooLate;
    std::array<char, kLongestMessage> bytes;
    ssize_t size = -1;
    do
        size = recv(socket, bytes.data(), bytes.size(), 0);
    while (size < 0 && errno == EINTR);
    Head head;
    if (size < static_cast<ssize_t>(sizeof head)) return Arrival::Gone;
    std::memcpy(&head, bytes.data(), sizeof head);
    const std::string_view rest(bytes.data() + sizeof head, static_cast<std::size_t>(size) - sizeof head);
    if (head.text_size > rest.size()) return Arrival::Gone;
    message = {.serial = head.serial,
               .error = head.error,
               .text = std::string(rest.substr(0, head.text_size)),
               .path = std::string(rest.substr(head.text_size))};
    return Arrival::Message;
}

bool SendHello(int socket, const Hello& hello) {
    std::string text = "h" + hello.missing;
    iovec piece{.iov_base = text.data(), .iov_len = text.size()};
    Freight freight;
    msghdr message{};
    message.msg_iov = &piece;
    message.msg_iovlen = 1;
    if (hello.requests.IsOpen()) {
        message.msg_control = freight.space.data();
        message.msg_controllen = freight.space.size();
        cmsghdr* const head = CMSG_FIRSTHDR(&message);
        head->cmsg_level = SOL_SOCKET;
        head->cmsg_type = SCM_RIGHTS;
        head->cmsg_len = CMSG_LEN(sizeof(int));
        const int number = hello.requests.Number();
        std::memcpy(CMSG_DATA(head), &number, sizeof number);
    }
    return sendmsg(socket, &message, MSG_NOSIGNAL) == static_cast<ssize_t>(text.size());
}

bool ReceiveHello(int socket, Hello& hello) {
    std::array<char, 1024> text;
    iovec piece{.iov_base = text.data(), .iov_len = text.size()};
    Freight freight;
    msghdr message{};
    message.msg_iov = &piece;
    message.msg_iovlen = 1;
    message.msg_control = freight.space.data();
    message.msg_controllen = freight.space.size();
    const ssize_t size = ReceiveOnce(socket, message);
    if (size <= 0) return false;
    hello.missing.assign(text.data() + 1, static_cast<std::size_t>(size) - 1);
    const cmsghdr* const head = CMSG_FIRSTHDR(&message);
    if (head == nullptr || head->cmsg_level != SOL_SOCKET || head->cmsg_type != SCM_RIGHTS) return true;
    int number = -1;
    std::memcpy(&number, CMSG_DATA(head), sizeof number);
    hello.requests = linux::Descriptor(number);
    return true;
}

SocketPair SocketPair::Make() {
    std::array<int, 2> ends{-1, -1};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) return {};
    return {linux::Descriptor(ends[0]), linux::Descriptor(ends[1])};
}

}  // namespace decoder
