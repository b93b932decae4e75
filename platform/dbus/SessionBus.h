// The session bus, over which programs of one desktop speak.
//
// A desktop may have none, and it may go away at any time; then every call here does nothing. Nothing waits
// for a program on the bus: what is sent is sent, and an answer comes later, as an event. Only the end waits,
// for a moment, so that the last words still go out.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <functional>
#include <vector>

class QDBusPendingCallWatcher;

namespace dbus {

class SessionBus final {
public:
    /// The desktop's own bus, or the one at `address`.
    explicit SessionBus(QString address = {});
    /// Leaves the bus.
    ~SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    /// Joins the bus if there is one; none is started.
    void Join();
    bool IsJoined() const { return connection_.isConnected(); }
    /// What `work` does as soon as the bus is joined, which may be never.
    void WhenJoined(std::function<void()> work);

    /// Sends a message without asking for a reply.
    void Tell(const QDBusMessage& message);
    /// Sends a call. `answered` gets the reply or the error, as an event.
    void Ask(const QDBusMessage& call, std::function<void(const QDBusMessage&)> answered);

    /// Waits until every call is answered, or has been given up after two seconds. A caller does this
    /// before it ends, since the answers come to it.
    void WaitForAnswers();

    QDBusConnection& Connection() { return connection_; }

private:
    QString address_;
    QDBusConnection connection_;
    std::vector<std::function<void()>> when_joined_;
    std::vector<QDBusPendingCallWatcher*> open_calls_;
    bool has_told_ = false;
};

/// A call of a method of the bus itself.
QDBusMessage BusCall(const QString& method);

}  // namespace dbus
