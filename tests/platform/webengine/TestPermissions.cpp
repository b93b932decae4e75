#include <gtest/gtest.h>

#include <QPushButton>
#include <QWidget>

#include "platform/webengine/EngineWorld.h"

namespace {

using webengine_tests::EngineWorld;
using webengine_tests::WaitFor;

class Permissions : public testing::Test {
protected:
    Permissions() {
        world.Browser().SetListener(&heard);
        Serve("/notify",
              "<title>-</title><script>Notification.requestPermission().then(v => document.title = "
              "v)</script>");
        Serve("/state", "<title>-</title><script>document.title = Notification.permission</script>");
        Serve("/place",
              "<title>-</title><script>navigator.geolocation.getCurrentPosition(() => document.title = "
              "'here', e => document.title = e.code)</script>");
        Serve("/camera",
              "<title>-</title><script>navigator.mediaDevices.getUserMedia({video: true}).then(() => "
              "document.title = 'seen', e => document.title = e.name)</script>");
    }
    ~Permissions() override { world.Browser().SetListener(nullptr); }

    void Serve(const char* path, const QByteArray& body) { world.Server().Pages[path] = {body}; }
    void Go(const char* path) {
        world.Browser().Navigate(world.Site + path);
        WaitFor(
            [&] { return world.Browser().LocationURL() == world.Site + path && !world.Browser().Busy(); });
    }
    QWidget* Bar() { return world.Window().findChild<QWidget*>(QStringLiteral("bar question")); }
    bool WaitForBar() {
        return WaitFor([&] { return Bar() != nullptr; });
    }
    /// "Allow", "Block", "Close this bar"; once its buttons can be pressed.
    bool Press(const char* name) {
        return WaitFor([&] {
            for (QPushButton* button : Bar()->findChildren<QPushButton*>()) {
                if (button->accessibleName() != QLatin1String(name) || !button->isEnabled()) continue;
                button->click();
                return true;
            }
            return false;
        });
    }
    bool TitleIs(const char* title) {
        return WaitFor([&] { return world.Browser().LocationName() == title; });
    }

