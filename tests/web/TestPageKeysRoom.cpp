#include "web/PageKeysRoom.h"

#include "controls/KeyCodes.h"
#include "web/WebHarness.h"

namespace {

using web_tests::Calls;
using web_tests::WebTest;

constexpr int kControl = controls::kControlMask;
constexpr int kControlShift = controls::kControlMask | controls::kShiftMask;
constexpr int kAlt = controls::kAltMask;

class PageKeysTest : public WebTest {
protected:
    bool Press(int key, int shift) { return rooms.Keys().Take(key, shift); }
    void OpenThree() {
        Open("one.example");
        Open("two.example");
        Open("three.example");
    }
    int Front() const { return state.MusicTabActive ? 0 : state.currentbrowser; }
};

TEST_F(PageKeysTest, WalkingTheTabsGoesRoundAndTakesTheMusicTabWithIt) {
    OpenThree();

    Calls seen;
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(Press(controls::kKeyTab, kControl));
        seen.push_back(std::to_string(Front()));
    }
    EXPECT_EQ(seen, (Calls{"0", "1", "2", "3"}));

    EXPECT_TRUE(Press(controls::kKeyTab, kControlShift));
    EXPECT_EQ(Front(), 2);
}

TEST_F(PageKeysTest, WalkingLeavesOutClosedTabsAndTheClosedMusicTab) {
    OpenThree();
    groups.tabs.tabMusicClose.Click.Raise();
    groups.tabs.tabClose(2).Click.Raise();
    ASSERT_EQ(Front(), 1);

    Press(controls::kKeyTab, kControl);
    EXPECT_EQ(Front(), 3);
    Press(controls::kKeyTab, kControl);
    EXPECT_EQ(Front(), 1);
}

TEST_F(PageKeysTest, WithNothingOpenWalkingDoesNothing) {
    groups.tabs.tabMusicClose.Click.Raise();

    EXPECT_TRUE(Press(controls::kKeyTab, kControl));

    EXPECT_EQ(state.currentbrowser, 0);
}

TEST_F(PageKeysTest, ADigitShowsTheTabAtThatPlaceOfTheStripAndNineTheLast) {
    OpenThree();

    Press('1', kControl);
    EXPECT_EQ(Front(), 0);
    Press('3', kControl);
    EXPECT_EQ(Front(), 2);
    Press('9', kControl);
    EXPECT_EQ(Front(), 3);
    Press('8', kControl);
    EXPECT_EQ(Front(), 3) << "there is no eighth";
}

TEST_F(PageKeysTest, ATabClosedByKeyComesBackWithItsPage) {
    OpenThree();
    EXPECT_TRUE(Press('W', kControl));
    ASSERT_FALSE(groups.tabs.tabtab(3).Visible());

    EXPECT_TRUE(Press('T', kControlShift));

    EXPECT_EQ(Front(), 3);
    EXPECT_TRUE(groups.tabs.Browser(3).Visible());
    EXPECT_TRUE(groups.tabs.tabLabel(3).Visible());
    EXPECT_TRUE(groups.tabs.tabClose(3).Visible());
    EXPECT_TRUE(groups.tabs.mnuTabTab(3).Visible());
    EXPECT_EQ(near.Caption, "Brindlepost - Three");
    EXPECT_EQ(groups.tabs.tabtab(3).Left(), groups.tabs.tabtab(2).Right());
    EXPECT_EQ(groups.tabs.Browser.Count(), 4) << "no slot is made";
}

TEST_F(PageKeysTest, ClosedTabsComeBackLastFirstEachOnce) {
    OpenThree();
    groups.tabs.tabClose(1).Click.Raise();
    groups.tabs.tabClose(3).Click.Raise();

    Press('T', kControlShift);
    EXPECT_TRUE(groups.tabs.Browser(3).Visible());
    EXPECT_FALSE(groups.tabs.Browser(1).Visible());
    Press('T', kControlShift);
    EXPECT_TRUE(groups.tabs.Browser(1).Visible());
    EXPECT_EQ(Front(), 1);
    Press('T', kControlShift);
    EXPECT_EQ(Front(), 1) << "nothing is left to come back";
}

TEST_F(PageKeysTest, TheLastTabComesBackOverTheBackdrop) {
    Open("one.example");
    groups.tabs.tabMusicClose.Click.Raise();
    groups.tabs.tabClose(1).Click.Raise();
    ASSERT_FALSE(state.BackdropHidden);

    Press('T', kControlShift);

    EXPECT_TRUE(state.BackdropHidden);
    EXPECT_TRUE(state.TabsShown);
    EXPECT_TRUE(IsInFront(groups.tabs.Browser(1)));
    EXPECT_EQ(near.Caption, "Brindlepost - One");
}

TEST_F(PageKeysTest, ATabWhosePageEndedWithItsUserDoesNotComeBack) {
    Open("one.example");
    groups.tabs.tabClose(1).Click.Raise();
    groups.tabs.Browser(1).Attach(nullptr);

    Press('T', kControlShift);

    EXPECT_FALSE(groups.tabs.Browser(1).Visible());
}

