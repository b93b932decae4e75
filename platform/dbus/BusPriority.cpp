#include "platform/dbus/BusPriority.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QVariant>

namespace dbus {
namespace {

constexpr quint32 kClass = 1;
// The service grants no more than 15 levels by default.
constexpr qint32 kNice = -11;

void Ask(const char* method, pid_t process, pid_t thread, const QVariant& level) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.RealtimeKit1"), QStringLiteral("/org/freedesktop/RealtimeKit1"),
        QStringLiteral("org.freedesktop.RealtimeKit1"), QLatin1String(method));
    call << static_cast<quint64>(process) << static_cast<quint64>(thread) << level;
    // An answer that is not expected is written into the system's log, so each is expected, and dropped.
    QDBusConnection::systemBus().asyncCall(call);
}

}  // namespace

// The first is for a service that refuses the second.
void RaiseThread(pid_t process, pid_t thread) {
    Ask("MakeThreadHighPriorityWithPID", process, thread, kNice);
    Ask("MakeThreadRealtimeWithPID", process, thread, kClass);
}

}  // namespace dbus
