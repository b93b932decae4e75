#include "platform/dbus/BusAppearance.h"

namespace dbus {
namespace {

constexpr const char* kPortal = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kSettings = "org.freedesktop.portal.Settings";
constexpr const char* kBus = "org.freedesktop.DBus";
constexpr const char* kSpace = "org.freedesktop.appearance";
constexpr const char* kContrast = "contrast";
/// 0 is no wish; whatever is not defined yet counts as none.
constexpr uint kHigher = 1;

}  // namespace

// Signals are heard from any sender: a name as the sender would be looked up first, and that waits. The
// slot's types are looked up by name, and one that nothing has used yet is not found.
BusAppearance::BusAppearance(SessionBus& bus) : bus_(bus) {
    qRegisterMetaType<QDBusVariant>();
    bus_.WhenJoined([this] {
        bus_.Connection().connect(QString(), QLatin1String(kPath), QLatin1String(kSettings),
                                  QStringLiteral("SettingChanged"), this,
                                  SLOT(OnSetting(QString, QString, QDBusVariant)));
        bus_.Connection().connect(QLatin1String(kBus), QStringLiteral("/org/freedesktop/DBus"),
                                  QLatin1String(kBus), QStringLiteral("NameOwnerChanged"),
                                  {QLatin1String(kPortal)}, QStringLiteral("sss"), this,
                                  SLOT(OnOwner(QString, QString, QString)));
        Ask();
    });
}

void BusAppearance::Ask() {
    QDBusMessage call = QDBusMessage::createMethodCall(QLatin1String(kPortal), QLatin1String(kPath),
                                                       QLatin1String(kSettings), QStringLiteral("Read"));
    call << QLatin1String(kSpace) << QLatin1String(kContrast);
    call.setAutoStartService(false);
    bus_.Ask(call, [this](const QDBusMessage& reply) {
        if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
            Take(reply.arguments().constFirst());
    });
}

// The answer is a variant within a variant.
void BusAppearance::Take(const QVariant& value) {
    QVariant inner = value;
    while (inner.userType() == qMetaTypeId<QDBusVariant>())
        inner = inner.value<QDBusVariant>().variant();
    if (inner.userType() == QMetaType::UInt && OnContrast) OnContrast(inner.toUInt() == kHigher);
}

void BusAppearance::OnOwner(const QString& /*name*/, const QString& /*before*/, const QString& now) {
    if (!now.isEmpty()) Ask();
}

void BusAppearance::OnSetting(const QString& space, const QString& key, const QDBusVariant& value) {
    if (space == QLatin1String(kSpace) && key == QLatin1String(kContrast)) Take(value.variant());
}

}  // namespace dbus
