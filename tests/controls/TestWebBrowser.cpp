#include "controls/WebBrowser.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace controls {
namespace {

// Remembers what it is asked, and tells what the test lets it tell.
class RecordingEngine final : public ports::BrowserControl {
public:
    void SetListener(ports::BrowserListener* listener) override { Listener = listener; }
    void Navigate(std::string_view address) override { Calls.push_back("Navigate " + std::string(address)); }
    void GoBack() override { Calls.emplace_back("GoBack"); }
    void GoForward() override { Calls.emplace_back("GoForward"); }
    void Refresh() override { Calls.emplace_back("Refresh"); }
    std::string LocationURL() const override { return Location; }
    std::string LocationName() const override { return "Example"; }
    bool Busy() const override { return true; }
    void SetSeen(ports::PageSeen seen) override { Seen = seen; }
    ports::PageSigns Signs() const override { return Shown; }

    ports::BrowserListener* Listener = nullptr;
    ports::PageSeen Seen = ports::PageSeen::InFront;
    ports::PageSigns Shown;
    std::vector<std::string> Calls;
    std::string Location = "http://example.org/";
};

// A screen that hands out an engine when a browser asks for one.
class EngineGiver final : public ControlObserver {
public:
    void OnPropertyChanged(Control& control, Property property) override {
        if (property != Property::Value) return;
        ++Asked;
        static_cast<WebBrowser&>(control).Attach(&Engine);
    }

    RecordingEngine Engine;
    int Asked = 0;
};

using Calls = std::vector<std::string>;

TEST(WebBrowser, WithoutAnEngineCommandsGoNowhereAndTheLocationIsEmpty) {
    WebBrowser browser("Browser");

    browser.GoBack();
    browser.GoForward();
    browser.RefreshPage();

    EXPECT_EQ(browser.LocationURL(), "");
    EXPECT_EQ(browser.LocationName(), "");
    EXPECT_FALSE(browser.Busy());
    EXPECT_EQ(browser.Engine(), nullptr);
}

TEST(WebBrowser, TheLastAddressWaitsForTheEngine) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    browser.Navigate("http://first/");
    browser.Navigate2("http://second/");
    browser.Navigate("");
    EXPECT_EQ(browser.WaitingAddress(), "http://second/");

    browser.Attach(&engine);

    EXPECT_EQ(engine.Calls, Calls{"Navigate http://second/"});
    EXPECT_EQ(browser.WaitingAddress(), "");
}

TEST(WebBrowser, AnEngineWithNothingWaitingIsAskedNothing) {
    RecordingEngine engine;
    WebBrowser browser("Browser");

    browser.Attach(&engine);

    EXPECT_EQ(engine.Calls, Calls{});
    EXPECT_NE(engine.Listener, nullptr);
}

TEST(WebBrowser, TheFirstAddressAsksTheScreenForAnEngine) {
    EngineGiver screen;
    WebBrowser browser("Browser");
    browser.SetObserver(&screen);

    browser.Navigate("http://first/");
    browser.Navigate("http://second/");

    EXPECT_EQ(screen.Asked, 1);
    EXPECT_EQ(screen.Engine.Calls, (Calls{"Navigate http://first/", "Navigate http://second/"}));
}

TEST(WebBrowser, NoAddressAsksForNoEngine) {
    EngineGiver screen;
    WebBrowser browser("Browser");
    browser.SetObserver(&screen);

    browser.Navigate("");

    EXPECT_EQ(screen.Asked, 0);
}

TEST(WebBrowser, CommandsAndLocationAreTheEngines) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    browser.Attach(&engine);

    browser.GoBack();
    browser.GoForward();
    browser.RefreshPage();

    EXPECT_EQ(engine.Calls, (Calls{"GoBack", "GoForward", "Refresh"}));
    EXPECT_EQ(browser.LocationURL(), "http://example.org/");
    EXPECT_EQ(browser.LocationName(), "Example");
    EXPECT_TRUE(browser.Busy());
}

TEST(WebBrowser, TheSecondWayToNavigateDoesNotLoadTwiceWhatIsOnItsWay) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    browser.Attach(&engine);

    browser.Navigate("http://a/");
    browser.Navigate2("http://a/");
    EXPECT_EQ(engine.Calls.size(), 1U);

    browser.Navigate2("http://b/");
    EXPECT_EQ(engine.Calls.size(), 2U);

    engine.Listener->OnNavigateComplete("http://b/");
    browser.Navigate2("http://b/");
    EXPECT_EQ(engine.Calls.size(), 3U);

    engine.Listener->OnNavigateError("http://b/", -2);
    browser.Navigate2("http://b/");
    EXPECT_EQ(engine.Calls.size(), 4U);
}

