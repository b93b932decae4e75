// Asks whether a bus answers, without waiting for it.
//
// Why: the bus library waits for ever for a bus that takes a connection and says nothing. So the first words
// of the protocol are exchanged here, as events, and the library joins only a bus that has just spoken.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>

namespace dbus {

class BusProbe final : public QObject {
public:
    /// Asks the bus at a D-Bus address. `answered` is called once, as an event: with true when the bus spoke,
    /// or when the address is of a kind that cannot be asked; with false when nobody is there, or nothing
    /// came within `wait_ms`. Not called any more after the probe has ended.
    BusProbe(const QString& address, int wait_ms, std::function<void(bool)> answered);
    ~BusProbe() override;

private:
    bool Connect(const QByteArray& socket_name);
    void SayHello();
    void Finish(bool answers);

    std::function<void(bool)> answered_;
    int socket_ = -1;
    std::unique_ptr<QSocketNotifier> heard_;
    QTimer limit_;
};

/// The name of the first unix socket of an address as the system takes it (a leading NUL byte for an abstract
/// one); empty when there is none.
QByteArray SocketNameOf(const QString& address);

}  // namespace dbus
