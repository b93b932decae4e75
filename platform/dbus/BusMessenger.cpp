#include "platform/dbus/BusMessenger.h"

#include <QStringList>

namespace dbus {
namespace {

QDBusMessage CopyDataCall(const QString& window, const QString& window_class, const ports::CopyData& block) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(window, QStringLiteral("/") + window_class,
                                       window_class + QStringLiteral(".Window"), QStringLiteral("CopyData"));
    const QByteArray bytes(reinterpret_cast<const char*>(block.lpData.data()),
                           static_cast<qsizetype>(block.lpData.size()));
    call << block.dwData << block.cbData << bytes;
    call.setAutoStartService(false);
    return call;
}

}  // namespace

void BusMessenger::SendToWindows(std::string_view window_class, const ports::CopyData& block) {
    const QString wanted =
        QString::fromUtf8(window_class.data(), static_cast<qsizetype>(window_class.size()));
    bus_.Ask(BusCall(QStringLiteral("ListNames")), [this, wanted, block](const QDBusMessage& reply) {
        const QStringList names = reply.arguments().value(0).toStringList();
        // Names on a bus have a dot; what goes on without one is another class.
        for (const QString& name : names) {
            if (name.startsWith(wanted + QLatin1Char('.'))) bus_.Tell(CopyDataCall(name, wanted, block));
        }
    });
}

}  // namespace dbus
