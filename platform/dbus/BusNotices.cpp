#include "platform/dbus/BusNotices.h"

#include <utility>

namespace dbus {
namespace {

constexpr const char* kService = "org.freedesktop.Notifications";
constexpr const char* kPath = "/org/freedesktop/Notifications";
constexpr const char* kClick = "default";
constexpr int kDesktopsOwnTime = -1;

QDBusMessage CallOf(const char* method) {
    return QDBusMessage::createMethodCall(QLatin1String(kService), QLatin1String(kPath),
                                          QLatin1String(kService), QLatin1String(method));
}

bool TakesMarkup(const QDBusMessage& capabilities) {
    return capabilities.type() == QDBusMessage::ReplyMessage && !capabilities.arguments().isEmpty() &&
           capabilities.arguments().constFirst().toStringList().contains(QLatin1String("body-markup"));
}

}  // namespace

BusNotices::BusNotices(SessionBus& bus) : bus_(bus) {
    bus_.WhenJoined([this] {
        // What an earlier bus showed is gone with it.
        while (!shown_.empty())
            OnGone(shown_.begin()->first);
        bus_.Connection().connect(QLatin1String(kService), QLatin1String(kPath), QLatin1String(kService),
                                  QStringLiteral("ActionInvoked"), this, SLOT(ActionInvoked(uint, QString)));
        bus_.Connection().connect(QLatin1String(kService), QLatin1String(kPath), QLatin1String(kService),
                                  QStringLiteral("NotificationClosed"), this,
                                  SLOT(NotificationClosed(uint, uint)));
    });
}

BusNotices::~BusNotices() {
    bus_.WaitForAnswers();
    while (!shown_.empty())
        Close(shown_.begin()->first);
}

int BusNotices::Show(ports::Notice notice) {
    if (!bus_.IsJoined()) return 0;
    const int ticket = ++last_;
    shown_[ticket].notice = std::move(notice);
    bus_.Ask(CallOf("GetCapabilities"),
             [this, ticket](const QDBusMessage& reply) { Send(ticket, TakesMarkup(reply)); });
    return ticket;
}

void BusNotices::Send(int ticket, bool takes_markup) {
    const auto found = shown_.find(ticket);
    if (found == shown_.end()) return;
    const QString words = QString::fromStdString(found->second.notice.words);
    QDBusMessage call = CallOf("Notify");
    call << QStringLiteral("Brindlepost") << 0u << QString()
         << QString::fromStdString(found->second.notice.title)
         << (takes_markup ? words.toHtmlEscaped() : words)
         << QStringList{QLatin1String(kClick), QStringLiteral("Show")} << QVariantMap() << kDesktopsOwnTime;
    bus_.Ask(call, [this, ticket](const QDBusMessage& reply) { OnAnswer(ticket, reply); });
}

// By now it may have been closed again.
void BusNotices::OnAnswer(int ticket, const QDBusMessage& reply) {
    const bool is_shown = reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty();
    const uint id = is_shown ? reply.arguments().constFirst().toUInt() : 0;
    const auto found = shown_.find(ticket);
    if (found == shown_.end()) {
        if (id != 0) bus_.Tell(CallOf("CloseNotification") << id);
    } else if (id != 0) {
        found->second.id = id;
    } else {
        OnGone(ticket);
    }
}

void BusNotices::Close(int ticket) {
    const auto found = shown_.find(ticket);
    if (found == shown_.end()) return;
    const uint id = found->second.id;
    shown_.erase(found);
    if (id != 0) bus_.Tell(CallOf("CloseNotification") << id);
}

void BusNotices::OnGone(int ticket) {
    const auto found = shown_.find(ticket);
    if (found == shown_.end()) return;
    const ports::Notice notice = std::move(found->second.notice);
    shown_.erase(found);
    if (notice.closed) notice.closed();
}

int BusNotices::TicketOf(uint id) const {
    for (const auto& [ticket, shown] : shown_) {
        if (shown.id == id && id != 0) return ticket;
    }
    return 0;
}

void BusNotices::ActionInvoked(uint id, const QString& action) {
    const auto found = shown_.find(TicketOf(id));
    if (found == shown_.end() || action != QLatin1String(kClick)) return;
    const std::function<void()> clicked = found->second.notice.clicked;
    if (clicked) clicked();
}

void BusNotices::NotificationClosed(uint id, uint /*reason*/) {
    OnGone(TicketOf(id));
}

}  // namespace dbus