TEST_F(PageKeysTest, WithTheMusicTabInFrontTheCloseKeyClosesNothing) {
    Open("one.example");
    Click(groups.tabs.imgMusicTab);

    Press('W', kControl);

    EXPECT_TRUE(groups.tabs.Browser(1).Visible());
    EXPECT_TRUE(groups.tabs.imgMusicTab.Visible());
}

TEST_F(PageKeysTest, TheEmptyTabGoesWhenItsAddressGetsATab) {
    Press('T', kControl);
    ASSERT_EQ(Front(), 1);
    EXPECT_EQ(Engine(1).Calls.back(), "Navigate " + std::string(web::MakerSiteUrl));

    Enter("one.example");

    EXPECT_EQ(Front(), 2);
    EXPECT_FALSE(groups.tabs.Browser(1).Visible());
    EXPECT_EQ(groups.tabs.tabtab(2).Left(), web::kFirstTabLeft);
    Press('T', kControlShift);
    EXPECT_FALSE(groups.tabs.Browser(1).Visible()) << "it was never a tab of the user's";
}

TEST_F(PageKeysTest, AnEmptyTabThatWentSomewhereStays) {
    web_["http://one.example/"].pop_up.clear();
    Press('T', kControl);
    Engine(1).Navigate("one.example");
    Settle(1);

    Enter("two.example");

    EXPECT_TRUE(groups.tabs.Browser(1).Visible());
}

TEST_F(PageKeysTest, ThePageKeysDoAsTheButtonsDo) {
    Open("one.example");
    Engine(1).Calls.clear();

    EXPECT_TRUE(Press('R', kControl));
    EXPECT_TRUE(Press(controls::kKeyF5, 0));
    EXPECT_TRUE(Press(37, kAlt));
    EXPECT_TRUE(Press(39, kAlt));

    EXPECT_EQ(Engine(1).Calls, (Calls{"Refresh", "Refresh", "GoBack", "GoForward"}));
}

TEST_F(PageKeysTest, WithoutAConnectionTheyShowTheBox) {
    Open("one.example");
    session.Internet_Connection = false;

    Press(controls::kKeyF5, 0);

    ASSERT_EQ(dialogs.Boxes.size(), 1u);
    EXPECT_EQ(dialogs.Boxes[0].title, "No Internet Connection");
}

TEST_F(PageKeysTest, FavouriteAndFullScreenHaveTheirKeys) {
    EXPECT_TRUE(Press('D', kControl));
    EXPECT_TRUE(Press(controls::kKeyF11, 0));

    EXPECT_TRUE(Logged("AddPageInFront"));
    EXPECT_TRUE(Logged("ToggleFullScreen"));
}

TEST_F(PageKeysTest, DownloadsComeFromAnywhere) {
    EXPECT_TRUE(Press('J', kControl));
    Open("one.example");
    EXPECT_TRUE(Press('J', kControl));

    EXPECT_EQ(engine.Log, (Calls{"Downloads", "Downloads"}));
}

TEST_F(PageKeysTest, EscapeStopsAPageOnItsWayAndIsElseLeftToWhatHasTheKeyboard) {
    Open("one.example");
    EXPECT_FALSE(Press(controls::kKeyEscape, 0));
    Engine(1).Navigate("two.example");

    EXPECT_TRUE(Press(controls::kKeyEscape, 0));

    EXPECT_EQ(Engine(1).Calls.back(), "Stop");
    EXPECT_FALSE(groups.tabs.Browser(1).Busy());
    EXPECT_EQ(groups.tabs.Browser(1).LocationURL(), "http://one.example/");
}

TEST_F(PageKeysTest, OtherKeysAreOfferedToThePageInFrontOnly) {
    Open("one.example");
    Engine(1).OwnKeys = {{'F', kControl}};
    EXPECT_TRUE(Press('F', kControl));
    EXPECT_FALSE(Press('G', kControl));

    Click(groups.tabs.imgMusicTab);
    EXPECT_FALSE(Press('F', kControl));
}

TEST_F(PageKeysTest, ThePagesOwnEscapeComesBeforeTheStop) {
    Open("one.example");
    Engine(1).OwnKeys = {{controls::kKeyEscape, 0}};
    Engine(1).Navigate("two.example");

    EXPECT_TRUE(Press(controls::kKeyEscape, 0));

    EXPECT_EQ(Engine(1).Calls.back(), "TakeKey 27 0");
    EXPECT_TRUE(groups.tabs.Browser(1).Busy());
}

TEST_F(PageKeysTest, TheBackdropAnswersWhenItIsWhatShows) {
    groups.tabs.tabMusicClose.Click.Raise();
    ASSERT_FALSE(state.BackdropHidden);
    BackdropEngine().OwnKeys = {{'F', kControl}};

    EXPECT_TRUE(Press('F', kControl));
}

}  // namespace
