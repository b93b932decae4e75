#include "platform/dbus/BusAppearance.h"

#include <gtest/gtest.h>

#include "platform/dbus/BusBench.h"
#include "platform/dbus/PortalPeer.h"

namespace {

using dbus_tests::PortalPeer;
using dbus_tests::WaitFor;

const QString kSpace = QStringLiteral("org.freedesktop.appearance");
const QString kContrast = QStringLiteral("contrast");

class BusAppearanceTest : public testing::Test {
protected:
    BusAppearanceTest() {
        appearance.OnContrast = [this](bool high) { heard.push_back(high); };
    }
    bool Hears(const std::vector<bool>& wanted) {
        return WaitFor([&] { return heard.size() >= wanted.size(); }) && heard == wanted;
    }

    dbus_tests::PrivateBus bus;
    dbus::SessionBus session{bus.Address()};
    dbus::BusAppearance appearance{session};
    std::vector<bool> heard;
};

TEST_F(BusAppearanceTest, ThePortalIsAskedWhenTheBusIsJoined) {
    const PortalPeer portal(bus, 1U);

    dbus_tests::JoinNow(session);

    EXPECT_TRUE(Hears({true}));
}

TEST_F(BusAppearanceTest, AChangeIsHeard) {
    PortalPeer portal(bus, 0U);
    dbus_tests::JoinNow(session);
    ASSERT_TRUE(Hears({false}));

    portal.Change(kSpace, kContrast, 1U);
    portal.Change(kSpace, QStringLiteral("color-scheme"), 0U);
    portal.Change(QStringLiteral("org.example"), kContrast, 0U);
    portal.Change(kSpace, kContrast, QStringLiteral("1"));
    portal.Change(kSpace, kContrast, 0U);

    EXPECT_TRUE(Hears({false, true, false}));
}

TEST_F(BusAppearanceTest, APortalThatComesLaterIsAsked) {
    dbus_tests::JoinNow(session);
    session.WaitForAnswers();

    const PortalPeer portal(bus, 1U);

    EXPECT_TRUE(Hears({true}));
}

TEST_F(BusAppearanceTest, APortalThatDoesNotKnowTheSettingSaysNothing) {
    PortalPeer portal(bus, {});
    dbus_tests::JoinNow(session);
    EXPECT_FALSE(dbus_tests::WaitAWhile([&] { return !heard.empty(); }));

    portal.Change(kSpace, kContrast, 1U);

    EXPECT_TRUE(Hears({true}));
}

}  // namespace
