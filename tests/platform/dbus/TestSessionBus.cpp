#include "platform/dbus/SessionBus.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "platform/dbus/BusBench.h"

namespace {

TEST(SessionBus, WorkThatWaitsForTheBusIsDoneWhenItIsJoined) {
    dbus_tests::PrivateBus bus;
    dbus::SessionBus session(bus.Address());
    int done = 0;
    session.WhenJoined([&done] { ++done; });
    EXPECT_EQ(done, 0);

    dbus_tests::JoinNow(session);
    dbus_tests::JoinNow(session);

    EXPECT_EQ(done, 1);
    session.WhenJoined([&done] { ++done; });
    EXPECT_EQ(done, 2);
}

TEST(SessionBus, AnAnswerComesAsAnEvent) {
    dbus_tests::PrivateBus bus;
    dbus::SessionBus session(bus.Address());
    dbus_tests::JoinNow(session);
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
    dbus_tests::JoinNow(session);
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
    dbus_tests::JoinNow(session);
    QDBusMessage::MessageType type = QDBusMessage::InvalidMessage;

    session.Ask(dbus::BusCall(QStringLiteral("NoSuchMethod")),
                [&type](const QDBusMessage& reply) { type = reply.type(); });
    session.WaitForAnswers();

    EXPECT_EQ(type, QDBusMessage::ErrorMessage);
}

TEST(SessionBus, ABusThatDiesMeanwhileAnswersWithAnErrorAndIsLeft) {
    dbus_tests::PrivateBus bus;
    dbus::SessionBus session(bus.Address());
    dbus_tests::JoinNow(session);
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
    dbus_tests::NeedApplication();

    dbus::SessionBus session;
    session.Join();

    EXPECT_FALSE(dbus_tests::WaitAWhile([&session] { return session.IsJoined(); }));
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    qputenv("XDG_RUNTIME_DIR", folder);
    if (address.isEmpty()) qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    if (folder.isEmpty()) qunsetenv("XDG_RUNTIME_DIR");
}

/// Short enough for a test.
constexpr dbus::BusPatience kHasty{.answer_ms = 100, .first_ms = 20, .longest_ms = 40};

TEST(SessionBus, ABusThatHangsAtTheStartHoldsNothingUpAndIsJoinedWhenItGoesOn) {
    dbus_tests::PrivateBus bus;
    bus.Stop();
    dbus::SessionBus session(bus.Address(), kHasty);
    const QDeadlineTimer soon(1000);

    session.Join();

    EXPECT_FALSE(soon.hasExpired());
    EXPECT_FALSE(dbus_tests::WaitAWhile([&session] { return session.IsJoined(); }));
    bus.GoOn();
    EXPECT_TRUE(dbus_tests::WaitFor([&session] { return session.IsJoined(); }));
}

TEST(SessionBus, AnEndWhileABusHangsIsNotHeldUp) {
    dbus_tests::PrivateBus bus;
    bus.Stop();
    const QDeadlineTimer soon(1000);
    {
        dbus::SessionBus session(bus.Address());
        session.Join();
        session.Tell(dbus::BusCall(QStringLiteral("GetId")));
    }
    EXPECT_FALSE(soon.hasExpired());
    bus.GoOn();
}

TEST(SessionBus, ABusThatDiesIsJoinedAgainAndTheWorkDoneAgain) {
    QTemporaryDir folder;
    const QString address = QStringLiteral("unix:path=") + folder.filePath(QStringLiteral("bus"));
    auto bus = std::make_unique<dbus_tests::PrivateBus>(address);
    dbus::SessionBus session(address, kHasty);
    int done = 0;
    session.WhenJoined([&done] { ++done; });
    dbus_tests::JoinNow(session);

    for (int lives = 2; lives <= 4; ++lives) {
        bus->Kill();
        EXPECT_TRUE(dbus_tests::WaitFor([&session] { return !session.IsJoined(); }));
        QFile::remove(folder.filePath(QStringLiteral("bus")));
        bus = std::make_unique<dbus_tests::PrivateBus>(address);
        EXPECT_TRUE(dbus_tests::WaitFor([&session] { return session.IsJoined(); }));
        EXPECT_TRUE(dbus_tests::WaitFor([&done, lives] { return done == lives; }));
    }
}

TEST(SessionBus, ABusThatIsNotThereYetIsJoinedWhenItComes) {
    QTemporaryDir folder;
    const QString address = QStringLiteral("unix:path=") + folder.filePath(QStringLiteral("bus"));
    dbus_tests::NeedApplication();
    dbus::SessionBus session(address, kHasty);
    session.Join();
    EXPECT_FALSE(dbus_tests::WaitAWhile([&session] { return session.IsJoined(); }));

    dbus_tests::PrivateBus bus(address);

    EXPECT_TRUE(dbus_tests::WaitFor([&session] { return session.IsJoined(); }));
}

TEST(SessionBus, TheSocketIsFoundInAnAddress) {
    const auto name = [](const char* address) { return dbus::SocketNameOf(QString::fromLatin1(address)); };

    EXPECT_EQ(name("unix:path=/run/user/0/bus,guid=1f"), "/run/user/0/bus");
    EXPECT_EQ(name("tcp:host=localhost,port=1;unix:guid=1f,path=/a%20b"), "/a b");
    EXPECT_EQ(name("unix:abstract=/tmp/x"), QByteArray("\0/tmp/x", 7));
    EXPECT_EQ(name("tcp:host=localhost,port=1"), "");
    EXPECT_EQ(name(""), "");
}

}  // namespace
