#include <gtest/gtest.h>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

class TabsStory : public testing::Test {
protected:
    TabsStory() {
        computer.AddUser("Ann", "rose");
        computer.AddToLibrary(1, "Sun", "Rise");
        computer.AddPage("http://one.example/", "One");
        computer.AddPage("http://two.example/", "Two");
        program.StartAndLogIn("Ann", "rose");
    }

    web::TabControls& Tabs() { return program.Browser().web.tabs; }
    std::string Typed() { return program.Browser().web.address.txtAddress.Text(); }
    void GoToAndArrive(std::string_view address) {
        program.GoTo(address);
        program.LetPagesArrive();
    }

    Computer computer;
    Program program{computer};
};

TEST_F(TabsStory, TheMusicTabIsInFrontAtFirst) {
    EXPECT_TRUE(Tabs().imgMusicTab.Visible());
    EXPECT_TRUE(program.Browser().chrome.fraMusicTab.Visible());
    EXPECT_EQ(program.Browser().Caption(), "Brindlepost - Music Player");
    EXPECT_EQ(Tabs().tabtab.Count(), 1);
}

TEST_F(TabsStory, AnAddressAndEnterMakeATabWhoseTitleArrives) {
    program.GoTo("one.example");
    ASSERT_EQ(Tabs().tabtab.Count(), 2);
    EXPECT_TRUE(Tabs().tabtab(1).Visible());
    EXPECT_EQ(Tabs().tabLabel(1).Caption(), "");

    program.LetPagesArrive();

    EXPECT_EQ(Tabs().tabLabel(1).Caption(), "One");
    EXPECT_EQ(Tabs().mnuTabTab(1).Caption(), "One");
    EXPECT_EQ(program.Browser().Caption(), "Brindlepost - One");
    EXPECT_EQ(Tabs().Browser(1).LocationURL(), "http://one.example/");
    EXPECT_FALSE(program.main_window.Known().web.MusicTabActive);
}

TEST_F(TabsStory, AVisitedAddressIsInTheHistory) {
    GoToAndArrive("one.example");

    const auto rows = computer.database.Rows(scenario::kHistoryPath, "tblHistory");
    EXPECT_EQ(rows.back()[1], "Web");
    EXPECT_NE(rows.back()[2].find("one.example"), std::string::npos);
}

TEST_F(TabsStory, ASecondTabStandsBesideTheFirstAndComesForwardByAClick) {
    GoToAndArrive("one.example");
    GoToAndArrive("two.example");
    EXPECT_EQ(program.Browser().Caption(), "Brindlepost - Two");
    EXPECT_EQ(Tabs().tabtab(2).Left(), Tabs().tabtab(1).Right());
    EXPECT_EQ(Tabs().tabtab(2).Picture(), "/images/pale.bmp");
    EXPECT_EQ(Tabs().tabtab(1).Picture(), "\\images\\dark.bmp");

    Tabs().tabLabel(1).MouseUp.Raise(controls::kLeftButton, 0, 5, 5);

    EXPECT_EQ(program.Browser().Caption(), "Brindlepost - One");
    EXPECT_EQ(Typed(), "http://one.example/");
    EXPECT_EQ(Tabs().tabtab(1).Picture(), "/images/pale.bmp");
}

TEST_F(TabsStory, TheMusicTabComesForwardAndTheTabStays) {
    GoToAndArrive("one.example");

    Tabs().imgMusicTab.MouseUp.Raise(controls::kLeftButton, 0, 5, 5);

    EXPECT_TRUE(program.main_window.Known().web.MusicTabActive);
    EXPECT_EQ(program.Browser().Caption(), "Brindlepost - Music Player");
    EXPECT_TRUE(Tabs().tabtab(1).Visible());
    EXPECT_EQ(program.Browser().Children().back(), &program.Browser().chrome.fraMusicTab);
}

// The player's ticks take away what is left of the page; Enter then opened a tab without a page.
TEST_F(TabsStory, BesideTheMusicTheAddressOfTheLastPageCanBeTypedAgain) {
    GoToAndArrive("http://one.example/");
    Tabs().imgMusicTab.MouseUp.Raise(controls::kLeftButton, 0, 5, 5);
    program.Browser().web.address.txtAddress.SetText("http://one.example/");

    program.Wait(500);
    program.PressEnter(program.Browser().web.address.txtAddress);
    program.LetPagesArrive();

    ASSERT_EQ(Tabs().tabtab.Count(), 3);
    EXPECT_EQ(Tabs().Browser(2).LocationURL(), "http://one.example/");
    EXPECT_EQ(program.Browser().Caption(), "Brindlepost - One");
}

