// The session bus, over which programs of one desktop speak.
//
// A desktop may have none, and it may go away at any time; then every call here does nothing. A bus that went
// away, or does not answer, is looked for again from time to time, and joined when it is there. Nothing waits
// for the bus or for a program on it: what is sent is sent, and an answer comes later, as an event. Only the
// end waits, for a moment, so that the last words still go out.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/dbus/BusProbe.h"

class QDBusPendingCallWatcher;

namespace dbus {

/// How long a bus may take to say its first word, and when it is looked for again: first after `first_ms`,
/// then after twice as long each time, up to `longest_ms`.
struct BusPatience {
    int answer_ms = 5000;
    int first_ms = 1000;
    int longest_ms = 60'000;
};

class SessionBus final : public QObject {
    Q_OBJECT

public:
    /// The desktop's own bus, or the one at `address`.
    explicit SessionBus(QString address = {}, BusPatience patience = {});
    /// Leaves the bus.
    ~SessionBus() override;
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    /// Begins to look for the bus, which is joined in an event; none is started.
    void Join();
    bool IsJoined() const { return connection_.isConnected(); }
    /// What `work` does each time that the bus is joined, and at once if it is; it may never be.
    void WhenJoined(std::function<void()> work);

    /// Sends a message without asking for a reply.
    void Tell(const QDBusMessage& message);
    /// Sends a call. `answered` gets the reply or the error, as an event.
    void Ask(const QDBusMessage& call, std::function<void(const QDBusMessage&)> answered);

    /// Waits until every call is answered, or has been given up after two seconds. A caller does this
    /// before it ends, since the answers come to it.
    void WaitForAnswers();

    QDBusConnection& Connection() { return connection_; }

private slots:
    void OnGone();

private:
    void OnProbed(bool answers);
    void Connect();
    void Leave();
    void LookAgainLater();

    QString address_;
    BusPatience patience_;
    QDBusConnection connection_;
    std::vector<std::function<void()>> when_joined_;
    std::vector<QDBusPendingCallWatcher*> open_calls_;
    std::unique_ptr<BusProbe> probe_;
    QTimer again_;
    int wait_ms_ = 0;
    bool has_told_ = false;
};

/// A call of a method of the bus itself.
QDBusMessage BusCall(const QString& method);

}  // namespace dbus
