#include "platform/dbus/BusFileManager.h"

#include <QDBusError>
#include <QFile>
#include <QStringList>
#include <QUrl>
#include <utility>

namespace dbus {

void BusFileManager::Show(const std::string& file, std::function<void()> otherwise) {
    if (!bus_.IsJoined()) {
        otherwise();
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QUrl address = QUrl::fromLocalFile(QFile::decodeName(QByteArray::fromStdString(file)));
    call << QStringList{QString::fromLatin1(address.toEncoded())} << QString();
    bus_.Ask(call, [otherwise = std::move(otherwise)](const QDBusMessage& reply) {
        // No answer yet: it is on its way, and a second window would be one too many.
        const QDBusError error(reply);
        if (error.isValid() && error.type() != QDBusError::NoReply) otherwise();
    });
}

}  // namespace dbus
