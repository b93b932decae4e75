#include "platform/dbus/BusNotices.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/dbus/BusBench.h"

namespace {

using dbus_tests::NoticePeer;
using dbus_tests::WaitFor;
using Texts = std::vector<std::string>;

class BusNoticesTest : public testing::Test {
protected:
    BusNoticesTest() { dbus_tests::JoinNow(session); }
    int Show(const char* title, const char* words) {
        return notices->Show({.title = title,
                              .words = words,
                              .clicked = [this] { ++clicked; },
                              .closed = [this] { ++closed; }});
    }

    dbus_tests::PrivateBus bus;
    dbus::SessionBus session{bus.Address()};
    std::optional<dbus::BusNotices> notices{std::in_place, session};
    int clicked = 0;
    int closed = 0;
};

TEST_F(BusNoticesTest, ANoticeIsShownAsItIs) {
    NoticePeer service(bus, {});

    EXPECT_NE(Show("Owl", "<b>5 < 6</b> & more"), 0);

    EXPECT_TRUE(WaitFor([&] { return service.Heard.size() == 1; }));
    EXPECT_EQ(service.Heard, (Texts{"Brindlepost|Owl|<b>5 < 6</b> & more"}));
}

TEST_F(BusNoticesTest, AServiceWithMarkupGetsTheTextEscaped) {
    NoticePeer service(bus, {QStringLiteral("actions"), QStringLiteral("body-markup")});

    Show("Owl", "<b>5 & 6</b>");

    EXPECT_TRUE(WaitFor([&] { return service.Heard.size() == 1; }));
    EXPECT_EQ(service.Heard, (Texts{"Brindlepost|Owl|&lt;b&gt;5 &amp; 6&lt;/b&gt;"}));
}

TEST_F(BusNoticesTest, AClickAndTheEndAreTold) {
    NoticePeer service(bus, {});
    Show("Owl", "hoots");
    ASSERT_TRUE(WaitFor([&] { return service.Heard.size() == 1; }));
    session.WaitForAnswers();

    service.Click(1);
    EXPECT_TRUE(WaitFor([&] { return clicked == 1; }));
    service.End(1);

    EXPECT_TRUE(WaitFor([&] { return closed == 1; }));
    service.Click(1);
    service.End(1);
    service.Click(77);
    Show("Lark", "sings");
    ASSERT_TRUE(WaitFor([&] { return service.Heard.size() == 2; }));

    EXPECT_EQ(clicked, 1);
    EXPECT_EQ(closed, 1);
}

TEST_F(BusNoticesTest, ItIsTakenAway) {
    NoticePeer service(bus, {});
    const int ticket = Show("Owl", "hoots");
    ASSERT_TRUE(WaitFor([&] { return service.Heard.size() == 1; }));
    WaitFor([&] { return service.Answered; });
    notices->Close(ticket);
    notices->Close(ticket);

    EXPECT_TRUE(WaitFor([&] { return service.Heard.size() == 2; }));

    EXPECT_EQ(service.Heard.back(), "close 1");
    EXPECT_EQ(closed, 0);
}

TEST_F(BusNoticesTest, WhatIsLeftGoesWithTheProgram) {
    NoticePeer service(bus, {});
    Show("Owl", "hoots");
    ASSERT_TRUE(WaitFor([&] { return service.Heard.size() == 1; }));

    notices.reset();

    EXPECT_TRUE(WaitFor([&] { return service.Heard.back() == "close 1"; }));
}

TEST_F(BusNoticesTest, WithoutAServiceItIsOverAtOnce) {
    Show("Owl", "hoots");

    EXPECT_TRUE(WaitFor([&] { return closed == 1; }));
}

TEST(BusNoticesAlone, WithoutABusThereIsNobody) {
    dbus::SessionBus none(QStringLiteral("unix:path=/nowhere"));
    dbus::BusNotices notices(none);

    EXPECT_EQ(notices.Show({.title = "Owl", .words = "hoots", .clicked = {}, .closed = {}}), 0);
}

}  // namespace
