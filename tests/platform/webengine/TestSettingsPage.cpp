// The settings page in the real engine: what other sites cannot do to it, and that it works.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QWidget>

#include "platform/webengine/EngineWorld.h"

namespace {

using webengine_tests::EngineWorld;
using webengine_tests::WaitFor;

class SettingsPage : public testing::Test {
protected:
    SettingsPage() { world.Browser().SetListener(&heard); }
    ~SettingsPage() override { world.Browser().SetListener(nullptr); }

    void Serve(const char* path, const QByteArray& body) { world.Server().Pages[path] = {body}; }
    bool Go(const std::string& address) {
        const std::size_t before = heard.Completed.size();
        world.Browser().Navigate(address);
        return WaitFor([&] { return heard.Completed.size() > before && !world.Browser().Busy(); });
    }
    bool TitleIs(const char* title) {
        return WaitFor([&] { return world.Browser().LocationName() == title; });
    }

    bool PressAllow() {
        return WaitFor([&] {
            const auto* bar = world.Window().findChild<QWidget*>(QStringLiteral("bar question"));
            auto* allow = bar != nullptr ? bar->findChild<QPushButton*>() : nullptr;
            if (allow == nullptr || !allow->isEnabled()) return false;
            allow->click();
            return true;
        });
    }

    EngineWorld world;
    contracts::Listener heard{world.Browser()};
};

TEST_F(SettingsPage, IsReachedByItsShortAddress) {
    ASSERT_TRUE(Go("brindlepost:settings"));

    EXPECT_TRUE(TitleIs("Settings"));
    EXPECT_EQ(world.Browser().LocationURL(), "brindlepost://settings/");
}

TEST_F(SettingsPage, TheKeysAreReachedByTheirShortAddress) {
    ASSERT_TRUE(Go("brindlepost:keys"));

    EXPECT_TRUE(TitleIs("Keys"));
}

TEST_F(SettingsPage, WhatASiteWasAllowedIsTakenBackThere) {
    Serve("/notify",
          "<title>-</title><script>Notification.requestPermission().then(v => document.title = v)</script>");
    Serve("/state", "<title>-</title><script>document.title = Notification.permission</script>");
    ASSERT_TRUE(Go(world.Site + "/notify"));
    ASSERT_TRUE(PressAllow());
    ASSERT_TRUE(TitleIs("granted"));

    ASSERT_TRUE(Go("brindlepost:settings"));
    using Step = ports::ElementStep;
    world.Browser().WorkOnDocument("settings", {{Step::Kind::Click, "forget_sites", {}}});

    EXPECT_TRUE(WaitFor([&] {
        Go(world.Site + "/state");
        return world.Browser().LocationName() == "default";
    }));
}

TEST_F(SettingsPage, AnotherSiteCanNeitherReadNorFrameNorChangeIt) {
    Serve("/evil", R"(<title>-</title><iframe id=f src='brindlepost://settings/'></iframe><script>
        const results = [];
        const done = (what) => { results.push(what); if (results.length === 3) document.title = results.sort(); };
        fetch('brindlepost://settings/').then(() => done('read'), () => done('no fetch'));
        const r = new XMLHttpRequest();
        r.onload = () => done('posted'); r.onerror = () => done('no post');
        try {
            r.open('POST', 'brindlepost://settings/do?what=zoom&value=5');
            r.setRequestHeader('X-Brindlepost-Token', 'x');
            r.send();
        } catch (e) { done('no post'); }
        const s = document.createElement('script');
        s.src = 'brindlepost://settings/settings.js';
        s.onload = () => done('script'); s.onerror = () => done('no script');
        document.head.append(s);
        </script>)");

    ASSERT_TRUE(Go(world.Site + "/evil"));

    EXPECT_TRUE(TitleIs("no fetch,no post,no script")) << world.Browser().LocationName();
}

TEST_F(SettingsPage, ALinkOfAnotherSiteDoesNotReachIt) {
    Serve("/link",
          "<title>Link</title><script>setTimeout(() => location = 'brindlepost://settings/', 50)</script>");
    ASSERT_TRUE(Go(world.Site + "/link"));

    EXPECT_TRUE(WaitFor([&] { return !heard.Failed.empty(); }));

    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/link");
}

}  // namespace
