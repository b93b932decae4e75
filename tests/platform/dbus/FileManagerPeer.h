// A file manager of the desktop: notes what it is to show.
#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QStringList>

#include "platform/dbus/BusBench.h"

namespace dbus_tests {

class FileManagerPeer final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    explicit FileManagerPeer(const PrivateBus& bus) : peer_(bus) {
        peer_.Connection().registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                                          QDBusConnection::ExportAllSlots);
        peer_.Own(QStringLiteral("org.freedesktop.FileManager1"));
    }

    QStringList Shown;
    bool Refuses = false;
    /// It takes the call and never answers.
    bool Sleeps = false;

public slots:
    void ShowItems(const QStringList& files, const QString& /*startup_id*/, const QDBusMessage& call) {
        call.setDelayedReply(Refuses || Sleeps);
        if (Refuses) {
            peer_.Connection().send(call.createErrorReply(QDBusError::AccessDenied, QStringLiteral("no")));
        } else {
            Shown += files;
        }
    }

private:
    Peer peer_;
};

}  // namespace dbus_tests
