// The toolkit waits for a bus that says nothing; so it is not to meet one.
#include "platform/dbus/SilentBus.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <chrono>

#include "platform/dbus/BusBench.h"

namespace {

constexpr const char* kVariable = "DBUS_SESSION_BUS_ADDRESS";
constexpr std::chrono::milliseconds kPatience{100};

/// The variable is as it was after each test.
class SilentBus : public testing::Test {
protected:
    ~SilentBus() override { qputenv(kVariable, before_); }

private:
    QByteArray before_ = qgetenv(kVariable);
};

TEST_F(SilentBus, ABusThatSaysNothingIsLeftAndItsAddressIsKept) {
    dbus_tests::PrivateBus bus;
    bus.Stop();
    qputenv(kVariable, bus.Address().toUtf8());
    QElapsedTimer clock;
    clock.start();

    EXPECT_EQ(dbus::LeaveSilentBus(kPatience), bus.Address());

    EXPECT_NE(qgetenv(kVariable), bus.Address().toUtf8());
    EXPECT_FALSE(qgetenv(kVariable).isEmpty()) << "the bus library would start one of its own";
    EXPECT_GE(clock.elapsed(), kPatience.count() - 1);
    EXPECT_LT(clock.elapsed(), 5000);
}

TEST_F(SilentBus, ABusThatLivesIsKept) {
    const dbus_tests::PrivateBus bus;
    qputenv(kVariable, bus.Address().toUtf8());

    EXPECT_EQ(dbus::LeaveSilentBus(std::chrono::seconds(5)), QString());

    EXPECT_EQ(qgetenv(kVariable), bus.Address().toUtf8());
}

TEST_F(SilentBus, WhereNobodyIsNothingIsWaitedFor) {
    qputenv(kVariable, "unix:path=/nonexistent/bus");
    QElapsedTimer clock;
    clock.start();

    EXPECT_EQ(dbus::LeaveSilentBus(std::chrono::seconds(5)), QString());

    EXPECT_EQ(qgetenv(kVariable), "unix:path=/nonexistent/bus");
    EXPECT_LT(clock.elapsed(), 4000);
}

}  // namespace
