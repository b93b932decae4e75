#include "platform/dbus/BusMessenger.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/dbus/BusBench.h"

namespace {

using dbus_tests::MessengerPeer;

const QString kClass = QStringLiteral("MsnMsgrUIManager");

class BusMessengerTest : public testing::Test {
protected:
    BusMessengerTest() {
        session.emplace(bus.Address());
        dbus_tests::JoinNow(*session);
        messenger.emplace(*session);
    }

    dbus_tests::PrivateBus bus;
    std::optional<dbus::SessionBus> session;
    std::optional<dbus::BusMessenger> messenger;
    const ports::CopyData block{1351, 4, {'a', 0, 0, 0}};
};

TEST_F(BusMessengerTest, EveryNameBelowTheClassIsToldAndNoOther) {
    MessengerPeer one(bus, kClass + QStringLiteral(".Main"), kClass);
    MessengerPeer two(bus, kClass + QStringLiteral(".Other.Account"), kClass);
    MessengerPeer other(bus, QStringLiteral("org.") + kClass, kClass);
    MessengerPeer longer(bus, kClass + QStringLiteral("Other.Main"), kClass);

    messenger->SendToWindows("MsnMsgrUIManager", block);

    EXPECT_TRUE(dbus_tests::WaitFor([&] { return !one.Received().empty() && !two.Received().empty(); }));
    EXPECT_EQ(one.Received(), std::vector{block});
    EXPECT_EQ(two.Received(), std::vector{block});
    EXPECT_TRUE(other.Received().empty());
    EXPECT_TRUE(longer.Received().empty()) << "its name is another class";
}

TEST_F(BusMessengerTest, NoReplyIsWanted) {
    MessengerPeer one(bus, kClass + QStringLiteral(".Main"), kClass);

    messenger->SendToWindows("MsnMsgrUIManager", block);

    EXPECT_TRUE(dbus_tests::WaitFor([&] { return !one.Received().empty(); }));
    EXPECT_FALSE(one.WasReplyWanted());
}

TEST_F(BusMessengerTest, TheLastWordsGoOutBeforeTheEnd) {
    MessengerPeer one(bus, kClass + QStringLiteral(".Main"), kClass);

    messenger->SendToWindows("MsnMsgrUIManager", block);
    messenger.reset();
    session.reset();

    EXPECT_TRUE(dbus_tests::WaitFor([&] { return one.Received().size() == 1; }));
}

TEST_F(BusMessengerTest, OnADeadBusNothingHappens) {
    bus.Kill();

    messenger->SendToWindows("MsnMsgrUIManager", block);
    messenger.reset();
    session.reset();
}

TEST(BusMessengerWithoutABus, NothingHappens) {
    dbus_tests::PrivateBus gone;
    gone.Kill();
    dbus::SessionBus session(gone.Address());
    session.Join();
    dbus::BusMessenger messenger(session);

    messenger.SendToWindows("MsnMsgrUIManager", {1, 0, {}});

    EXPECT_FALSE(session.IsJoined());
}

}  // namespace
