// What every page engine promises, run on the made-up one and on the real one.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "contracts/BrowserWorld.h"

namespace contracts {

using MakeBrowserWorld = std::unique_ptr<BrowserWorld> (*)();

class BrowserControlContract : public testing::TestWithParam<MakeBrowserWorld> {
protected:
    BrowserControlContract() : world(GetParam()()), browser(world->Browser()), heard(browser) {
        browser.SetListener(&heard);
    }
    ~BrowserControlContract() override { browser.SetListener(nullptr); }

    bool Arrive(const std::string& address) {
        const std::size_t before = heard.Completed.size();
        browser.Navigate(address);
        return world->WaitFor([this, before] { return heard.Completed.size() > before && !browser.Busy(); });
    }
    bool ArriveAgain(const std::function<void()>& act) {
        const std::size_t before = heard.Completed.size();
        act();
        return world->WaitFor([this, before] { return heard.Completed.size() > before && !browser.Busy(); });
    }

    std::unique_ptr<BrowserWorld> world;
    ports::BrowserControl& browser;
    Listener heard;
};

TEST_P(BrowserControlContract, BeforeTheFirstDocumentThereIsNothing) {
    EXPECT_EQ(browser.LocationURL(), "");
    EXPECT_EQ(browser.LocationName(), "");
    EXPECT_FALSE(browser.Busy());
}

TEST_P(BrowserControlContract, ADocumentTellsItsTitleAndItsArrival) {
    ASSERT_TRUE(Arrive(world->Site + "/plain"));

    EXPECT_EQ(browser.LocationURL(), world->Site + "/plain");
    EXPECT_EQ(browser.LocationName(), "Plain words");
    EXPECT_EQ(heard.Completed, std::vector<std::string>{world->Site + "/plain"});
    ASSERT_FALSE(heard.Titles.empty());
    EXPECT_EQ(heard.Titles.back(), "Plain words");
    EXPECT_TRUE(heard.Failed.empty());
}

TEST_P(BrowserControlContract, ADocumentWithoutATitleIsNamedByItsAddress) {
    ASSERT_TRUE(Arrive(world->Site + "/untitled"));

    EXPECT_EQ(browser.LocationName(), world->Site + "/untitled");
}

TEST_P(BrowserControlContract, OnTheWayItIsBusyAndTheOldAddressStands) {
    ASSERT_TRUE(Arrive(world->Site + "/plain"));

    browser.Navigate(world->Site + "/other");

    EXPECT_TRUE(browser.Busy());
    EXPECT_EQ(browser.LocationURL(), world->Site + "/plain");
}

TEST_P(BrowserControlContract, AnAddressWithoutASchemeGetsOne) {
    ASSERT_TRUE(Arrive(world->Site.substr(std::string("http://").size()) + "/plain"));

    EXPECT_EQ(browser.LocationURL(), world->Site + "/plain");
}

TEST_P(BrowserControlContract, ADrivePathBecomesAFileAddress) {
    ASSERT_TRUE(Arrive(world->Local));

    EXPECT_EQ(browser.LocationURL(), world->LocalAddress);
    EXPECT_EQ(browser.LocationName(), "Local words");
}

TEST_P(BrowserControlContract, AnEmptyAddressGoesNowhere) {
    ASSERT_TRUE(Arrive(world->Site + "/plain"));

    browser.Navigate("");

    EXPECT_FALSE(browser.Busy());
    EXPECT_EQ(browser.LocationURL(), world->Site + "/plain");
}

TEST_P(BrowserControlContract, AnEmptyAddressStopsNothing) {
    browser.Navigate(world->Site + "/plain");

    EXPECT_TRUE(ArriveAgain([this] { browser.Navigate(""); }));
    EXPECT_EQ(browser.LocationURL(), world->Site + "/plain");
}

TEST_P(BrowserControlContract, BackAndForwardWalkTheHistory) {
    ASSERT_TRUE(Arrive(world->Site + "/plain"));
    ASSERT_TRUE(Arrive(world->Site + "/other"));

    ASSERT_TRUE(ArriveAgain([this] { browser.GoBack(); }));
    const std::string behind = browser.LocationURL();
    ASSERT_TRUE(ArriveAgain([this] { browser.GoForward(); }));

    EXPECT_EQ(behind, world->Site + "/plain");
    EXPECT_EQ(browser.LocationURL(), world->Site + "/other");
}

TEST_P(BrowserControlContract, WithNowhereToGoNothingHappens) {
    ASSERT_TRUE(Arrive(world->Site + "/plain"));

    browser.GoBack();
    browser.GoForward();

    EXPECT_FALSE(browser.Busy());
    EXPECT_EQ(browser.LocationURL(), world->Site + "/plain");
}

TEST_P(BrowserControlContract, BeforeTheFirstDocumentThereIsNowhereToGo) {
    browser.GoBack();
    browser.GoForward();
    browser.Refresh();

    EXPECT_FALSE(browser.Busy());
    EXPECT_EQ(browser.LocationURL(), "");
}

TEST_P(BrowserControlContract, RefreshLoadsTheDocumentAgain) {
    ASSERT_TRUE(Arrive(world->Site + "/plain"));

    ASSERT_TRUE(ArriveAgain([this] { browser.Refresh(); }));

    EXPECT_EQ(browser.LocationURL(), world->Site + "/plain");
}

TEST_P(BrowserControlContract, ANavigationInsideADocumentIsToldAsCompleted) {
    ASSERT_TRUE(Arrive(world->Site + "/inside"));

    ASSERT_TRUE(world->WaitFor([this] { return heard.Completed.size() == 2; }));

    EXPECT_EQ(heard.Completed.back(), world->Site + "/inside#end");
    EXPECT_EQ(heard.Locations.back(), world->Site + "/inside#end");
    EXPECT_EQ(browser.LocationName(), "Inside");
    EXPECT_EQ(heard.Titles.back(), "Inside");
    EXPECT_FALSE(browser.Busy());
}

TEST_P(BrowserControlContract, RefreshAsksAgainForAFirstAddressThatFailed) {
    browser.Navigate(world->DeadSite + "/x");
    ASSERT_TRUE(world->WaitFor([this] { return !heard.Failed.empty() && !browser.Busy(); }));

    browser.Refresh();

    EXPECT_TRUE(browser.Busy());
    EXPECT_TRUE(world->WaitFor([this] { return heard.Failed.size() == 2; }));
    EXPECT_EQ(heard.Failed.back(), world->DeadSite + "/x");
}

TEST_P(BrowserControlContract, ACoveredAndAClosedPageKeepAddressAndNameAndCanBeSentOn) {
    ASSERT_TRUE(Arrive(world->Site + "/plain"));
    ASSERT_TRUE(Arrive(world->Site + "/other"));

    browser.SetSeen(ports::PageSeen::Covered);
    browser.SetSeen(ports::PageSeen::Closed);
    EXPECT_EQ(browser.LocationURL(), world->Site + "/other");
    EXPECT_EQ(browser.LocationName(), "Other words");
    ASSERT_TRUE(ArriveAgain([this] { browser.Refresh(); }));
    ASSERT_TRUE(ArriveAgain([this] { browser.GoBack(); }));

    EXPECT_EQ(browser.LocationName(), "Plain words");
    browser.SetSeen(ports::PageSeen::InFront);
    EXPECT_EQ(browser.LocationName(), "Plain words");
}

TEST_P(BrowserControlContract, AFailedNavigationLeavesWhatWasThere) {
    ASSERT_TRUE(Arrive(world->Site + "/plain"));

    browser.Navigate(world->DeadSite + "/x");
    ASSERT_TRUE(world->WaitFor([this] { return !heard.Failed.empty(); }));

    EXPECT_TRUE(world->WaitFor([this] { return !browser.Busy(); }));
    EXPECT_EQ(heard.Failed, std::vector<std::string>{world->DeadSite + "/x"});
    EXPECT_EQ(browser.LocationURL(), world->Site + "/plain");
    EXPECT_EQ(browser.LocationName(), "Plain words");
    EXPECT_EQ(heard.Completed.size(), 1U);
}

TEST_P(BrowserControlContract, AfterAFailureItGoesOn) {
    ASSERT_TRUE(Arrive(world->Site + "/plain"));
    browser.Navigate(world->DeadSite + "/x");
    ASSERT_TRUE(world->WaitFor([this] { return !heard.Failed.empty(); }));

    ASSERT_TRUE(Arrive(world->Site + "/other"));

    EXPECT_EQ(browser.LocationURL(), world->Site + "/other");
    EXPECT_EQ(browser.LocationName(), "Other words");
}

TEST_P(BrowserControlContract, AFailedFirstNavigationShowsNothing) {
    browser.Navigate(world->DeadSite + "/x");
    ASSERT_TRUE(world->WaitFor([this] { return !heard.Failed.empty(); }));

    EXPECT_EQ(browser.LocationURL(), "");
    EXPECT_TRUE(heard.Completed.empty());
}

TEST_P(BrowserControlContract, ANavigationReplacesTheOneUnderWay) {
    browser.Navigate(world->Site + "/plain");

    browser.Navigate(world->Site + "/other");

    ASSERT_TRUE(world->WaitFor([this] { return browser.LocationURL() == world->Site + "/other"; }));
    EXPECT_TRUE(world->WaitFor([this] { return browser.LocationName() == "Other words"; }));
}

TEST_P(BrowserControlContract, EveryFrameArrives) {
    ASSERT_TRUE(Arrive(world->Site + "/frames"));

    EXPECT_TRUE(world->WaitFor([this] { return heard.Completed.size() == 3; }));
    EXPECT_EQ(browser.LocationName(), "Frames");
    EXPECT_EQ(heard.Locations, std::vector<std::string>(3, world->Site + "/frames"));
}

TEST_P(BrowserControlContract, AWindowOpensWhereTheListenerSays) {
    Listener other_heard(world->Other());
    world->Other().SetListener(&other_heard);
    heard.ForWindow = &world->Other();

    ASSERT_TRUE(Arrive(world->Site + "/pops"));

    EXPECT_TRUE(world->WaitFor([&] { return world->Other().LocationURL() == world->Site + "/other"; }));
    EXPECT_EQ(heard.Windows, 1);
    EXPECT_TRUE(world->WaitFor([&] { return world->Other().LocationName() == "Other words"; }));
    EXPECT_EQ(browser.LocationURL(), world->Site + "/pops");
    world->Other().SetListener(nullptr);
}

TEST_P(BrowserControlContract, AWindowThatIsRefusedLeavesThePage) {
    ASSERT_TRUE(Arrive(world->Site + "/pops"));

    EXPECT_TRUE(world->WaitFor([this] { return heard.Windows == 1; }));
    EXPECT_EQ(browser.LocationURL(), world->Site + "/pops");
}

/// A name and a password for a form.
inline std::vector<ports::ElementStep> SignIn(const std::string& name) {
    using Kind = ports::ElementStep::Kind;
    return {{Kind::SetValue, "nothing", "x"},
            {Kind::SetValue, "email", name},
            {Kind::SetValue, "word", "hoot"},
            {Kind::Submit, "theForm", ""}};
}

TEST_P(BrowserControlContract, AFormOfTheHostIsFilledInAndSentOff) {
    for (const std::string& site : {world->SecureSites[0], world->SecureSites[1]}) {
        ASSERT_TRUE(Arrive(site + "/form")) << site;

        ASSERT_TRUE(ArriveAgain([this] { browser.WorkOnDocument("pal.example", SignIn("owl")); })) << site;

        EXPECT_EQ(browser.LocationURL(), site + "/other?email=owl&word=hoot");
    }
}

// Steps for the host that the document does come from are carried out, and show that those before were not.
TEST_P(BrowserControlContract, AFormOfAnotherHostGetsNothing) {
    for (std::size_t i = 2; i < world->SecureSites.size(); ++i) {
        const std::string& site = world->SecureSites[i];
        ASSERT_TRUE(Arrive(site + "/form")) << site;
        browser.WorkOnDocument("pal.example", SignIn("owl"));

        ASSERT_TRUE(ArriveAgain([&] { browser.WorkOnDocument(site.substr(8), SignIn("lark")); })) << site;

        EXPECT_EQ(browser.LocationURL(), site + "/other?email=lark&word=hoot");
    }
}

TEST_P(BrowserControlContract, AFormThatCameWithoutEncryptionGetsNothing) {
    ASSERT_TRUE(Arrive(world->InsecureSite + "/form"));
    const std::size_t before = heard.Completed.size();

    browser.WorkOnDocument("pal.example", SignIn("owl"));
    ASSERT_TRUE(world->WaitFor([this] { return !browser.Busy(); }));
    ASSERT_TRUE(Arrive(world->Site + "/plain"));

    EXPECT_EQ(heard.Completed.size(), before + 1);
}

TEST_P(BrowserControlContract, ADocumentIsWorkedOnOnce) {
    using Kind = ports::ElementStep::Kind;
    const std::string site = world->SecureSites[0];
    ASSERT_TRUE(Arrive(site + "/form"));
    browser.WorkOnDocument("pal.example", {{Kind::SetValue, "email", "owl"}});

    browser.WorkOnDocument("pal.example", SignIn("owl"));
    ASSERT_TRUE(world->WaitFor([this] { return !browser.Busy(); }));
    EXPECT_EQ(browser.LocationURL(), site + "/form");
    ASSERT_TRUE(Arrive(site + "/form"));

    ASSERT_TRUE(ArriveAgain([this] { browser.WorkOnDocument("pal.example", SignIn("lark")); }))
        << "a new document of the same address is another one";
    EXPECT_EQ(browser.LocationURL(), site + "/other?email=lark&word=hoot");
}

TEST_P(BrowserControlContract, ADocumentWithoutTheElementsStaysAsItIs) {
    using Kind = ports::ElementStep::Kind;
    ASSERT_TRUE(Arrive(world->SecureSites[0] + "/plain"));

    browser.WorkOnDocument(
        "pal.example",
        {{Kind::SetValue, "email", "owl"}, {Kind::Click, "SI", ""}, {Kind::Submit, "theForm", ""}});

    ASSERT_TRUE(Arrive(world->Site + "/other"));
    EXPECT_EQ(heard.Completed.size(), 2U);
    EXPECT_TRUE(heard.Failed.empty());
}

TEST_P(BrowserControlContract, WithoutAListenerItStillGoes) {
    browser.SetListener(nullptr);

    browser.Navigate(world->Site + "/plain");

    EXPECT_TRUE(world->WaitFor([this] { return browser.LocationURL() == world->Site + "/plain"; }));
}

}  // namespace contracts
