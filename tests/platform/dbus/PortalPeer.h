// The portal of a desktop: answers what is asked about contrast, and says when it changes.
#pragma once

#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>

#include "platform/dbus/BusBench.h"

namespace dbus_tests {

class PortalPeer final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    PortalPeer(const PrivateBus& bus, QVariant contrast) : peer_(bus), contrast_(std::move(contrast)) {
        peer_.Connection().registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                          QDBusConnection::ExportAllSlots);
        peer_.Own(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    void Change(const QString& space, const QString& key, const QVariant& value) {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                                         QStringLiteral("org.freedesktop.portal.Settings"),
                                                         QStringLiteral("SettingChanged"));
        signal << space << key << QVariant::fromValue(QDBusVariant(value));
        peer_.Connection().send(signal);
    }

public slots:
    // An old portal wraps its answer twice.
    QDBusVariant Read(const QString& space, const QString& key, const QDBusMessage& call) {
        if (space != QLatin1String("org.freedesktop.appearance") || key != QLatin1String("contrast") ||
            !contrast_.isValid()) {
            call.setDelayedReply(true);
            peer_.Connection().send(
                call.createErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"), key));
            return {};
        }
        return QDBusVariant(QVariant::fromValue(QDBusVariant(contrast_)));
    }

private:
    Peer peer_;
    QVariant contrast_;
};

}  // namespace dbus_tests
