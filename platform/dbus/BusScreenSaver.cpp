#include "platform/dbus/BusScreenSaver.h"

#include <QDBusObjectPath>
#include <array>

namespace dbus {
namespace {

struct Way {
    const char* service;
    const char* path;
    const char* interface;
    bool is_portal;
};

constexpr std::array kWays = {
    Way{"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver", false},
    Way{"org.freedesktop.PowerManagement", "/org/freedesktop/PowerManagement/Inhibit",
        "org.freedesktop.PowerManagement.Inhibit", false},
    Way{"org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Inhibit",
        true},
};

/// The portal's flag for an idle session.
constexpr std::uint32_t kIdle = 8;

QString Program() {
    return QStringLiteral("Brindlepost");
}

QString Reason() {
    return QStringLiteral("A video plays");
}

QDBusMessage CallOf(const Way& way, const char* method) {
    QDBusMessage call = QDBusMessage::createMethodCall(QLatin1String(way.service), QLatin1String(way.path),
                                                       QLatin1String(way.interface), QLatin1String(method));
    call.setAutoStartService(way.is_portal);
    return call;
}

QDBusMessage InhibitCall(const Way& way) {
    QDBusMessage call = CallOf(way, "Inhibit");
    if (way.is_portal) {
        call << QString() << kIdle << QVariantMap{{QStringLiteral("reason"), Reason()}};
    } else {
        call << Program() << Reason();
    }
    return call;
}

QDBusMessage ReleaseCall(const Way& way, const QVariant& receipt) {
    if (!way.is_portal) return CallOf(way, "UnInhibit") << receipt;
    return QDBusMessage::createMethodCall(QLatin1String(way.service), receipt.value<QDBusObjectPath>().path(),
                                          QStringLiteral("org.freedesktop.portal.Request"),
                                          QStringLiteral("Close"));
}

}  // namespace

BusScreenSaver::BusScreenSaver(SessionBus& bus) : bus_(bus) {
    bus_.WhenJoined([this] {
        receipt_ = {};
        asking_ = false;
        if (wanted_) Ask(0);
    });
}

void BusScreenSaver::SetInhibited(bool inhibited) {
    if (inhibited == wanted_) return;
    wanted_ = inhibited;
    if (!wanted_) {
        Release();
    } else if (!asking_ && !receipt_.isValid()) {
        Ask(0);
    }
}

void BusScreenSaver::Ask(std::size_t way) {
    if (!bus_.IsJoined() || way == kWays.size()) return;
    asking_ = true;
    bus_.Ask(InhibitCall(kWays[way]), [this, way](const QDBusMessage& reply) { Take(way, reply); });
}

// The answer may come after the film was paused, or even after it went on again.
void BusScreenSaver::Take(std::size_t way, const QDBusMessage& reply) {
    asking_ = false;
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) {
        if (wanted_) Ask(way + 1);
        return;
    }
    receipt_ = reply.arguments().constFirst();
    held_by_ = way;
    if (!wanted_) Release();
}

void BusScreenSaver::Release() {
    if (!receipt_.isValid()) return;
    bus_.Tell(ReleaseCall(kWays[held_by_], receipt_));
    receipt_ = {};
}

}  // namespace dbus
