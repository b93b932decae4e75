#include "platform/dbus/BusProbe.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QUrl>
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <utility>

namespace dbus {

QByteArray SocketNameOf(const QString& address) {
    for (const QString& one : address.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        if (!one.startsWith(QLatin1String("unix:"))) continue;
        for (const QString& part : one.mid(5).split(QLatin1Char(','))) {
            QByteArray value = QByteArray::fromPercentEncoding(part.section(QLatin1Char('='), 1).toUtf8());
            if (part.startsWith(QLatin1String("path="))) return value;
            if (part.startsWith(QLatin1String("abstract="))) return QByteArray(1, '\0') + value;
        }
    }
    return {};
}

// A bus that has stopped takes connections until its queue is full, and then none.
BusSocket BusSocket::To(const QByteArray& socket_name) {
    BusSocket made;
    sockaddr_un where{};
    where.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(socket_name.size()) >= sizeof(where.sun_path)) return made;
    std::copy(socket_name.begin(), socket_name.end(), where.sun_path);
    const bool is_abstract = socket_name.front() == '\0';
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path)) +
                        static_cast<socklen_t>(socket_name.size()) + (is_abstract ? 0 : 1);
    made.number_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (made.number_ >= 0 && ::connect(made.number_, reinterpret_cast<const sockaddr*>(&where), length) != 0)
        made.error_ = errno;
    return made;
}

BusSocket::~BusSocket() {
    if (number_ >= 0) ::close(number_);
}

bool BusSocket::IsRefused() const {
    return number_ < 0 || (error_ != 0 && error_ != EAGAIN);
}

bool BusSocket::SayHello() const {
    QByteArray hello(1, '\0');
    hello += "AUTH EXTERNAL " + QByteArray::number(::getuid()).toHex() + "\r\n";
    return ::send(number_, hello.constData(), static_cast<std::size_t>(hello.size()), MSG_NOSIGNAL) > 0;
}

BusProbe::BusProbe(const QString& address, int wait_ms, std::function<void(bool)> answered)
    : answered_(std::move(answered)) {
    limit_.setSingleShot(true);
    const QByteArray name = SocketNameOf(address);
    const bool can_be_asked = !name.isEmpty();
    if (can_be_asked) socket_ = BusSocket::To(name);
    const bool is_waiting = socket_.IsConnected() && socket_.SayHello();
    QObject::connect(&limit_, &QTimer::timeout, this, [this, can_be_asked] { Finish(!can_be_asked); });
    if (is_waiting) Listen();
    limit_.start(is_waiting ? wait_ms : 0);
}

BusProbe::~BusProbe() {
    heard_.reset();
}

void BusProbe::Listen() {
    heard_ = std::make_unique<QSocketNotifier>(socket_.Number(), QSocketNotifier::Read);
    QObject::connect(heard_.get(), &QSocketNotifier::activated, this, [this] {
        char first = 0;
        Finish(::recv(socket_.Number(), &first, 1, 0) == 1);
    });
}

void BusProbe::Finish(bool answers) {
    limit_.stop();
    if (heard_) heard_->setEnabled(false);
    // The probe may end in the call.
    const std::function<void(bool)> answered = std::exchange(answered_, {});
    if (answered) answered(answers);
}

}  // namespace dbus