TEST(WebBrowser, AnAddressThatWaitedIsOnItsWay) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    browser.Navigate("http://a/");
    browser.Attach(&engine);

    browser.Navigate2("http://a/");

    EXPECT_EQ(engine.Calls, Calls{"Navigate http://a/"});
}

TEST(WebBrowser, WhatThePageTellsIsRaised) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    EventClaims claims;
    Calls heard;
    claims.Claim(browser.TitleChange, [&](std::string_view title) { heard.emplace_back(title); });
    claims.Claim(browser.NavigateComplete2, [&](std::string_view url) { heard.emplace_back(url); });
    browser.Attach(&engine);

    engine.Listener->OnTitleChange("Title");
    engine.Listener->OnNavigateComplete("http://a/frame");
    engine.Listener->OnNavigateComplete("http://a/");

    EXPECT_EQ(heard, (Calls{"Title", "http://a/frame", "http://a/"}));
}

TEST(WebBrowser, SignsAreTheEnginesAndTheirChangeIsRaised) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    EventClaims claims;
    int changes = 0;
    claims.Claim(browser.SignsChange, [&] { ++changes; });
    EXPECT_EQ(browser.Signs(), ports::PageSigns());
    browser.ShowSecurity();
    browser.Attach(&engine);

    engine.Shown.progress = 30;
    engine.Listener->OnSignsChange();

    EXPECT_EQ(changes, 1);
    EXPECT_EQ(browser.Signs().progress, 30);
}

TEST(WebBrowser, AnErrorPageIsShownUnlessTheRoomCancelsIt) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    browser.Attach(&engine);
    EXPECT_FALSE(engine.Listener->OnNavigateError("http://a/", -2));
    EventClaims claims;
    claims.Claim(browser.NavigateError, [](bool& cancel) { cancel = true; });

    EXPECT_TRUE(engine.Listener->OnNavigateError("http://a/", -2));
}

TEST(WebBrowser, APopUpGetsTheEngineOfTheBrowserThatTakesIt) {
    RecordingEngine engine;
    EngineGiver screen;
    WebBrowser browser("Browser");
    WebBrowser tab("Browser");
    EventClaims claims;
    browser.Attach(&engine);
    tab.SetObserver(&screen);
    claims.Claim(browser.NewWindow2, [&tab](WebBrowser*& target) { target = &tab; });

    ports::BrowserControl* const given = engine.Listener->OnNewWindow(ports::WindowPlace::InFront);

    EXPECT_EQ(given, &screen.Engine);
    EXPECT_EQ(screen.Asked, 1);
    EXPECT_EQ(screen.Engine.Calls, Calls{});
}

TEST(WebBrowser, APopUpThatNobodyTakesIsRefused) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    browser.Attach(&engine);

    EXPECT_EQ(engine.Listener->OnNewWindow(ports::WindowPlace::InFront), nullptr);
}

TEST(WebBrowser, AWindowThatIsWantedBehindIsAskedForByAnEventOfItsOwn) {
    RecordingEngine engine;
    RecordingEngine behind;
    WebBrowser browser("Browser");
    WebBrowser tab("Browser");
    EventClaims claims;
    browser.Attach(&engine);
    tab.Attach(&behind);
    claims.Claim(browser.NewWindowBehind, [&tab](WebBrowser*& target) { target = &tab; });

    EXPECT_EQ(engine.Listener->OnNewWindow(ports::WindowPlace::Behind), &behind);
    EXPECT_EQ(engine.Listener->OnNewWindow(ports::WindowPlace::InFront), nullptr);
}

TEST(WebBrowser, AWindowThatClosesItselfIsTold) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    EventClaims claims;
    int closings = 0;
    browser.Attach(&engine);
    claims.Claim(browser.WindowClosing, [&closings] { ++closings; });

    engine.Listener->OnWindowClosing();

    EXPECT_EQ(closings, 1);
}

TEST(WebBrowser, AnEngineKnowsWhatTheUserSeesAlsoWhenItComesLater) {
    RecordingEngine engine;
    RecordingEngine later;
    WebBrowser browser("Browser");
    browser.Attach(&engine);

    browser.SetSeen(ports::PageSeen::Covered);
    browser.Attach(&later);

    EXPECT_EQ(engine.Seen, ports::PageSeen::Covered);
    EXPECT_EQ(later.Seen, ports::PageSeen::Covered);
    EXPECT_EQ(browser.Seen(), ports::PageSeen::Covered);
}

