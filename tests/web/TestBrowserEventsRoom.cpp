#include "web/WebHarness.h"

namespace {

using BrowserEventsRoom = web_tests::WebTest;
using web_tests::Calls;

TEST_F(BrowserEventsRoom, ATitleReachesTabMenuAndWindow) {
    const int tab = Open("http://one.example/");

    Engine(tab).ChangeTitle("Gig guide");

    EXPECT_EQ(groups.tabs.tabLabel(tab).Caption(), "Gig guide");
    EXPECT_EQ(groups.tabs.mnuTabTab(tab).Caption(), "Gig guide");
    EXPECT_EQ(near.Caption, "Brindlepost - Gig guide");
}

TEST_F(BrowserEventsRoom, TheTitleOfATabBehindLeavesTheWindowsCaption) {
    const int tab = Open("http://one.example/");
    Open("http://two.example/");

    Engine(tab).ChangeTitle("Gig guide");

    EXPECT_EQ(groups.tabs.tabLabel(tab).Caption(), "Gig guide");
    EXPECT_EQ(near.Caption, "Brindlepost - Two");
}

TEST_F(BrowserEventsRoom, ATitleUnderTheMusicTabLeavesTheWindowsCaption) {
    const int tab = Open("http://one.example/");
    Click(groups.tabs.imgMusicTab);

    Engine(tab).ChangeTitle("Gig guide");

    EXPECT_EQ(near.Caption, "Brindlepost - Music Player");
}

TEST_F(BrowserEventsRoom, IconAndProgressAreShownOnThePagesTab) {
    const int tab = Open("http://one.example/");
    Open("http://two.example/");

    Engine(tab).ChangeSigns({.progress = 40, .icon = "picture"});

    EXPECT_EQ(groups.tabs.tabLabel(tab).Icon(), "picture");
    EXPECT_EQ(groups.tabs.tabLabel(tab).Progress(), 40);
    EXPECT_EQ(groups.tabs.tabLabel(LastTab()).Progress(), -1);
}

TEST_F(BrowserEventsRoom, TheLockIsThatOfThePageInFront) {
    const int tab = Open("http://one.example/");
    Engine(tab).ChangeSigns({.security = ports::PageSigns::Security::Encrypted});
    EXPECT_EQ(groups.address.txtAddress.Sign(), "lock");

    const int other = Open("http://two.example/");
    EXPECT_EQ(groups.address.txtAddress.Sign(), "");
    Engine(other).ChangeSigns({.security = ports::PageSigns::Security::NotEncrypted});
    Engine(tab).ChangeSigns({.security = ports::PageSigns::Security::ErrorPassed});
    EXPECT_EQ(groups.address.txtAddress.Sign(), "open lock");

    Click(groups.tabs.tabtab(tab));
    EXPECT_EQ(groups.address.txtAddress.Sign(), "broken lock");
}

TEST_F(BrowserEventsRoom, TheLockGoesWithThePageToItsNextAddress) {
    const int tab = Open("http://one.example/");
    Engine(tab).ChangeSigns({.security = ports::PageSigns::Security::Encrypted});

    Engine(tab).Navigate("http://two.example/");
    Settle(tab);

    EXPECT_EQ(groups.address.txtAddress.Text(), "http://two.example/");
    EXPECT_EQ(groups.address.txtAddress.Sign(), "lock");
}

TEST_F(BrowserEventsRoom, TypedTextHasNoLock) {
    const int tab = Open("http://one.example/");
    Engine(tab).ChangeSigns({.security = ports::PageSigns::Security::Encrypted});

    groups.address.txtAddress.SetText("https://bank.example/");
    EXPECT_EQ(groups.address.txtAddress.Sign(), "");

    Click(groups.tabs.imgMusicTab);
    EXPECT_EQ(groups.address.txtAddress.Sign(), "");
}

TEST_F(BrowserEventsRoom, AClickOnTheLockAsksThePageInFront) {
    const int tab = Open("http://one.example/");
    Engine(tab).Calls.clear();

    groups.address.txtAddress.SignClick.Raise();

    EXPECT_EQ(Engine(tab).Calls, (Calls{"ShowSecurity"}));
}

TEST_F(BrowserEventsRoom, APageThatIsAPlayListIsAddedInsteadOfRemembered) {
    web_["http://one.example/a.mpl"] = {"list", {}, ""};

    Open("http://one.example/a.mpl");

    EXPECT_EQ(LoggedOf({"AddPlayList", "Command1", "AddSite"}),
              (Calls{"AddPlayList ", "Command1", "AddPlayList http://one.example/a.mpl", "Command1"}));
}

TEST_F(BrowserEventsRoom, AFileOfAnotherPlayersListIsAddedAndAnAddressOfOneIsAPage) {
    web_["file:///Lists/a.m3u"] = {"list", {}, ""};
    web_["http://one.example/a.m3u"] = {"page", {}, ""};

    Open("file:///Lists/a.m3u");
    Open("http://one.example/a.m3u");

    EXPECT_EQ(LoggedOf({"AddPlayList", "Command1", "AddSite"}),
              (Calls{"AddPlayList ", "Command1", "AddPlayList file:///Lists/a.m3u", "Command1",
                     "AddSiteToHistory Web http://one.example/a.m3u"}));
}

TEST_F(BrowserEventsRoom, AVisitIsRemembered) {
    Open("http://one.example/");

    EXPECT_TRUE(Logged("AddSiteToHistory Web http://one.example/"));
    EXPECT_EQ(groups.address.txtAddress.Text(), "http://one.example/");
    EXPECT_EQ(state.LastTabUrl, "http://one.example/");
}

TEST_F(BrowserEventsRoom, AVisitInATabBehindIsRememberedToo) {
    Open("http://one.example/");
    Open("http://two.example/");
    near.Log.clear();

    groups.tabs.Browser(1).Navigate("http://three.example/");
    Settle(1);

    EXPECT_TRUE(Logged("AddSiteToHistory Web http://three.example/"));
    EXPECT_EQ(groups.address.txtAddress.Text(), "http://two.example/");
}

TEST_F(BrowserEventsRoom, EveryFrameGivesAnEntry) {
    web_["http://one.example/set"] = {"Set", {"http://one.example/left", "http://one.example/right"}, ""};

    Open("http://one.example/set");

    EXPECT_EQ(LoggedOf({"AddSite"}), Calls(3, "AddSiteToHistory Web http://one.example/set"));
}

TEST_F(BrowserEventsRoom, WithoutHistoryTheAddressBoxStillUpdates) {
    session.Save_History = false;

    Open("http://one.example/");

    EXPECT_TRUE(LoggedOf({"AddSite"}).empty());
    EXPECT_EQ(groups.address.txtAddress.Text(), "http://one.example/");
}

TEST_F(BrowserEventsRoom, ATextBeingTypedIsNotReplacedByAnArrival) {
    rooms.Opener().OpenTab("http://one.example/");
    Engine(1);
    groups.address.txtAddress.SetText("half an addr");

    Settle(1);

    EXPECT_EQ(groups.address.txtAddress.Text(), "half an addr");
}

TEST_F(BrowserEventsRoom, InAnotherModeAnArrivalLeavesTheBoxAndKeepsTheAddressInMind) {
    ChooseMode("Search");

    Open("http://one.example/");

    EXPECT_EQ(groups.address.txtAddress.Text(), "");
    EXPECT_EQ(state.LastTabUrl, "http://one.example/");
}

struct LoginCase {
    const char* name;
    std::string address;
    bool many_users;
    bool logs_in;
    bool is_logged_in;
    Calls wanted;
};

TEST_F(BrowserEventsRoom, LoginsFireOnTheirPagesWhenBothOptionsAreSet) {
    session.credentials = {
        .MySpaceE = "owl", .MySpaceP = "hoot", .HotmailE = "lark@one.example", .HotmailP = "trill"};
    const Calls pal_login{"SetValue email owl", "SetValue password hoot", "Submit theForm"};
    const Calls live_login{"SetValue login lark@one.example", "SetValue passwd trill", "Click SI"};
    const std::string pal = "http://" + std::string(web::MySpaceHost);
    const std::string live = std::string(web::LiveLoginUrl);
    const LoginCase cases[] = {
        {"slash", pal + "/", true, true, true, pal_login},
        {"no slash", "http://one.example/?" + std::string(web::MySpaceHost), true, true, true, pal_login},
        {"ends in the same text", "http://other" + std::string(web::MySpaceHost) + "/", true, true, true,
         pal_login},
        {"deeper page", pal + "/login", true, true, true, {}},
        {"live", live + "in?x=1", true, true, true, live_login},
        {"live without auto login", live + "in?x=1", true, false, true, {}},
        {"live with one user", live + "in?x=1", false, true, true, {}},
        {"nobody logged in", pal + "/", true, true, false, {}},
    };
    for (const LoginCase& one : cases) {
        session.Allow_Multiple_Users = one.many_users;
        session.Auto_Login = one.logs_in;
        session.LoggedIn = one.is_logged_in;
        web_[one.address] = {"Login", {}, ""};
        if (LastTab() == 0) Open("http://one.example/");
        groups.tabs.Browser(1).Navigate(one.address);
        Engine(1).Calls.clear();

        Settle(1);

        EXPECT_EQ(Engine(1).Calls, one.wanted) << one.name;
    }
}

TEST_F(BrowserEventsRoom, ALoginNamesTheHostThatItBelongsTo) {
    session.Allow_Multiple_Users = true;
    session.Auto_Login = true;
    web_["http://one.example/?pal.example"] = {"Elsewhere", {}, ""};
    web_[std::string(web::LiveLoginUrl) + "in"] = {"Login", {}, ""};

    Open("http://one.example/?pal.example");
    Open(std::string(web::LiveLoginUrl) + "in");

    EXPECT_EQ(Engine(1).Hosts, Calls{"pal.example"});
    EXPECT_EQ(Engine(2).Hosts, Calls{"login.live.example"});
    EXPECT_EQ(web::LiveLoginUrl.substr(0, 8 + web::LiveLoginHost.size()),
              "https://" + std::string(web::LiveLoginHost));
}

TEST_F(BrowserEventsRoom, APopUpBecomesATab) {
    web_["http://one.example/pops"] = {"Pops", {}, "http://two.example/"};

    const int tab = Open("http://one.example/pops");

    EXPECT_EQ(LastTab(), tab + 1);
    EXPECT_EQ(state.currentbrowser, tab + 1);
    EXPECT_TRUE(groups.tabs.tabtab(tab + 1).Visible());
}

TEST_F(BrowserEventsRoom, APopUpsTabIsTheOneThatIsGivenToThePage) {
    Open("http://one.example/");
    controls::WebBrowser* target = nullptr;

    groups.tabs.Browser(1).NewWindow2.Raise(target);

    EXPECT_EQ(target, &groups.tabs.Browser(2));
    EXPECT_EQ(target->WaitingAddress(), "");
}

TEST_F(BrowserEventsRoom, APopUpAsksForNothingThatStandsInTheAddressRow) {
    Open("http://one.example/");
    groups.address.cmbAddress.SetText("http://favourite.example/");
    controls::WebBrowser* target = nullptr;

    groups.tabs.Browser(1).NewWindow2.Raise(target);

    ASSERT_NE(target, nullptr);
    EXPECT_EQ(target->WaitingAddress(), "");
}

TEST_F(BrowserEventsRoom, AWindowThatIsWantedBehindLeavesThePageInFrontAndTheKeyboardInIt) {
    const int tab = Open("http://one.example/");
    Open("http://two.example/");
    Click(groups.tabs.tabtab(tab));
    Focused = 0;
    controls::WebBrowser* target = nullptr;

    groups.tabs.Browser(tab).NewWindowBehind.Raise(target);

    EXPECT_EQ(target, &groups.tabs.Browser(3));
    EXPECT_TRUE(target->Visible());
    EXPECT_EQ(state.currentbrowser, tab);
    EXPECT_TRUE(IsPale(tab));
    EXPECT_FALSE(IsPale(3));
    EXPECT_TRUE(IsInFront(groups.tabs.Browser(tab)));
    EXPECT_EQ(groups.tabs.tabtab(3).Left(), groups.tabs.tabtab(2).Right());
    EXPECT_TRUE(groups.tabs.tabClose(3).Visible());
    EXPECT_TRUE(groups.tabs.mnuTabTab(3).Visible());
    EXPECT_EQ(near.Caption, "Brindlepost - One");
    EXPECT_EQ(Focused, 0);
}

TEST_F(BrowserEventsRoom, AWindowThatIsWantedBehindTheMusicTabLeavesThatInFront) {
    Open("http://one.example/");
    Click(groups.tabs.imgMusicTab);
    controls::WebBrowser* target = nullptr;

    groups.tabs.Browser(1).NewWindowBehind.Raise(target);

    EXPECT_EQ(target, &groups.tabs.Browser(2));
    EXPECT_TRUE(state.MusicTabActive);
    EXPECT_TRUE(IsInFront(near.Panel));
}

TEST_F(BrowserEventsRoom, WithNothingInFrontAWindowThatIsWantedBehindComesToTheFront) {
    controls::WebBrowser* target = nullptr;
    state.MusicTabActive = false;

    groups.tabs.BrowserBG.NewWindowBehind.Raise(target);

    EXPECT_EQ(target, &groups.tabs.Browser(1));
    EXPECT_EQ(state.currentbrowser, 1);
}

TEST_F(BrowserEventsRoom, APopUpThatClosesItselfClosesItsTab) {
    const int tab = Open("http://one.example/");
    controls::WebBrowser* target = nullptr;
    groups.tabs.Browser(tab).NewWindow2.Raise(target);

    groups.tabs.Browser(tab + 1).WindowClosing.Raise();

    EXPECT_FALSE(groups.tabs.Browser(tab + 1).Visible());
    EXPECT_FALSE(groups.tabs.tabtab(tab + 1).Visible());
    EXPECT_EQ(state.currentbrowser, tab);
}

TEST_F(BrowserEventsRoom, ATabThatIsClosedAlreadyHearsNoMoreOfItsWindow) {
    const int tab = Open("http://one.example/");
    Open("http://two.example/");
    groups.tabs.tabClose(tab).Click.Raise();
    Click(groups.tabs.imgMusicTab);
    Focused = 0;

    groups.tabs.Browser(tab).WindowClosing.Raise();

    EXPECT_EQ(Focused, 0);
}

TEST_F(BrowserEventsRoom, APopUpOfTheBackdropBecomesATabToo) {
    controls::WebBrowser* target = nullptr;

    groups.tabs.BrowserBG.NewWindow2.Raise(target);

    EXPECT_EQ(target, &groups.tabs.Browser(1));
    EXPECT_EQ(state.currentbrowser, 1);
}

TEST_F(BrowserEventsRoom, AFailedNavigationIsCancelledAndShowsNothing) {
    Open("http://one.example/");
    bool cancel = false;

    groups.tabs.Browser(1).NavigateError.Raise(cancel);

    EXPECT_TRUE(cancel);
    EXPECT_TRUE(dialogs.Boxes.empty());
}

TEST_F(BrowserEventsRoom, AFailedPageStaysOnWhatItHad) {
    Open("http://one.example/");

    groups.tabs.Browser(1).Navigate("http://nowhere.example/");
    Settle(1);

    EXPECT_EQ(groups.tabs.Browser(1).LocationURL(), "http://one.example/");
}

TEST_F(BrowserEventsRoom, ThePlainArrowsOnlyShowTheirBrightTwins) {
    groups.navigation.imgBack.MouseMove.Raise(0, 0, 0, 0);
    groups.navigation.imgForward.MouseMove.Raise(0, 0, 0, 0);

    EXPECT_TRUE(groups.navigation.imgBackOver.Visible());
    EXPECT_TRUE(groups.navigation.imgForwardOver.Visible());
}

TEST_F(BrowserEventsRoom, TheButtonsWorkOnTheTabInFront) {
    Open("http://one.example/");
    Open("http://two.example/");
    Engine(1).Calls.clear();
    Engine(2).Calls.clear();

    groups.navigation.imgBackOver.Click.Raise();
    groups.navigation.imgForwardOver.Click.Raise();
    groups.navigation.lblRefresh2.Click.Raise();

    EXPECT_EQ(Engine(2).Calls, (Calls{"GoBack", "GoForward", "Refresh"}));
    EXPECT_TRUE(Engine(1).Calls.empty());
}

TEST_F(BrowserEventsRoom, TheMenuGoesBackAndForward) {
    Open("http://one.example/");
    Engine(1).Calls.clear();

    menu.mnuGoBack.Click.Raise();
    menu.mnuGoForward.Click.Raise();

    EXPECT_EQ(Engine(1).Calls, (Calls{"GoBack", "GoForward"}));
}

TEST_F(BrowserEventsRoom, WithNoTabOnShowTheBackdropGoesBackAndRefreshes) {
    groups.tabs.tabMusicClose.Click.Raise();
    BackdropEngine().Calls.clear();

    groups.navigation.imgBackOver.Click.Raise();
    groups.navigation.imgForwardOver.Click.Raise();
    groups.navigation.lblRefresh2.Click.Raise();

    EXPECT_EQ(BackdropEngine().Calls, (Calls{"GoBack", "GoForward", "Refresh"}));
}

TEST_F(BrowserEventsRoom, UnderATabTheBackdropIsLeftAlone) {
    groups.tabs.tabMusicClose.Click.Raise();
    BackdropEngine();
    Open("http://one.example/");
    BackdropEngine().Calls.clear();

    groups.navigation.imgBackOver.Click.Raise();
    groups.navigation.lblRefresh2.Click.Raise();

    EXPECT_TRUE(BackdropEngine().Calls.empty());
}

TEST_F(BrowserEventsRoom, TheFrontPageIsTheOneOfTheTabInFront) {
    Open("http://one.example/");
    Open("http://two.example/");
    Click(groups.tabs.tabtab(1));

    EXPECT_TRUE(rooms.Front().IsPageVisible());
    EXPECT_EQ(rooms.Front().LocationURL(), "http://one.example/");
    EXPECT_EQ(rooms.Front().LocationName(), "One");
}

TEST_F(BrowserEventsRoom, AFrontTabThatIsNotThereHasNoPage) {
    state.currentbrowser = 1;

    rooms.Front().GoBack();
    rooms.Front().GoForward();
    rooms.Front().Refresh();

    EXPECT_FALSE(rooms.Front().IsPageVisible());
    EXPECT_EQ(rooms.Front().LocationURL(), "");
    EXPECT_EQ(rooms.Front().LocationName(), "");
}

TEST_F(BrowserEventsRoom, WithoutAConnectionTheButtonsShowTheBox) {
    Open("http://one.example/");
    Engine(1).Calls.clear();
    session.Internet_Connection = false;

    groups.navigation.imgBackOver.Click.Raise();

    ASSERT_EQ(dialogs.Boxes.size(), 1U);
    EXPECT_EQ(dialogs.Boxes[0].title, "No Internet Connection");
    EXPECT_EQ(dialogs.Boxes[0].text,
              "You do not have an Internet connection. Please re-establish a connection and restart the "
              "application.");
    EXPECT_EQ(dialogs.Boxes[0].icon, ports::BoxIcon::Critical);
    EXPECT_TRUE(Engine(1).Calls.empty());
}

}  // namespace
