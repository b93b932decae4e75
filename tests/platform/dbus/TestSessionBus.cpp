#include "platform/dbus/SessionBus.h"

#include <gtest/gtest.h>

#include "platform/dbus/BusBench.h"

namespace {

TEST(SessionBus, WorkThatWaitsForTheBusIsDoneWhenItIsJoined) {
    dbus_tests::PrivateBus bus;
    dbus::SessionBus session(bus.Address());
    int done = 0;
    session.WhenJoined([&done] { ++done; });
    EXPECT_EQ(done, 0);

    session.Join();
    session.Join();

    EXPECT_EQ(done, 1);
    session.WhenJoined([&done] { ++done; });
    EXPECT_EQ(done, 2);
}

TEST(SessionBus, AnAnswerComesAsAnEvent) {
    dbus_tests::PrivateBus bus;
    dbus::SessionBus session(bus.Address());
    session.Join();
    QStringList names;

    session.Ask(dbus::BusCall(QStringLiteral("ListNames")),
                [&names](const QDBusMessage& reply) { names = reply.arguments().value(0).toStringList(); });

    EXPECT_TRUE(names.isEmpty());
    EXPECT_TRUE(dbus_tests::WaitFor([&names] { return !names.isEmpty(); }));
    EXPECT_TRUE(names.contains(QStringLiteral("org.freedesktop.DBus")));
}

TEST(SessionBus, WaitingForAnswersAnswersThem) {
    dbus_tests::PrivateBus bus;
    dbus::SessionBus session(bus.Address());
    session.Join();
    int answers = 0;
    const auto ask_again = [&](const QDBusMessage&) {
        if (++answers < 3)
            session.Ask(dbus::BusCall(QStringLiteral("GetId")), [&](const QDBusMessage&) { ++answers; });
    };
    session.Ask(dbus::BusCall(QStringLiteral("GetId")), ask_again);

    session.WaitForAnswers();

    EXPECT_EQ(answers, 2);
}

TEST(SessionBus, AnErrorIsAnAnswerToo) {
    dbus_tests::PrivateBus bus;
    dbus::SessionBus session(bus.Address());
    session.Join();
    QDBusMessage::MessageType type = QDBusMessage::InvalidMessage;

    session.Ask(dbus::BusCall(QStringLiteral("NoSuchMethod")),
                [&type](const QDBusMessage& reply) { type = reply.type(); });
    session.WaitForAnswers();

    EXPECT_EQ(type, QDBusMessage::ErrorMessage);
}

TEST(SessionBus, ABusThatDiesMeanwhileAnswersWithAnErrorAndIsLeft) {
    dbus_tests::PrivateBus bus;
    dbus::SessionBus session(bus.Address());
    session.Join();
    bus.Kill();
    bool failed = false;

    session.Ask(dbus::BusCall(QStringLiteral("ListNames")), [&failed](const QDBusMessage& reply) {
        failed = reply.type() == QDBusMessage::ErrorMessage;
    });
    session.WaitForAnswers();

    EXPECT_TRUE(failed || !session.IsJoined());
    EXPECT_TRUE(dbus_tests::WaitFor([&session] { return !session.IsJoined(); }));
    session.Tell(dbus::BusCall(QStringLiteral("GetId")));
}

TEST(SessionBus, WithoutAnAddressNoBusIsStarted) {
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", "/nowhere");

    dbus::SessionBus session;
    session.Join();

    EXPECT_FALSE(session.IsJoined());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    qputenv("XDG_RUNTIME_DIR", folder);
    if (address.isEmpty()) qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    if (folder.isEmpty()) qunsetenv("XDG_RUNTIME_DIR");
}

}  // namespace
