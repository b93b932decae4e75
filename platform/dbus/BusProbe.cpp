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

BusProbe::BusProbe(const QString& address, int wait_ms, std::function<void(bool)> answered)
    : answered_(std::move(answered)) {
    limit_.setSingleShot(true);
    const QByteArray name = SocketNameOf(address);
    const bool can_be_asked = !name.isEmpty();
    const bool is_waiting = can_be_asked && Connect(name);
    QObject::connect(&limit_, &QTimer::timeout, this, [this, can_be_asked] { Finish(!can_be_asked); });
    if (is_waiting) SayHello();
    limit_.start(is_waiting ? wait_ms : 0);
}

BusProbe::~BusProbe() {
    heard_.reset();
    if (socket_ >= 0) ::close(socket_);
}

// A bus that has stopped takes connections until its queue is full, and then none.
bool BusProbe::Connect(const QByteArray& socket_name) {
    sockaddr_un where{};
    where.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(socket_name.size()) >= sizeof(where.sun_path)) return false;
    std::copy(socket_name.begin(), socket_name.end(), where.sun_path);
    const bool is_abstract = socket_name.front() == '\0';
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path)) +
                        static_cast<socklen_t>(socket_name.size()) + (is_abstract ? 0 : 1);
    socket_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    return socket_ >= 0 && ::connect(socket_, reinterpret_cast<const sockaddr*>(&where), length) == 0;
}

// Whatever is said to that, the bus is awake.
void BusProbe::SayHello() {
    QByteArray hello(1, '\0');
    hello += "AUTH EXTERNAL " + QByteArray::number(::getuid()).toHex() + "\r\n";
    static_cast<void>(
        ::send(socket_, hello.constData(), static_cast<std::size_t>(hello.size()), MSG_NOSIGNAL));
    heard_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
    QObject::connect(heard_.get(), &QSocketNotifier::activated, this, [this] {
        char first = 0;
        Finish(::recv(socket_, &first, 1, 0) == 1);
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
