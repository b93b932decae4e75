#include "platform/dbus/BusFileManager.h"

#include <gtest/gtest.h>

#include "platform/dbus/BusBench.h"
#include "platform/dbus/FileManagerPeer.h"

namespace {

using dbus_tests::FileManagerPeer;
using dbus_tests::WaitFor;

class BusFileManagerTest : public testing::Test {
protected:
    BusFileManagerTest() { dbus_tests::JoinNow(session); }
    void Show(const char* file) {
        files.Show(file, [this] { ++otherwise; });
    }

    dbus_tests::PrivateBus bus;
    dbus::SessionBus session{bus.Address()};
    dbus::BusFileManager files{session};
    int otherwise = 0;
};

TEST_F(BusFileManagerTest, TheFileItselfIsShown) {
    FileManagerPeer manager(bus);

    Show("/home/owl/Downloads/a b#c%20.ogg");

    EXPECT_TRUE(WaitFor([&] { return manager.Shown.size() == 1; }));
    EXPECT_EQ(manager.Shown, (QStringList{"file:///home/owl/Downloads/a%20b%23c%2520.ogg"}));
    session.WaitForAnswers();
    EXPECT_EQ(otherwise, 0);
}

TEST_F(BusFileManagerTest, WithoutAFileManagerTheOtherWayIsTaken) {
    Show("/home/owl/a.ogg");

    EXPECT_TRUE(WaitFor([&] { return otherwise == 1; }));
}

TEST_F(BusFileManagerTest, OneThatRefusesIsFollowedByTheOtherWay) {
    FileManagerPeer manager(bus);
    manager.Refuses = true;

    Show("/home/owl/a.ogg");

    EXPECT_TRUE(WaitFor([&] { return otherwise == 1; }));
}

TEST_F(BusFileManagerTest, OneThatIsSlowIsNotFollowedByASecondWindow) {
    FileManagerPeer manager(bus);
    manager.Sleeps = true;

    Show("/home/owl/a.ogg");

    ASSERT_TRUE(WaitFor([&] { return manager.Shown.size() == 1; }));
    session.WaitForAnswers();
    WaitFor([] { return true; });
    EXPECT_EQ(otherwise, 0);
}

TEST_F(BusFileManagerTest, WithoutABusTheOtherWayIsTakenAtOnce) {
    dbus::SessionBus none(bus.Address());
    dbus::BusFileManager nobody(none);

    nobody.Show("/home/owl/a.ogg", [this] { ++otherwise; });

    EXPECT_EQ(otherwise, 1);
}

}  // namespace
