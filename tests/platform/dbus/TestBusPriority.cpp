// The real-time service, played by a stand-in on a system bus of the test's own.
#include "platform/dbus/BusPriority.h"

#include <gtest/gtest.h>

#include <QDBusContext>
#include <string>
#include <thread>
#include <vector>

#include "platform/dbus/BusBench.h"

namespace {

using dbus_tests::WaitFor;
using Calls = std::vector<std::string>;

class RealTimeService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.RealtimeKit1")

public:
    explicit RealTimeService(const dbus_tests::PrivateBus& bus) : peer_(bus) {
        peer_.Connection().registerObject(QStringLiteral("/org/freedesktop/RealtimeKit1"), this,
                                          QDBusConnection::ExportAllSlots);
        peer_.Own(QStringLiteral("org.freedesktop.RealtimeKit1"));
    }
    /// From here on every wish is answered with an error.
    void Refuse() { refuses_ = true; }
    const Calls& Wishes() const { return wishes_; }
    /// How many wishes nobody waits for an answer to.
    int Unanswerable() const { return unanswerable_; }

public slots:
    void MakeThreadRealtimeWithPID(qulonglong process, qulonglong thread, uint level) {
        Note("real time", process, thread, static_cast<int>(level));
    }
    void MakeThreadHighPriorityWithPID(qulonglong process, qulonglong thread, int level) {
        Note("high priority", process, thread, level);
    }

private:
    void Note(const std::string& what, qulonglong process, qulonglong thread, int level) {
        wishes_.push_back(what + " " + std::to_string(process) + " " + std::to_string(thread) + " " +
                          std::to_string(level));
        if (!message().isReplyRequired()) ++unanswerable_;
        if (refuses_) sendErrorReply(QDBusError::AccessDenied, QStringLiteral("no"));
    }

    dbus_tests::Peer peer_;
    Calls wishes_;
    bool refuses_ = false;
    int unanswerable_ = 0;
};

// The system bus is found once in a process, so all tests here have the same one.
class BusPriority : public testing::Test {
protected:
    static dbus_tests::PrivateBus& Bus() {
        static dbus_tests::PrivateBus bus;
        static const bool is_the_systems = qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.Address().toLocal8Bit());
        EXPECT_TRUE(is_the_systems);
        return bus;
    }
};

TEST_F(BusPriority, BothWaysAreAskedForSoThatARefusalOfTheBetterOneLeavesTheOther) {
    RealTimeService service(Bus());

    dbus::RaiseThread(12, 34);

    EXPECT_TRUE(WaitFor([&] { return service.Wishes().size() == 2; }));
    EXPECT_EQ(service.Wishes(), (Calls{"high priority 12 34 -11", "real time 12 34 1"}));
}

// The service answers each wish, and a system's bus writes every answer that nobody expected into the
// system's log.
TEST_F(BusPriority, AnAnswerIsExpected) {
    RealTimeService service(Bus());

    dbus::RaiseThread(12, 34);

    EXPECT_TRUE(WaitFor([&] { return service.Wishes().size() == 2; }));
    EXPECT_EQ(service.Unanswerable(), 0);
}

TEST_F(BusPriority, AServiceThatRefusesIsAskedAgainForTheNextThread) {
    RealTimeService service(Bus());
    service.Refuse();

    dbus::RaiseThread(12, 34);
    dbus::RaiseThread(12, 35);

    EXPECT_TRUE(WaitFor([&] { return service.Wishes().size() == 4; }));
}

TEST_F(BusPriority, AThreadOfTheDecodersIsAskedForFromAnotherThread) {
    RealTimeService service(Bus());

    std::thread([] { dbus::RaiseThread(56, 78); }).join();

    EXPECT_TRUE(WaitFor([&] { return service.Wishes().size() == 2; }));
    EXPECT_EQ(service.Wishes().back(), "real time 56 78 1");
}

}  // namespace

#include "TestBusPriority.moc"
