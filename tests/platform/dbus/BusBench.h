// What the tests of the bus share: a bus of their own, and who lives on it.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QThread>
#include <QVariantMap>
#include <atomic>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "platform/dbus/SessionBus.h"
#include "ports/Messenger.h"

namespace dbus_tests {

/// Qt wants one before anything on the bus is heard; a private bus makes it as well.
void NeedApplication();

/// Runs events until `done` says so; false when it has not within five seconds.
bool WaitFor(const std::function<bool()>& done);

/// Runs events for a quarter of a second, or until `done` says so; what it says at the end.
bool WaitAWhile(const std::function<bool()>& done);

/// Joins the bus and waits for it.
void JoinNow(dbus::SessionBus& session);

/// A message bus that nobody else knows; it ends with the test.
class PrivateBus final {
public:
    PrivateBus();
    /// At an address of its own: a bus that comes back is at the same one.
    explicit PrivateBus(const QString& address);
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    const QString& Address() const { return address_; }
    /// The bus dies.
    void Kill();
    /// The bus takes connections and says nothing, or goes on.
    void Stop();
    void GoOn();

private:
    void Start(const QString& address);

    QProcess daemon_;
    QString address_;
};

/// A program on the bus.
class Peer {
public:
    explicit Peer(const PrivateBus& bus);
    ~Peer();
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    QDBusConnection& Connection() { return connection_; }
    bool Own(const QString& name);
    /// Calls and waits for the answer, running events meanwhile.
    QDBusMessage Call(const QDBusMessage& call);
    QStringList Names();

private:
    QDBusConnection connection_;
};

/// A messenger: notes every block that its window gets.
class MessengerPeer final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "MsnMsgrUIManager.Window")

public:
    MessengerPeer(const PrivateBus& bus, const QString& name, const QString& window_class);

    const std::vector<ports::CopyData>& Received() const { return received_; }
    /// What it is called, for a message straight to it.
    const QString& Name() const { return name_; }
    bool WasReplyWanted() const { return reply_wanted_; }

public slots:
    void CopyData(uint dwData, uint cbData, const QByteArray& lpData, const QDBusMessage& call);

private:
    Peer peer_;
    QString name_;
    std::vector<ports::CopyData> received_;
    bool reply_wanted_ = false;
};

/// Watches the media player of a bus, as a desktop's player controls do.
class PlayerWatcher final : public QObject {
    Q_OBJECT

public:
    PlayerWatcher(const PrivateBus& bus, QString player);

    /// A method of org.mpris.MediaPlayer2, or with "Player." or "TrackList." before it of that interface.
    QDBusMessage Call(const QString& method, const QVariantList& arguments = {});
    QVariantMap All(const QString& interface);
    QVariant Get(const QString& property);
    QDBusMessage Set(const QString& property, const QVariant& value);

    /// Lets what was told so far arrive.
    void Settle();
    std::vector<QVariantMap> News;
    std::vector<qlonglong> Jumps;
    /// How long the lists of tracks were that were told, and which of the last one plays.
    std::vector<qsizetype> Lists;
    QString CurrentTrack;
    /// Properties that were told to be old.
    QStringList Outdated;

    Peer& Itself() { return peer_; }

public slots:
    void PropertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList& gone);
    void Seeked(qlonglong position);
    void TrackListReplaced(const QList<QDBusObjectPath>& tracks, const QDBusObjectPath& current);

private:
    Peer peer_;
    QString player_;
};

/// A screen saver's service, on a thread of its own so that it answers whoever waits for it. Promises end
/// with the connection that they were made to.
class SaverService : public QObject {
    Q_OBJECT

public:
    enum class Kind { ScreenSaver, PowerManagement, Portal };
    SaverService(const PrivateBus& bus, Kind kind);
    ~SaverService() override;

    std::size_t Promises();
    /// "Inhibit Brindlepost: A video plays", "UnInhibit 1", ...
    std::vector<std::string> Calls();
    /// Refuses everything.
    void Refuse() { refuses_ = true; }

    // Of the services' objects.
    uint Take(const QString& owner, const std::string& what);
    void Release(uint cookie);
    void ForgetOwner(const QString& owner);
    bool Refuses() const { return refuses_; }
    QDBusConnection& Connection() { return peer_.Connection(); }

private:
    Peer peer_;
    QThread thread_;
    std::vector<QObject*> objects_;
    std::mutex mutex_;
    std::map<uint, QString> promises_;
    std::vector<std::string> calls_;
    uint last_ = 0;
    std::atomic<bool> refuses_ = false;
};

/// The object of the screen saver's and the power manager's service.
class SaverObject final : public QObject {
    Q_OBJECT

public:
    explicit SaverObject(SaverService& service) : service_(service) {}

public slots:
    uint Inhibit(const QString& program, const QString& reason, const QDBusMessage& call);
    void UnInhibit(uint cookie);
    void OnNameOwnerChanged(const QString& name, const QString& before, const QString& now);

private:
    SaverService& service_;
};

/// The object of the desktop portal's service.
class PortalObject final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")

public:
    explicit PortalObject(SaverService& service) : service_(service) {}

public slots:
    QDBusObjectPath Inhibit(const QString& window, uint flags, const QVariantMap& options,
                            const QDBusMessage& call);

private:
    SaverService& service_;
};

/// A promise of the portal.
class PortalRequest final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    PortalRequest(SaverService& service, uint cookie) : service_(service), cookie_(cookie) {}

public slots:
    void Close() { service_.Release(cookie_); }

private:
    SaverService& service_;
    uint cookie_;
};

/// A desktop's service for notifications; numbers them from 1.
class NoticePeer final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    NoticePeer(const PrivateBus& bus, QStringList capabilities);

    void Click(uint id);
    void End(uint id);
    /// "Brindlepost|title|words", "close 1".
    std::vector<std::string> Heard;
    bool Answered = false;

public slots:
    QStringList GetCapabilities() const { return capabilities_; }
    uint Notify(const QString& program, uint replaced, const QString& icon, const QString& title,
                const QString& words, const QStringList& actions, const QVariantMap& hints, int time);
    void CloseNotification(uint id);

private:
    void Signal(const char* name, const QVariantList& arguments);

    Peer peer_;
    QStringList capabilities_;
    uint last_ = 0;
};

}  // namespace dbus_tests
