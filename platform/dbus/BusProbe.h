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
#include <utility>

namespace dbus {

/// A line to a bus, on which nothing waits.
class BusSocket final {
public:
    BusSocket() = default;
    /// To a socket as SocketNameOf tells it.
    static BusSocket To(const QByteArray& socket_name);
    ~BusSocket();
    BusSocket(BusSocket&& other) noexcept : number_(std::exchange(other.number_, -1)), error_(other.error_) {}
    BusSocket& operator=(BusSocket&& other) noexcept {
        std::swap(number_, other.number_);
        std::swap(error_, other.error_);
        return *this;
    }

    bool IsConnected() const { return number_ >= 0 && error_ == 0; }
    /// Nobody is there, as opposed to one who takes no connections.
    bool IsRefused() const;
    /// The first words of the protocol. Whatever is said to them, the bus is awake.
    bool SayHello() const;
    int Number() const { return number_; }

private:
    int number_ = -1;
    int error_ = 0;  ///< of the connection
};

class BusProbe final : public QObject {
public:
    /// Asks the bus at a D-Bus address. `answered` is called once, as an event: with true when the bus spoke,
    /// or when the address is of a kind that cannot be asked; with false when nobody is there, or nothing
    /// came within `wait_ms`. Not called any more after the probe has ended.
    BusProbe(const QString& address, int wait_ms, std::function<void(bool)> answered);
    ~BusProbe() override;

private:
    void Listen();
    void Finish(bool answers);

    std::function<void(bool)> answered_;
    BusSocket socket_;
    std::unique_ptr<QSocketNotifier> heard_;
    QTimer limit_;
};

/// The name of the first unix socket of an address as the system takes it (a leading NUL byte for an abstract
/// one); empty when there is none.
QByteArray SocketNameOf(const QString& address);

}  // namespace dbus
