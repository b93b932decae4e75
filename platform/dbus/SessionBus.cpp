#include "platform/dbus/SessionBus.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <algorithm>
#include <atomic>
#include <utility>

#include "platform/dbus/SilentBus.h"

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

}  // namespace

QDBusMessage BusCall(const QString& method) {
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                          QStringLiteral("/org/freedesktop/DBus"),
                                          QStringLiteral("org.freedesktop.DBus"), method);
}

SessionBus::SessionBus(QString address, BusPatience patience)
    : address_(std::move(address)), patience_(patience), connection_(QString()), wait_ms_(patience.first_ms) {
    again_.setSingleShot(true);
    QObject::connect(&again_, &QTimer::timeout, this, &SessionBus::Join);
}

SessionBus::~SessionBus() {
    WaitForAnswers();
    // The bus reads in order: once it has answered this, it has the last words.
    if (has_told_ && IsJoined())
        connection_.call(BusCall(QStringLiteral("GetId")), QDBus::Block, kLastWordsMs);
    Leave();
}

void SessionBus::Join() {
    if (IsJoined() || probe_) return;
    const QString address = address_.isEmpty() ? AddressOfDesktop() : address_;
    if (address.isEmpty()) return;
    probe_ =
        std::make_unique<BusProbe>(address, patience_.answer_ms, [this](bool answers) { OnProbed(answers); });
}

// The probe is the caller.
void SessionBus::OnProbed(bool answers) {
    probe_.release()->deleteLater();
    if (answers && !IsJoined()) Connect();
    if (IsJoined()) {
        wait_ms_ = patience_.first_ms;
        for (std::size_t i = 0; i < when_joined_.size(); ++i)
            when_joined_[i]();
    } else {
        LookAgainLater();
    }
}

void SessionBus::Connect() {
    Leave();
    const QString name = NextConnectionName();
    connection_ = address_.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                                     : QDBusConnection::connectToBus(address_, name);
    connection_.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                        SLOT(OnGone()));
}

void SessionBus::Leave() {
    const QString name = connection_.name();
    connection_ = QDBusConnection(QString());
    if (!name.isEmpty()) QDBusConnection::disconnectFromBus(name);
}

void SessionBus::OnGone() {
    if (!IsJoined()) LookAgainLater();
}

void SessionBus::LookAgainLater() {
    if (again_.isActive()) return;
    again_.start(wait_ms_);
    wait_ms_ = std::min(2 * wait_ms_, patience_.longest_ms);
}

void SessionBus::WhenJoined(std::function<void()> work) {
    when_joined_.push_back(std::move(work));
    if (IsJoined()) when_joined_.back()();
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