// A page that arrives behind the music has its address shown, and taken away again.
TEST_F(TabsStory, BesideTheMusicNoPagesAddressIsLeft) {
    program.GoTo("http://one.example/");
    Tabs().imgMusicTab.MouseUp.Raise(controls::kLeftButton, 0, 5, 5);
    program.LetPagesArrive();

    program.Wait(500);

    EXPECT_EQ(Typed(), "");
}

TEST_F(TabsStory, AClosedTabGivesWayToTheOneBesideIt) {
    GoToAndArrive("one.example");
    GoToAndArrive("two.example");

    program.Click(Tabs().tabClose(2));

    EXPECT_FALSE(Tabs().tabtab(2).Visible());
    EXPECT_FALSE(Tabs().Browser(2).Visible());
    EXPECT_EQ(program.Browser().Caption(), "Brindlepost - One");
    EXPECT_EQ(program.main_window.Known().web.currentbrowser, 1);
}

TEST_F(TabsStory, TheLastClosedTabBringsTheMusicBack) {
    GoToAndArrive("one.example");

    program.Click(Tabs().tabClose(1));

    EXPECT_TRUE(program.main_window.Known().web.MusicTabActive);
    EXPECT_EQ(program.Browser().Caption(), "Brindlepost - Music Player");
}

TEST_F(TabsStory, TheMusicTabClosesAndOpensAgainFromItsSmallButton) {
    GoToAndArrive("one.example");

    program.Click(Tabs().tabMusicClose);
    EXPECT_FALSE(program.Browser().chrome.fraMusicTab.Visible());
    EXPECT_EQ(Tabs().tabtab(1).Left(), web::kFirstTabLeftWithoutMusic);
    program.Click(Tabs().imgMusicTabMini);

    EXPECT_TRUE(program.Browser().chrome.fraMusicTab.Visible());
    EXPECT_EQ(Tabs().tabtab(1).Left(), web::kFirstTabLeft);
    EXPECT_TRUE(program.main_window.Known().web.MusicTabActive);
}

TEST_F(TabsStory, BackAndForwardReachThePageInFront) {
    GoToAndArrive("one.example");
    program.PageOf(1)->Navigate("http://two.example/");
    program.LetPagesArrive();

    program.Click(program.Browser().web.navigation.imgBackOver);
    program.LetPagesArrive();
    EXPECT_EQ(Tabs().Browser(1).LocationURL(), "http://one.example/");
    program.Click(program.Browser().menus.mnuGoForward);
    program.LetPagesArrive();

    EXPECT_EQ(Tabs().Browser(1).LocationURL(), "http://two.example/");
    EXPECT_EQ(Tabs().tabLabel(1).Caption(), "Two");
}