    EngineWorld world;
    contracts::Listener heard{world.Browser()};
};

TEST_F(Permissions, AllowedNotificationsStayAllowed) {
    Go("/notify");
    ASSERT_TRUE(WaitForBar());
    ASSERT_TRUE(Press("Allow"));
    EXPECT_TRUE(TitleIs("granted"));

    Go("/state");

    EXPECT_TRUE(TitleIs("granted"));
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Permissions, BlockedNotificationsAreNotAskedForAgain) {
    Go("/notify");
    ASSERT_TRUE(WaitForBar());
    ASSERT_TRUE(Press("Block"));
    EXPECT_TRUE(TitleIs("denied"));

    Go("/state");
    EXPECT_TRUE(TitleIs("denied"));
    Go("/notify");

    EXPECT_TRUE(TitleIs("denied"));
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Permissions, NotNowIsAskedAgainOnTheNextVisit) {
    Go("/notify");
    ASSERT_TRUE(WaitForBar());

    ASSERT_TRUE(Press("Close this bar"));
    ASSERT_TRUE(WaitFor([&] { return world.Browser().LocationName() != "-"; }));
    Go("/plain");
    Go("/notify");

    EXPECT_TRUE(WaitForBar());
}

TEST_F(Permissions, ThePlaceIsAskedFor) {
    constexpr const char* kDenied = "1";
    Go("/place");
    ASSERT_TRUE(WaitForBar());
    EXPECT_EQ(world.Browser().LocationName(), "-");

    ASSERT_TRUE(Press("Block"));

    EXPECT_TRUE(TitleIs(kDenied));
}

TEST_F(Permissions, ADeviceIsNeverGivenUnasked) {
    Go("/camera");
    ASSERT_TRUE(WaitFor([&] { return Bar() != nullptr || world.Browser().LocationName() != "-"; }));
    // Without a camera the engine answers alone.
    const bool is_asked = Bar() != nullptr;
    if (is_asked) {
        ASSERT_TRUE(Press("Block"));
    }

    EXPECT_TRUE(TitleIs(is_asked ? "NotAllowedError" : "NotFoundError")) << world.Browser().LocationName();
}

TEST_F(Permissions, AFloodIsOneBar) {
    Serve("/flood",
          "<title>-</title><script>for (let i = 0; i < 300; ++i) { Notification.requestPermission(); "
          "navigator.geolocation.getCurrentPosition(() => {}, () => {}); }</script>");
    Go("/flood");
    ASSERT_TRUE(WaitForBar());

    EXPECT_EQ(world.Window().findChildren<QWidget*>(QStringLiteral("bar question")).size(), 1);
    ASSERT_TRUE(Press("Block"));
    ASSERT_TRUE(WaitForBar());
    ASSERT_TRUE(Press("Block"));
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Permissions, ANotificationOfAnAllowedSiteReachesTheDesktop) {
    Serve("/tell",
          "<title>-</title><script>const n = new Notification('<b>Hoot</b>\\u202e', {body: "
          "'x'.repeat(5000)}); n.onclick = () => document.title = 'clicked'; n.onshow = () => "
          "document.title = 'shown'</script>");
    Go("/notify");
    ASSERT_TRUE(WaitForBar());
    ASSERT_TRUE(Press("Allow"));
    ASSERT_TRUE(TitleIs("granted"));
    auto& desktop = webengine_tests::Notices();
    desktop.Shown.clear();

    Go("/tell");
    ASSERT_TRUE(TitleIs("shown"));

    ASSERT_EQ(desktop.Shown.size(), 1u);
    EXPECT_EQ(desktop.Shown[0].title,
              "127.0.0.1: <b>Hoot</b>\xE2\x80\xB9"
              "202E\xE2\x80\xBA");
    EXPECT_LE(desktop.Shown[0].words.size(), 250u);
    desktop.Shown[0].clicked();
    EXPECT_TRUE(TitleIs("clicked"));
    desktop.Shown[0].closed();
}

TEST_F(Permissions, TheNextUserIsAskedAnew) {
    Go("/notify");
    ASSERT_TRUE(WaitForBar());
    ASSERT_TRUE(Press("Allow"));
    ASSERT_TRUE(TitleIs("granted"));

    webengine_tests::Factory().EndUser();
    webengine_tests::Factory().BeginUser("lark", false);
    controls::WebBrowser control("Browser");
    ports::BrowserControl* next = webengine_tests::Factory().MakePage(control, &world.Window());
    next->Navigate(world.Site + "/notify");

    EXPECT_TRUE(WaitForBar());
    webengine_tests::Factory().EndUser();
    webengine_tests::Factory().BeginUser("owl", false);
    world.Renew();
}

TEST_F(Permissions, AFloodOfNotificationsIsAFew) {
    Serve("/flood",
          "<title>-</title><script>for (let i = 0; i < 200; ++i) new Notification('n' + i); "
          "setTimeout(() => document.title = 'done', 500)</script>");
    Go("/notify");
    ASSERT_TRUE(WaitForBar());
    ASSERT_TRUE(Press("Allow"));
    ASSERT_TRUE(TitleIs("granted"));
    auto& desktop = webengine_tests::Notices();
    desktop.Shown.clear();

    Go("/flood");
    ASSERT_TRUE(TitleIs("done"));

    EXPECT_GE(desktop.Shown.size(), 1u);
    EXPECT_LE(desktop.Shown.size(), 4u);
    for (const ports::Notice& notice : std::vector(desktop.Shown))
        notice.closed();
}

TEST_F(Permissions, AnUnseenPageAsksNothing) {
    world.Window().hide();

    Go("/notify");

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationName() != "-"; }));
    EXPECT_EQ(Bar(), nullptr);
}

TEST_F(Permissions, AFrameOfAnotherSiteAsksNothing) {
    webengine_tests::PageServer other;
    other.Pages["/frame"] = {
        "<script>navigator.geolocation.getCurrentPosition(() => top.postMessage('here', '*'), "
        "e => top.postMessage('no', '*'))</script>"};
    Serve("/outer",
          "<title>-</title><script>onmessage = e => document.title = e.data</script>"
          "<iframe allow=geolocation src='" +
              QByteArray::fromStdString(other.Address()) + "/frame'></iframe>");

    Go("/outer");

    EXPECT_TRUE(TitleIs("no"));
    EXPECT_EQ(Bar(), nullptr);
}

}  // namespace
