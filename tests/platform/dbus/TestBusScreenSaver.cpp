#include "platform/dbus/BusScreenSaver.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/dbus/BusBench.h"

namespace {

using dbus_tests::SaverService;
using dbus_tests::WaitFor;
using Calls = std::vector<std::string>;

class BusScreenSaverTest : public testing::Test {
protected:
    BusScreenSaverTest() { dbus_tests::JoinNow(session); }

    dbus_tests::PrivateBus bus;
    dbus::SessionBus session{bus.Address()};
    dbus::BusScreenSaver saver{session};
};

TEST_F(BusScreenSaverTest, TheScreenSaverIsToldWhoAndWhy) {
    SaverService service(bus, SaverService::Kind::ScreenSaver);

    saver.SetInhibited(true);
    session.WaitForAnswers();
    saver.SetInhibited(false);

    EXPECT_TRUE(WaitFor([&] { return service.Calls().size() == 2; }));
    EXPECT_EQ(service.Calls(), (Calls{"Inhibit Brindlepost: A video plays", "UnInhibit 1"}));
}

TEST_F(BusScreenSaverTest, WithoutOneThePowerManagerIsAsked) {
    SaverService service(bus, SaverService::Kind::PowerManagement);

    saver.SetInhibited(true);
    session.WaitForAnswers();
    saver.SetInhibited(false);

    EXPECT_TRUE(WaitFor([&] { return service.Calls().size() == 2; }));
    EXPECT_EQ(service.Calls(), (Calls{"Inhibit Brindlepost: A video plays", "UnInhibit 1"}));
}

TEST_F(BusScreenSaverTest, WhatIsWantedBeforeTheBusIsJoinedIsAskedThen) {
    SaverService service(bus, SaverService::Kind::ScreenSaver);
    dbus::SessionBus late(bus.Address());
    dbus::BusScreenSaver early(late);
    early.SetInhibited(true);

    dbus_tests::JoinNow(late);
    late.WaitForAnswers();

    EXPECT_EQ(service.Promises(), 1U);
}

TEST_F(BusScreenSaverTest, WithoutEitherThePortalIsAsked) {
    SaverService service(bus, SaverService::Kind::Portal);

    saver.SetInhibited(true);
    session.WaitForAnswers();
    saver.SetInhibited(false);

    EXPECT_TRUE(WaitFor([&] { return service.Calls().size() == 2; }));
    EXPECT_EQ(service.Calls(), (Calls{"Inhibit '' 8: A video plays", "UnInhibit 1"}));
}

TEST_F(BusScreenSaverTest, AServiceThatRefusesIsFollowedByTheNext) {
    SaverService refusing(bus, SaverService::Kind::ScreenSaver);
    SaverService service(bus, SaverService::Kind::PowerManagement);
    refusing.Refuse();

    saver.SetInhibited(true);
    session.WaitForAnswers();

    EXPECT_EQ(refusing.Promises(), 0U);
    EXPECT_EQ(service.Promises(), 1U);
}

TEST_F(BusScreenSaverTest, LetGoBeforeTheAnswerIsLetGoAfterIt) {
    SaverService service(bus, SaverService::Kind::ScreenSaver);

    saver.SetInhibited(true);
    saver.SetInhibited(false);
    session.WaitForAnswers();

    EXPECT_TRUE(WaitFor([&] { return service.Calls().size() == 2; }));
    EXPECT_EQ(service.Promises(), 0U);
}

TEST_F(BusScreenSaverTest, WithoutAnyServiceTheNextVideoAsksAgain) {
    saver.SetInhibited(true);
    session.WaitForAnswers();
    saver.SetInhibited(false);
    SaverService service(bus, SaverService::Kind::ScreenSaver);

    saver.SetInhibited(true);
    session.WaitForAnswers();

    EXPECT_EQ(service.Promises(), 1U);
}

TEST_F(BusScreenSaverTest, OnADeadBusNothingHappens) {
    bus.Kill();

    saver.SetInhibited(true);
    saver.SetInhibited(false);
    session.WaitForAnswers();
}

}  // namespace
