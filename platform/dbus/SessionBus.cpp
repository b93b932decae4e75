#include "platform/dbus/SessionBus.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QFileInfo>
#include <algorithm>
#include <atomic>
#include <utility>

namespace dbus {
namespace {

/// How long an answer may take before it is given up.
constexpr int kAnswerMs = 2000;
/// How long the end waits for the bus to take the last words.
constexpr int kLastWordsMs = 500;

/// One of its own for every bus that is joined: Qt's shared connection is the toolkit's.
QString NextConnectionName() {
    static std::atomic<int> count{0};
    return QStringLiteral("brindlepost-%1").arg(++count);
}

/// Without these the bus library would start a bus of its own.
bool HasSessionBus() {
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return true;
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus"));
}

}  // namespace

QDBusMessage BusCall(const QString& method) {
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                          QStringLiteral("/org/freedesktop/DBus"),
                                          QStringLiteral("org.freedesktop.DBus"), method);
}

SessionBus::SessionBus(QString address) : address_(std::move(address)), connection_(QString()) {}

SessionBus::~SessionBus() {
    WaitForAnswers();
    // The bus reads in order: once it has answered this, it has the last words.
    if (has_told_ && IsJoined())
        connection_.call(BusCall(QStringLiteral("GetId")), QDBus::Block, kLastWordsMs);
    const QString name = connection_.name();
    connection_ = QDBusConnection(QString());
    if (!name.isEmpty()) QDBusConnection::disconnectFromBus(name);
}

void SessionBus::Join() {
    if (IsJoined()) return;
    if (!address_.isEmpty()) {
        connection_ = QDBusConnection::connectToBus(address_, NextConnectionName());
    } else if (HasSessionBus()) {
        connection_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, NextConnectionName());
    }
    if (!IsJoined()) return;
    for (const auto& work : std::exchange(when_joined_, {}))
        work();
}

void SessionBus::WhenJoined(std::function<void()> work) {
    if (IsJoined()) {
        work();
    } else {
        when_joined_.push_back(std::move(work));
    }
}

void SessionBus::Tell(const QDBusMessage& message) {
    if (!IsJoined()) return;
    connection_.send(message);
    has_told_ = true;
}

void SessionBus::Ask(const QDBusMessage& call, std::function<void(const QDBusMessage&)> answered) {
    if (!IsJoined()) return;
    auto* const watcher = new QDBusPendingCallWatcher(connection_.asyncCall(call, kAnswerMs));
    open_calls_.push_back(watcher);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [this, answered = std::move(answered)](QDBusPendingCallWatcher* done) {
                         std::erase(open_calls_, done);
                         done->deleteLater();
                         answered(done->reply());
                     });
}

// An answer may lead to more being asked and told: who listens, for instance, and then what.
void SessionBus::WaitForAnswers() {
    while (!open_calls_.empty()) {
        QDBusPendingCallWatcher* const oldest = open_calls_.front();
        oldest->waitForFinished();
        std::erase(open_calls_, oldest);
    }
}

}  // namespace dbus
