#include "platform/dbus/BusBench.h"

#include <gtest/gtest.h>
#include <sys/types.h>
#include <csignal>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <utility>

namespace dbus_tests {
namespace {

QString Text(const char* text) {
    return QString::fromLatin1(text);
}

QString NextName() {
    static int count = 0;
    return QStringLiteral("bench-%1").arg(++count);
}

struct ServiceNames {
    const char* service;
    const char* path;
    const char* interface;
};

ServiceNames NamesOf(SaverService::Kind kind) {
    switch (kind) {
        case SaverService::Kind::ScreenSaver:
            return {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver",
                    "org.freedesktop.ScreenSaver"};
        case SaverService::Kind::PowerManagement:
            return {"org.freedesktop.PowerManagement", "/org/freedesktop/PowerManagement/Inhibit",
                    "org.freedesktop.PowerManagement.Inhibit"};
        default:
            return {"org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                    "org.freedesktop.portal.Inhibit"};
    }
}

}  // namespace

void NeedApplication() {
    static int count = 1;
    static char name[] = "bus_bench";
    static char* values[] = {name, nullptr};
    static const QCoreApplication application(count, values);
}

namespace {

bool WaitUpTo(int milliseconds, const std::function<bool()>& done) {
    const QDeadlineTimer end(milliseconds);
    while (!done()) {
        if (end.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
    }
    return true;
}

}  // namespace

bool WaitFor(const std::function<bool()>& done) {
    return WaitUpTo(5000, done);
}

bool WaitAWhile(const std::function<bool()>& done) {
    return WaitUpTo(250, done);
}

void JoinNow(dbus::SessionBus& session) {
    session.Join();
    EXPECT_TRUE(WaitFor([&session] { return session.IsJoined(); }));
}

PrivateBus::PrivateBus() {
    Start({});
}

PrivateBus::PrivateBus(const QString& address) {
    Start(address);
}

void PrivateBus::Start(const QString& address) {
    NeedApplication();
    QStringList options{Text("--session"), Text("--nofork"), Text("--print-address=1")};
    if (!address.isEmpty()) options.push_back(Text("--address=") + address);
    daemon_.start(Text("dbus-daemon"), options);
    EXPECT_TRUE(daemon_.waitForReadyRead(5000)) << "no message bus";
    address_ = QString::fromLatin1(daemon_.readLine()).trimmed();
}

PrivateBus::~PrivateBus() {
    Kill();
}

void PrivateBus::Kill() {
    daemon_.kill();
    daemon_.waitForFinished(5000);
}

void PrivateBus::Stop() {
    ::kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP);
}

void PrivateBus::GoOn() {
    ::kill(static_cast<pid_t>(daemon_.processId()), SIGCONT);
}

Peer::Peer(const PrivateBus& bus) : connection_(QDBusConnection::connectToBus(bus.Address(), NextName())) {
    EXPECT_TRUE(connection_.isConnected());
}

Peer::~Peer() {
    const QString name = connection_.name();
    connection_ = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
}

bool Peer::Own(const QString& name) {
    return connection_.registerService(name);
}

QDBusMessage Peer::Call(const QDBusMessage& call) {
    return connection_.call(call, QDBus::BlockWithGui, 5000);
}

QStringList Peer::Names() {
    return connection_.interface()->registeredServiceNames().value();
}

MessengerPeer::MessengerPeer(const PrivateBus& bus, const QString& name, const QString& window_class)
    : peer_(bus), name_(name) {
    EXPECT_TRUE(
        peer_.Connection().registerObject(Text("/") + window_class, this, QDBusConnection::ExportAllSlots));
    EXPECT_TRUE(peer_.Own(name));
}

void MessengerPeer::CopyData(uint dwData, uint cbData, const QByteArray& lpData, const QDBusMessage& call) {
    received_.push_back({dwData, cbData, {lpData.begin(), lpData.end()}});
    reply_wanted_ = call.isReplyRequired();
}

PlayerWatcher::PlayerWatcher(const PrivateBus& bus, QString player) : peer_(bus), player_(std::move(player)) {
    const QString path = Text("/org/mpris/MediaPlayer2");
    EXPECT_TRUE(peer_.Connection().connect(player_, path, Text("org.freedesktop.DBus.Properties"),
                                           Text("PropertiesChanged"), this,
                                           SLOT(PropertiesChanged(QString, QVariantMap, QStringList))));
    EXPECT_TRUE(peer_.Connection().connect(player_, path, Text("org.mpris.MediaPlayer2.Player"),
                                           Text("Seeked"), this, SLOT(Seeked(qlonglong))));
    EXPECT_TRUE(peer_.Connection().connect(player_, path, Text("org.mpris.MediaPlayer2.TrackList"),
                                           Text("TrackListReplaced"), this,
                                           SLOT(TrackListReplaced(QList<QDBusObjectPath>, QDBusObjectPath))));
}

QDBusMessage PlayerWatcher::Call(const QString& method, const QVariantList& arguments) {
    const QString interface = method.section(QLatin1Char('.'), 0, -2);
    QDBusMessage call = QDBusMessage::createMethodCall(
        player_, Text("/org/mpris/MediaPlayer2"),
        Text("org.mpris.MediaPlayer2") + (interface.isEmpty() ? QString() : Text(".") + interface),
        method.section(QLatin1Char('.'), -1));
    call.setArguments(arguments);
    return peer_.Call(call);
}

QVariantMap PlayerWatcher::All(const QString& interface) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        player_, Text("/org/mpris/MediaPlayer2"), Text("org.freedesktop.DBus.Properties"), Text("GetAll"));
    call << interface;
    return qdbus_cast<QVariantMap>(peer_.Call(call).arguments().value(0));
}