TEST(WebBrowser, AnEngineThatIsTakenAwayTellsNothingMore) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    browser.Attach(&engine);

    browser.Attach(nullptr);

    EXPECT_EQ(engine.Listener, nullptr);
    EXPECT_EQ(browser.LocationURL(), "");
}

TEST(WebBrowser, AForgottenPageTakesTheAddressThatWaitsAlong) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    browser.Navigate("http://ann.example/");

    browser.Forget();
    EXPECT_EQ(browser.WaitingAddress(), "");
    browser.Attach(&engine);

    EXPECT_EQ(engine.Calls, Calls{});
}

TEST(WebBrowser, AnAddressThatWasUnderWayIsGoneToByTheNextEngine) {
    RecordingEngine engine;
    RecordingEngine next;
    WebBrowser browser("Browser");
    browser.Attach(&engine);
    browser.Navigate("http://example.org/");

    browser.Forget();
    browser.Attach(&next);
    browser.Navigate2("http://example.org/");

    EXPECT_EQ(next.Calls, Calls{"Navigate http://example.org/"});
}

TEST(WebBrowser, TheAddressThatWasAskedForLastIsKnown) {
    WebBrowser browser("Browser");
    RecordingEngine engine;
    EXPECT_EQ(browser.AskedAddress(), "");

    browser.Navigate("http://example.org/waits");
    EXPECT_EQ(browser.AskedAddress(), "http://example.org/waits");
    browser.Attach(&engine);
    browser.Navigate2("http://example.org/fails");
    browser.Navigate("");
    engine.Listener->OnNavigateError("http://elsewhere.org/fails", -105);
    EXPECT_EQ(browser.AskedAddress(), "http://example.org/fails");
    browser.Forget();
    EXPECT_EQ(browser.AskedAddress(), "");
}

TEST(WebBrowser, OfAPopUpTheAddressThatFailedIsKnown) {
    WebBrowser browser("Browser");
    RecordingEngine engine;
    browser.Attach(&engine);

    engine.Listener->OnNavigateError("http://example.org/fails", -105);

    EXPECT_EQ(browser.AskedAddress(), "http://example.org/fails");
    browser.Attach(nullptr);
}

TEST(WebBrowser, APageThatLoadsAgainIsNoVisitUntilItIsElsewhere) {
    EngineGiver screen;
    WebBrowser browser("Browser");
    browser.SetObserver(&screen);
    std::vector<std::string> completed;
    EventClaims claims;
    claims.Claim(browser.NavigateComplete2, [&](std::string_view url) { completed.emplace_back(url); });
    browser.NavigateAgain("http://example.org/");

    screen.Engine.Listener->OnNavigateComplete("http://frame.example/");
    screen.Engine.Listener->OnNavigateComplete("http://example.org/");
    EXPECT_EQ(screen.Engine.Calls, Calls{"Navigate http://example.org/"});
    EXPECT_TRUE(completed.empty());
    screen.Engine.Location = "http://other.example/";
    screen.Engine.Listener->OnNavigateComplete("http://other.example/");
    screen.Engine.Location = "http://example.org/";
    screen.Engine.Listener->OnNavigateComplete("http://example.org/");

    EXPECT_EQ(completed, (std::vector<std::string>{"http://other.example/", "http://example.org/"}));
}

TEST(WebBrowser, APageThatTheUserAsksForAfterItLoadedAgainIsAVisit) {
    RecordingEngine engine;
    WebBrowser browser("Browser");
    browser.Attach(&engine);
    int completed = 0;
    EventClaims claims;
    claims.Claim(browser.NavigateComplete2, [&](std::string_view) { ++completed; });
    for (const auto act : {&WebBrowser::RefreshPage, &WebBrowser::GoBack, &WebBrowser::GoForward}) {
        browser.NavigateAgain("http://example.org/");
        const int before = completed;

        (browser.*act)();
        engine.Listener->OnNavigateComplete("http://example.org/");

        EXPECT_EQ(completed, before + 1);
    }
}

TEST(WebBrowser, ABrowserThatGoesLeavesItsEngine) {
    RecordingEngine engine;
    auto browser = std::make_unique<WebBrowser>("Browser");
    browser->Attach(&engine);

    browser.reset();

    EXPECT_EQ(engine.Listener, nullptr);
}

}  // namespace
}  // namespace controls
