#include "web/WebHarness.h"

namespace {

using TabRoom = web_tests::WebTest;
using web_tests::Calls;

TEST_F(TabRoom, TheTemplateIsNeverShown) {
    Open("http://one.example/");

    EXPECT_FALSE(groups.tabs.Browser(0).Visible());
    EXPECT_FALSE(groups.tabs.tabtab(0).Visible());
    EXPECT_FALSE(groups.tabs.mnuTabTab(0).Visible());
}

TEST_F(TabRoom, ANewTabComesToTheFront) {
    const int first = Open("http://one.example/");

    const int second = Open("http://two.example/");

    EXPECT_EQ(state.currentbrowser, second);
    EXPECT_TRUE(IsPale(second));
    EXPECT_FALSE(IsPale(first));
    EXPECT_EQ(groups.tabs.imgMusicTab.Picture(), "/images/musictab_dark.bmp");
    EXPECT_FALSE(state.MusicTabActive);
    EXPECT_TRUE(state.TabsShown);
    EXPECT_TRUE(state.BackdropHidden);
    EXPECT_TRUE(IsInFront(groups.tabs.Browser(second)));
}

TEST_F(TabRoom, ANewTabTakesTheTemplatesPlace) {
    groups.tabs.Browser(0).Move(375, 1300, 11000, 8000);

    const int tab = Open("http://one.example/");

    const auto& page = groups.tabs.Browser(tab);
    EXPECT_EQ(page.Left(), 375);
    EXPECT_EQ(page.Top(), 1300);
    EXPECT_EQ(page.Width(), 11000);
    EXPECT_EQ(page.Height(), 8000);
}

TEST_F(TabRoom, ANewTabIsAskedForItsAddressOnceMoreAndLoadsItOnce) {
    const int tab = Open("http://one.example/");

    EXPECT_EQ(Engine(tab).Calls, Calls{"Navigate http://one.example/"});
}

TEST_F(TabRoom, TabsStandSideBySideBehindTheMusicTab) {
    Open("http://one.example/");
    Open("http://two.example/");

    EXPECT_EQ(groups.tabs.tabtab(1).Left(), 3480);
    EXPECT_EQ(groups.tabs.tabtab(2).Left(), 3480 + groups.tabs.tabtab(0).Width());
    EXPECT_EQ(groups.tabs.tabLabel(2).Left(), groups.tabs.tabtab(2).Left() + 120);
    EXPECT_EQ(groups.tabs.tabClose(2).Left(), groups.tabs.tabtab(2).Left() + 2280);
}

TEST_F(TabRoom, TabsStandFurtherLeftWhenTheMusicTabIsClosed) {
    Open("http://one.example/");

    groups.tabs.tabMusicClose.Click.Raise();

    EXPECT_EQ(groups.tabs.tabtab(1).Left(), 1560);
}

TEST_F(TabRoom, ATabHasItsMenuEntryBetweenTheSeparators) {
    Open("http://one.example/");
    Open("http://two.example/");

    const std::vector<controls::Menu*> wanted{
        &menu.mnuNewTabTab,        &menu.mnuSep10, &groups.tabs.mnuTabTab(1),
        &groups.tabs.mnuTabTab(2), &menu.mnuSep11, &menu.mnuMusicTabTab};
    EXPECT_EQ(menu.mnuTab.Entries(), wanted);
    EXPECT_FALSE(groups.tabs.mnuTabTab(1).Checked());
    EXPECT_TRUE(groups.tabs.mnuTabTab(2).Checked());
}

TEST_F(TabRoom, ATabWhosePageFailsIsThereAllTheSame) {
    const int tab = Open("no such thing");

    EXPECT_TRUE(groups.tabs.tabtab(tab).Visible());
    EXPECT_EQ(state.currentbrowser, tab);
}

TEST_F(TabRoom, AClickBringsTheTabForward) {
    Open("http://one.example/");
    Open("http://two.example/");

    Click(groups.tabs.tabtab(1));

    EXPECT_EQ(state.currentbrowser, 1);
    EXPECT_TRUE(IsPale(1));
    EXPECT_FALSE(IsPale(2));
    EXPECT_TRUE(IsInFront(groups.tabs.Browser(1)));
    EXPECT_EQ(near.Caption, "Brindlepost - One");
    EXPECT_EQ(groups.address.txtAddress.Text(), "http://one.example/");
    EXPECT_EQ(state.LastTabUrl, "http://one.example/");
    EXPECT_EQ(groups.tabs.TabLineLeft.X2(), groups.tabs.tabtab(1).Left());
    EXPECT_EQ(groups.tabs.TabLineRight.X1(), groups.tabs.tabtab(1).Right());
}

TEST_F(TabRoom, AClickOnTheLabelDoesTheSame) {
    Open("http://one.example/");
    Open("http://two.example/");

    Click(groups.tabs.tabLabel(1), controls::kMiddleButton);

    EXPECT_EQ(state.currentbrowser, 1);
}

TEST_F(TabRoom, TheRightButtonOnATabPopsUpTheTabMenu) {
    Open("http://one.example/");
    Open("http://two.example/");
    near.Log.clear();

    Click(groups.tabs.tabtab(1), controls::kRightButton);
    Click(groups.tabs.tabLabel(1), controls::kRightButton);

    EXPECT_EQ(near.Log, (Calls{"PopupMenu mnuTab", "PopupMenu mnuTab"}));
    EXPECT_EQ(state.currentbrowser, 2);
}

TEST_F(TabRoom, TheMenuEntryBringsTheTabForward) {
    Open("http://one.example/");
    Open("http://two.example/");

    groups.tabs.mnuTabTab(1).Click.Raise();

    EXPECT_EQ(state.currentbrowser, 1);
}

TEST_F(TabRoom, MovingOverATabShowsThePagesTitleAsToolTip) {
    Open("http://one.example/");
    near.Log.clear();

    groups.tabs.tabtab(1).MouseMove.Raise(0, 0, 0, 0);
    groups.tabs.tabLabel(1).MouseMove.Raise(0, 0, 0, 0);

    EXPECT_EQ(groups.tabs.tabtab(1).ToolTipText(), "One");
    EXPECT_EQ(groups.tabs.tabLabel(1).ToolTipText(), "One");
    EXPECT_EQ(near.Log, Calls{"NoMouseOvers"});
}

TEST_F(TabRoom, AnAddressBeingTypedOutsideWebModeStaysWhenATabComesForward) {
    Open("http://one.example/");
    Open("http://two.example/");
    ChooseMode("Search");
    groups.address.txtAddress.SetText("owls");

    Click(groups.tabs.tabtab(1));

    EXPECT_EQ(groups.address.txtAddress.Text(), "owls");
    EXPECT_EQ(state.LastTabUrl, "http://one.example/");
}

TEST_F(TabRoom, ClosingTheTabInFrontLetsTheLeftmostTakeOver) {
    Open("http://one.example/");
    Open("http://two.example/");
    Open("http://three.example/");

    groups.tabs.tabClose(3).Click.Raise();

    EXPECT_EQ(state.currentbrowser, 1);
    EXPECT_TRUE(IsPale(1));
    EXPECT_TRUE(IsInFront(groups.tabs.Browser(1)));
    EXPECT_EQ(near.Caption, "Brindlepost - One");
}

TEST_F(TabRoom, ClosingATabBehindLeavesTheOneInFront) {
    Open("http://one.example/");
    Open("http://two.example/");

    groups.tabs.tabClose(1).Click.Raise();

    EXPECT_EQ(state.currentbrowser, 2);
    EXPECT_TRUE(IsPale(2));
    EXPECT_EQ(groups.tabs.tabtab(2).Left(), 3480);
}

TEST_F(TabRoom, AClosedTabIsHiddenAndItsPageStaysLoaded) {
    Open("http://one.example/");

    groups.tabs.tabClose(1).Click.Raise();

    EXPECT_FALSE(groups.tabs.Browser(1).Visible());
    EXPECT_FALSE(groups.tabs.tabtab(1).Visible());
    EXPECT_FALSE(groups.tabs.tabLabel(1).Visible());
    EXPECT_FALSE(groups.tabs.tabClose(1).Visible());
    EXPECT_FALSE(groups.tabs.mnuTabTab(1).Visible());
    EXPECT_EQ(groups.tabs.Browser(1).LocationURL(), "http://one.example/");
}

TEST_F(TabRoom, AClosedSlotIsNotUsedAgain) {
    Open("http://one.example/");
    groups.tabs.tabClose(1).Click.Raise();

    const int next = Open("http://two.example/");

    EXPECT_EQ(next, 2);
    EXPECT_EQ(groups.tabs.tabtab(2).Left(), 3480);
}

TEST_F(TabRoom, ClosingTheLastTabBringsTheMusicTabForward) {
    Open("http://one.example/");

    groups.tabs.tabClose(1).Click.Raise();

    EXPECT_TRUE(state.MusicTabActive);
    EXPECT_EQ(groups.tabs.imgMusicTab.Picture(), "/images/musictab_pale.bmp");
    EXPECT_TRUE(IsInFront(near.Panel));
    EXPECT_EQ(near.Caption, "Brindlepost - Music Player");
    EXPECT_EQ(groups.tabs.TabLineLeft.X2(), 840);
    EXPECT_EQ(groups.tabs.TabLineRight.X1(), 3480);
    EXPECT_FALSE(groups.tabs.BrowserBG.Visible());
}

TEST_F(TabRoom, ClosingTheLastTabWithoutAMusicTabShowsTheBackdrop) {
    Open("http://one.example/");
    groups.tabs.tabMusicClose.Click.Raise();

    groups.tabs.tabClose(1).Click.Raise();

    EXPECT_TRUE(groups.tabs.BrowserBG.Visible());
    EXPECT_TRUE(IsInFront(groups.tabs.BrowserBG));
    EXPECT_FALSE(state.BackdropHidden);
    EXPECT_FALSE(state.TabsShown);
    EXPECT_EQ(groups.tabs.BrowserBG.WaitingAddress(),
              std::string(web::MakerSiteUrl) + "/?referrer=quennet&origin=Brindlepost_BG");
    EXPECT_EQ(groups.tabs.TabLineLeft.X2(), near.WindowWidth);
    // The steps go through the music tab that is not there.
    EXPECT_TRUE(state.MusicTabActive);
    EXPECT_EQ(near.Caption, "Brindlepost - Music Player");
    EXPECT_FALSE(groups.tabs.imgMusicTab.Visible());
}

TEST_F(TabRoom, WithTheMusicTabClosedATabThatComesForwardGivesTheKeyboardToTheAddressRow) {
    Open("http://one.example/");
    Open("http://two.example/");
    groups.tabs.tabMusicClose.Click.Raise();
    Focused = 0;

    Click(groups.tabs.tabtab(2));

    EXPECT_EQ(Focused, 1);
    EXPECT_TRUE(state.TabsShown);
    EXPECT_EQ(groups.tabs.TabLineLeft.X2(), groups.tabs.tabtab(2).Left());
}

TEST_F(TabRoom, TheViewMenuOnAClosedMusicTabChangesTheCaptionAndLeavesThePageThere) {
    Open("http://one.example/");
    groups.tabs.tabMusicClose.Click.Raise();

    menu.mnuViewMusicTab.Click.Raise();

    EXPECT_TRUE(state.MusicTabActive);
    EXPECT_EQ(near.Caption, "Brindlepost - Music Player");
    EXPECT_FALSE(IsPale(1));
    EXPECT_FALSE(near.Panel.Visible());
    EXPECT_TRUE(groups.tabs.Browser(1).Visible());
    EXPECT_FALSE(groups.tabs.imgMusicTab.Visible());
}

TEST_F(TabRoom, AScreenThatWatchesFindsTheEventsOfANewTabClaimed) {
    struct Watcher final : controls::ControlObserver {
        void OnPropertyChanged(controls::Control& control, controls::Property property) override {
            if (property != controls::Property::Parent || control.Index() != 1) return;
            if (control.Click.IsClaimed() || control.MouseUp.IsClaimed()) Claimed.push_back(control.Name());
        }
        Calls Claimed;
    } watcher;
    form.SetObserver(&watcher);

    Open("http://one.example/");

    form.SetObserver(nullptr);
    EXPECT_EQ(watcher.Claimed, (Calls{"tabtab", "tabLabel", "tabClose"}));
    EXPECT_EQ(groups.tabs.tabClose(1).AccessibleName(), "Close this tab");
}

TEST_F(TabRoom, WithoutAMusicTabTheLeftmostStillTakesOver) {
    Open("http://one.example/");
    Open("http://two.example/");
    groups.tabs.tabMusicClose.Click.Raise();
    Click(groups.tabs.tabtab(2));

    groups.tabs.tabClose(2).Click.Raise();

    EXPECT_EQ(state.currentbrowser, 1);
    EXPECT_EQ(groups.tabs.tabtab(1).Left(), 1560);
}

TEST_F(TabRoom, ANewTabLiesOverTheBackdropWhichIsNotHidden) {
    groups.tabs.tabMusicClose.Click.Raise();

    const int tab = Open("http://one.example/");

    EXPECT_TRUE(groups.tabs.BrowserBG.Visible());
    EXPECT_TRUE(IsInFront(groups.tabs.Browser(tab)));
    EXPECT_TRUE(state.BackdropHidden);
    EXPECT_EQ(groups.tabs.tabtab(tab).Left(), 1560);
}

TEST_F(TabRoom, CloseAllTabsEndsTheSameWithSlotsLongClosed) {
    Open("http://one.example/");
    Open("http://two.example/");
    Open("http://three.example/");
    groups.tabs.tabClose(2).Click.Raise();

    menu.mnuCloseAllTabs.Click.Raise();

    for (int i = 1; i <= 3; ++i)
        EXPECT_FALSE(groups.tabs.Browser(i).Visible()) << i;
    EXPECT_TRUE(state.MusicTabActive);
    EXPECT_EQ(near.Caption, "Brindlepost - Music Player");
}

TEST_F(TabRoom, CloseCurrentTabClosesTheOneInFront) {
    Open("http://one.example/");
    Open("http://two.example/");

    menu.mnuCloseCurrentTab.Click.Raise();

    EXPECT_FALSE(groups.tabs.Browser(2).Visible());
    EXPECT_TRUE(groups.tabs.Browser(1).Visible());
}

TEST_F(TabRoom, CloseCurrentTabDoesNothingWithTheMusicTabInFront) {
    Open("http://one.example/");
    Click(groups.tabs.imgMusicTab);

    menu.mnuCloseCurrentTab.Click.Raise();

    EXPECT_TRUE(groups.tabs.Browser(1).Visible());
}

TEST_F(TabRoom, TheMusicTabComesForwardAndClearsTheAddress) {
    Open("http://one.example/");

    Click(groups.tabs.imgMusicTab);

    EXPECT_TRUE(state.MusicTabActive);
    EXPECT_FALSE(IsPale(1));
    EXPECT_TRUE(IsInFront(near.Panel));
    EXPECT_EQ(groups.address.txtAddress.Text(), "");
    EXPECT_EQ(near.Caption, "Brindlepost - Music Player");
    EXPECT_EQ(state.currentbrowser, 1);
}

TEST_F(TabRoom, TheViewMenuBringsTheMusicTabForward) {
    Open("http://one.example/");

    menu.mnuViewMusicTab.Click.Raise();

    EXPECT_TRUE(state.MusicTabActive);
}

TEST_F(TabRoom, TheRightButtonOnTheMusicTabPopsUpItsMenu) {
    Open("http://one.example/");
    near.Log.clear();

    Click(groups.tabs.imgMusicTab, controls::kRightButton);

    EXPECT_EQ(near.Log, Calls{"PopupMenu mnuMusicPlayer"});
    EXPECT_FALSE(state.MusicTabActive);
}

TEST_F(TabRoom, ClosingTheMusicTabStopsTheMusic) {
    near.Track = "Lark And Moor - Evening Post";

    groups.tabs.tabMusicClose.Click.Raise();

    EXPECT_EQ(near.Log, (Calls{"StopAndForget", "SendNothingPlaying"}));
    EXPECT_EQ(near.Track, "");
    EXPECT_FALSE(groups.tabs.imgMusicTab.Visible());
    EXPECT_TRUE(groups.tabs.imgMusicTabMini.Visible());
    EXPECT_FALSE(groups.tabs.tabMusicClose.Visible());
    EXPECT_FALSE(near.Panel.Visible());
    EXPECT_FALSE(state.MusicTabActive);
    EXPECT_TRUE(state.ClosingMusicTab);
    EXPECT_GT(Focused, 0);
}

TEST_F(TabRoom, ClosingTheMusicTabBringsTheFirstOpenTabForward) {
    Open("http://one.example/");
    Open("http://two.example/");
    groups.tabs.tabClose(1).Click.Raise();
    Open("http://three.example/");
    Click(groups.tabs.imgMusicTab);

    groups.tabs.tabMusicClose.Click.Raise();

    EXPECT_EQ(state.currentbrowser, 2);
    EXPECT_TRUE(IsInFront(groups.tabs.Browser(2)));
}

TEST_F(TabRoom, TheSmallButtonOpensTheMusicTabAgain) {
    Open("http://one.example/");
    groups.tabs.tabMusicClose.Click.Raise();
    near.Log.clear();

    groups.tabs.imgMusicTabMini.Click.Raise();

    EXPECT_EQ(near.Log, (Calls{"Form_Resize", "RefillIfEmpty", "OfferToAddMedia"}));
    EXPECT_TRUE(groups.tabs.imgMusicTab.Visible());
    EXPECT_FALSE(groups.tabs.imgMusicTabMini.Visible());
    EXPECT_TRUE(groups.tabs.tabMusicClose.Visible());
    EXPECT_TRUE(near.Panel.Visible());
    EXPECT_TRUE(state.MusicTabActive);
    EXPECT_EQ(groups.address.txtAddress.Text(), "");
    EXPECT_EQ(groups.tabs.tabtab(1).Left(), 3480);
    EXPECT_EQ(desktop.Yields, 1);
}

TEST_F(TabRoom, TheTabMenuOpensTheMusicTab) {
    groups.tabs.tabMusicClose.Click.Raise();

    menu.mnuMusicTabTab.Click.Raise();

    EXPECT_TRUE(groups.tabs.imgMusicTab.Visible());
}

TEST_F(TabRoom, WithTheMusicTabClosedAndNoOtherTheTitleNamesNone) {
    groups.tabs.tabMusicClose.Click.Raise();

    EXPECT_EQ(near.Caption, "Brindlepost");
}

TEST_F(TabRoom, WithNothingInFrontTheLastAddressGoes) {
    groups.tabs.tabMusicClose.Click.Raise();
    rooms.Address().ShowLocation("http://example.org/");
    state.LastTabUrl = "http://example.org/";

    rooms.Tabs().CorrectTabs();

    EXPECT_EQ(near.Caption, "Brindlepost");
    EXPECT_EQ(groups.address.txtAddress.Text(), "");
    EXPECT_FALSE(state.TabsShown);
    EXPECT_EQ(groups.tabs.TabLineLeft.X2(), near.WindowWidth);
}

TEST_F(TabRoom, WithNothingInFrontATypedTextStays) {
    groups.tabs.tabMusicClose.Click.Raise();
    groups.address.txtAddress.SetText("half an addr");

    rooms.Tabs().CorrectTabs();

    EXPECT_EQ(groups.address.txtAddress.Text(), "half an addr");
}

TEST_F(TabRoom, AFrontTabThatIsNotThereCountsAsNone) {
    state.currentbrowser = 1;
    state.MusicTabActive = false;

    rooms.Tabs().CorrectTabs();

    EXPECT_EQ(near.Caption, "Brindlepost");
    EXPECT_FALSE(state.TabsShown);
    EXPECT_EQ(groups.tabs.TabLineLeft.X2(), near.WindowWidth);
}

TEST_F(TabRoom, CloseCurrentTabClosesNothingWhenTheFrontTabIsNotThere) {
    state.currentbrowser = 1;
    state.MusicTabActive = false;

    menu.mnuCloseCurrentTab.Click.Raise();

    EXPECT_EQ(LastTab(), 0);
    EXPECT_EQ(near.Caption, "Brindlepost - Music Player");
}

TEST_F(TabRoom, ATabPastTheWindowsEdgeStillGetsItsPlace) {
    for (int i = 0; i < 8; ++i)
        Open("http://one.example/");

    EXPECT_EQ(groups.tabs.tabtab(8).Left(), 3480 + 7 * groups.tabs.tabtab(0).Width());
    EXPECT_EQ(groups.tabs.TabLineRight.X1(), groups.tabs.tabtab(8).Right());
    EXPECT_GT(groups.tabs.TabLineRight.X2(), 10 * near.WindowWidth) << "a window that grows shows more of it";
}

TEST_F(TabRoom, EveryChangePutsTheKeyboardIntoTheAddressBox) {
    const int before = Focused;

    rooms.Tabs().CorrectTabs();

    EXPECT_EQ(Focused, before + 1);
}

}  // namespace