QVariant PlayerWatcher::Get(const QString& property) {
    return All(Text("org.mpris.MediaPlayer2.Player")).value(property);
}

QDBusMessage PlayerWatcher::Set(const QString& property, const QVariant& value) {
    QDBusMessage call = QDBusMessage::createMethodCall(player_, Text("/org/mpris/MediaPlayer2"),
                                                       Text("org.freedesktop.DBus.Properties"), Text("Set"));
    call << Text("org.mpris.MediaPlayer2.Player") << property << QVariant::fromValue(QDBusVariant(value));
    return peer_.Call(call);
}

void PlayerWatcher::Settle() {
    Get(Text("Position"));
    QCoreApplication::processEvents();
}

void PlayerWatcher::TrackListReplaced(const QList<QDBusObjectPath>& tracks, const QDBusObjectPath& current) {
    Lists.push_back(tracks.size());
    CurrentTrack = current.path();
}

void PlayerWatcher::PropertiesChanged(const QString& /*interface*/, const QVariantMap& changed,
                                      const QStringList& gone) {
    Outdated += gone;
    if (!changed.isEmpty()) News.push_back(changed);
}

void PlayerWatcher::Seeked(qlonglong position) {
    Jumps.push_back(position);
}

SaverService::SaverService(const PrivateBus& bus, Kind kind) : peer_(bus) {
    const ServiceNames names = NamesOf(kind);
    auto* const saver = new SaverObject(*this);
    objects_ = {saver};
    QObject* exported = saver;
    if (kind == Kind::Portal) objects_.push_back(exported = new PortalObject(*this));
    for (QObject* const object : objects_)
        object->moveToThread(&thread_);
    thread_.start();
    EXPECT_TRUE(Connection().registerObject(Text(names.path), Text(names.interface), exported,
                                            QDBusConnection::ExportAllSlots));
    EXPECT_TRUE(Connection().connect(Text("org.freedesktop.DBus"), Text("/org/freedesktop/DBus"),
                                     Text("org.freedesktop.DBus"), Text("NameOwnerChanged"), saver,
                                     SLOT(OnNameOwnerChanged(QString, QString, QString))));
    EXPECT_TRUE(peer_.Own(Text(names.service)));
}

