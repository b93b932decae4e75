#include "platform/dbus/SilentBus.h"

#include <poll.h>
#include <sys/socket.h>

#include <QFileInfo>

#include "platform/dbus/BusProbe.h"

namespace dbus {
namespace {

constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";
// Nobody is ever there.
constexpr const char* kNoBus = "unix:path=/dev/null";

bool Speaks(int socket, std::chrono::milliseconds patience) {
    pollfd wanted{.fd = socket, .events = POLLIN, .revents = 0};
    return poll(&wanted, 1, static_cast<int>(patience.count())) > 0;
}

}  // namespace

// Without these the bus library would start a bus of its own.
QString AddressOfDesktop() {
    QString address = qEnvironmentVariable(kAddress);
    if (!address.isEmpty()) return address;
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString socket = folder + QStringLiteral("/bus");
    return !folder.isEmpty() && QFileInfo::exists(socket) ? QStringLiteral("unix:path=") + socket : QString();
}

// A bus that has stopped takes connections until its queue is full; to be refused, or to be kept waiting for
// the connection itself, tells the two others apart.
QString LeaveSilentBus(std::chrono::milliseconds patience) {
    QString address = AddressOfDesktop();
    const QByteArray name = SocketNameOf(address);
    if (name.isEmpty()) return {};
    const BusSocket socket = BusSocket::To(name);
    if (socket.IsRefused()) return {};
    if (socket.IsConnected() && socket.SayHello() && Speaks(socket.Number(), patience)) return {};
    qputenv(kAddress, kNoBus);
    return address;
}

}  // namespace dbus