TEST_F(TabsStory, APageIsRefreshedByItselfWhileTheCheckIsOn) {
    GoToAndArrive("one.example");
    program.Browser().web.refresh.txtRefresh.SetText("3");
    program.Click(program.Browser().web.refresh.imgCheck);
    EXPECT_TRUE(program.Browser().web.refresh.imgCheckChecked.Visible());
    program.PageOf(1)->Calls.clear();

    program.Wait(10'000);
    program.LetPagesArrive();

    EXPECT_GE(program.PageOf(1)->Calls.size(), 2U);
    program.Click(program.Browser().web.refresh.imgCheckChecked);
    program.PageOf(1)->Calls.clear();
    program.Wait(10'000);
    EXPECT_TRUE(program.PageOf(1)->Calls.empty());
}

TEST_F(TabsStory, ThePageInFrontBecomesAFavouriteAndIsVisitedFromThePanel) {
    GoToAndArrive("one.example");
    auto& panel = program.Browser().favourites;
    EXPECT_EQ(panel.cmdFavs.Caption(), "<");

    program.Click(panel.imgAddOver);
    auto& dialog = program.windows.add;
    ASSERT_TRUE(dialog.frmAdd.Visible());
    EXPECT_EQ(dialog.txtName.Text(), "One");
    EXPECT_EQ(dialog.txtURL.Text(), "http://one.example/");
    dialog.lstGroup.SetListIndex(0);
    program.Click(dialog.cmdAdd);

    const auto rows = computer.database.Rows(scenario::kFavouritesPath, "tblFavs");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[1][1], "Home Pages");
    EXPECT_EQ(rows[1][2], "  - One");
    EXPECT_EQ(rows[1][3], "http://one.example/");

    ASSERT_TRUE(panel.lstFavs.SelectText("Home Pages"));
    ASSERT_TRUE(panel.lstFavs.SelectText("  - One"));
    EXPECT_EQ(Typed(), "http://one.example/");
    program.DoubleClick(panel.lstFavs);
    program.LetPagesArrive();
    EXPECT_EQ(Tabs().tabtab.Count(), 3);
    EXPECT_EQ(Tabs().tabLabel(2).Caption(), "One");
}

TEST_F(TabsStory, ASearchOpensItsPageAndIsRemembered) {
    program.Browser().web.address.cmbType.SetText("Search");

    program.GoTo("red roses");

    ASSERT_EQ(Tabs().tabtab.Count(), 2);
    EXPECT_NE(program.PageOf(1)->Calls.front().find("red"), std::string::npos);
    const auto rows = computer.database.Rows(scenario::kHistoryPath, "tblHistory");
    EXPECT_EQ(rows.back()[1], "Search");
    EXPECT_EQ(rows.back()[2], "red roses");
}

TEST_F(TabsStory, AVisitedPageIsOfferedByTheAddressListLater) {
    GoToAndArrive("one.example");
    GoToAndArrive("two.example");
    auto& address = program.Browser().web.address.cmbAddress;

    bool offered = false;
    for (int row = 0; row < address.ListCount(); ++row)
        offered = offered || address.List(row).find("one.example") != std::string_view::npos;

    EXPECT_TRUE(offered);
}

TEST_F(TabsStory, AllTabsCloseAtOnce) {
    GoToAndArrive("one.example");
    GoToAndArrive("two.example");

    program.Click(program.Browser().menus.mnuCloseAllTabs);

    EXPECT_FALSE(Tabs().tabtab(1).Visible());
    EXPECT_FALSE(Tabs().tabtab(2).Visible());
    EXPECT_TRUE(program.main_window.Known().web.MusicTabActive);
}

TEST_F(TabsStory, WithEverythingClosedTheBackdropShows) {
    GoToAndArrive("one.example");
    program.Click(Tabs().tabMusicClose);

    program.Click(Tabs().tabClose(1));

    EXPECT_TRUE(Tabs().BrowserBG.Visible());
    EXPECT_EQ(program.Browser().Children().back(), &Tabs().BrowserBG);
    EXPECT_FALSE(program.Browser().chrome.fraMusicTab.Visible());
}

TEST_F(TabsStory, AClosedPanelGivesItsPlaceToThePages) {
    GoToAndArrive("one.example");
    const double left = Tabs().Browser(1).Left();

    program.Click(program.Browser().favourites.cmdFavs);

    EXPECT_EQ(left, 3000);
    EXPECT_EQ(Tabs().Browser(1).Left(), 375);
    EXPECT_FALSE(program.Browser().favourites.fraFavs.Visible());
    EXPECT_FALSE(program.Browser().chrome.lblCopyright.Visible());
}

TEST_F(TabsStory, TheAboutBoxOpensTheMakersPages) {
    const std::string updates =
        "brindlepost://start/index.php?page=applications&page2=brindlepost&page3=updates"
        "&referrer=quennet&origin=Brindlepost";
    const std::string home = "brindlepost://start/?referrer=quennet&origin=Brindlepost";
    computer.AddPage(home, "Start page");
    computer.AddPage(updates, "Updates");
    program.Click(program.Browser().menus.mnuAbout);
    ASSERT_TRUE(program.windows.about.frmAbout.Visible());

    program.Click(program.windows.about.cmdLarkmoorHome);
    program.Click(program.windows.about.cmdUpdates);
    program.LetPagesArrive();

    const auto& browsers = program.Browser().web.tabs.Browser;
    ASSERT_EQ(browsers.Count(), 3);
    EXPECT_EQ(program.PageOf(1)->LocationURL(), home);
    EXPECT_EQ(program.PageOf(2)->LocationURL(), updates);
    program.Click(program.windows.about.cmdSysInfo);
    EXPECT_EQ(program.BoxTexts(),
              (std::vector<std::string>{"System Information Is Unavailable At This Time"}));
    program.Click(program.windows.about.cmdOK);
    EXPECT_FALSE(program.windows.about.frmAbout.IsLoaded());
}

}  // namespace