SaverService::~SaverService() {
    thread_.quit();
    thread_.wait();
    for (QObject* const object : objects_)
        delete object;
}

std::size_t SaverService::Promises() {
    const std::lock_guard lock(mutex_);
    return promises_.size();
}

std::vector<std::string> SaverService::Calls() {
    const std::lock_guard lock(mutex_);
    return calls_;
}

uint SaverService::Take(const QString& owner, const std::string& what) {
    const std::lock_guard lock(mutex_);
    calls_.push_back("Inhibit " + what);
    promises_[++last_] = owner;
    return last_;
}

void SaverService::Release(uint cookie) {
    const std::lock_guard lock(mutex_);
    calls_.push_back("UnInhibit " + std::to_string(cookie));
    promises_.erase(cookie);
}

void SaverService::ForgetOwner(const QString& owner) {
    const std::lock_guard lock(mutex_);
    std::erase_if(promises_, [&owner](const auto& promise) { return promise.second == owner; });
}

uint SaverObject::Inhibit(const QString& program, const QString& reason, const QDBusMessage& call) {
    if (service_.Refuses()) {
        call.setDelayedReply(true);
        service_.Connection().send(call.createErrorReply(QDBusError::AccessDenied, Text("No.")));
        return 0;
    }
    return service_.Take(call.service(), (program + Text(": ") + reason).toStdString());
}

void SaverObject::UnInhibit(uint cookie) {
    service_.Release(cookie);
}

void SaverObject::OnNameOwnerChanged(const QString& name, const QString& /*before*/, const QString& now) {
    if (now.isEmpty()) service_.ForgetOwner(name);
}

QDBusObjectPath PortalObject::Inhibit(const QString& window, uint flags, const QVariantMap& options,
                                      const QDBusMessage& call) {
    const uint cookie =
        service_.Take(call.service(), "'" + window.toStdString() + "' " + std::to_string(flags) + ": " +
                                          options.value(Text("reason")).toString().toStdString());
    auto* const request = new PortalRequest(service_, cookie);
    request->setParent(this);
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop/request/r%1").arg(cookie);
    service_.Connection().registerObject(path, request, QDBusConnection::ExportAllSlots);
    return QDBusObjectPath(path);
}

NoticePeer::NoticePeer(const PrivateBus& bus, QStringList capabilities)
    : peer_(bus), capabilities_(std::move(capabilities)) {
    EXPECT_TRUE(peer_.Connection().registerObject(Text("/org/freedesktop/Notifications"), this,
                                                  QDBusConnection::ExportAllSlots));
    EXPECT_TRUE(peer_.Own(Text("org.freedesktop.Notifications")));
}

uint NoticePeer::Notify(const QString& program, uint /*replaced*/, const QString& /*icon*/,
                        const QString& title, const QString& words, const QStringList& /*actions*/,
                        const QVariantMap& /*hints*/, int /*time*/) {
    Heard.push_back((program + Text("|") + title + Text("|") + words).toStdString());
    Answered = true;
    return ++last_;
}

void NoticePeer::CloseNotification(uint id) {
    Heard.push_back("close " + std::to_string(id));
}

void NoticePeer::Click(uint id) {
    Signal("ActionInvoked", {id, Text("default")});
}

void NoticePeer::End(uint id) {
    Signal("NotificationClosed", {id, 2u});
}

void NoticePeer::Signal(const char* name, const QVariantList& arguments) {
    QDBusMessage signal = QDBusMessage::createSignal(Text("/org/freedesktop/Notifications"),
                                                     Text("org.freedesktop.Notifications"), Text(name));
    signal.setArguments(arguments);
    peer_.Connection().send(signal);
}

}  // namespace dbus_tests
