#include "web/WebHarness.h"

namespace {

using RefreshRoom = web_tests::WebTest;
using web_tests::Calls;

TEST_F(RefreshRoom, ItIsOffAtFirst) {
    EXPECT_FALSE(groups.refresh.imgCheckChecked.Visible());
    EXPECT_FALSE(groups.refresh.txtRefresh.Visible());
    EXPECT_FALSE(groups.refresh.tmrRefresh.Enabled());
    EXPECT_EQ(groups.refresh.tmrRefresh.Interval(), 1000);
}

TEST_F(RefreshRoom, TheMenuSetsTheSecondsAndSwitchesItOn) {
    dialogs.Typed = {"5"};

    menu.mnuSetAutoRefresh.Click.Raise();

    ASSERT_EQ(dialogs.Inputs.size(), 1U);
    EXPECT_EQ(dialogs.Inputs[0].prompt, "How long do you want between each auto refresh?");
    EXPECT_EQ(dialogs.Inputs[0].title, "Auto Refresh");
    EXPECT_EQ(dialogs.Inputs[0].default_text, "60");
    EXPECT_EQ(groups.refresh.txtRefresh.Text(), "5");
    EXPECT_TRUE(groups.refresh.imgCheckChecked.Visible());
    EXPECT_TRUE(groups.refresh.txtRefresh.Visible());
    EXPECT_TRUE(groups.refresh.tmrRefresh.Enabled());
}

TEST_F(RefreshRoom, AnAnswerThatIsNoNumberChangesNothing) {
    dialogs.Typed = {"soon"};

    menu.mnuSetAutoRefresh.Click.Raise();

    EXPECT_FALSE(groups.refresh.tmrRefresh.Enabled());
    EXPECT_EQ(groups.refresh.txtRefresh.Text(), "60");
    EXPECT_TRUE(dialogs.Boxes.empty());
}

TEST_F(RefreshRoom, TheMenuNeedsNoConnection) {
    session.Internet_Connection = false;
    dialogs.Typed = {"5"};

    menu.mnuSetAutoRefresh.Click.Raise();

    EXPECT_TRUE(groups.refresh.tmrRefresh.Enabled());
}

TEST_F(RefreshRoom, TheBoxSwitchesItOnAndOff) {
    groups.refresh.imgCheck.Click.Raise();
    const bool was_on = groups.refresh.tmrRefresh.Enabled() && groups.refresh.imgCheckChecked.Visible();
    state.RefreshSeconds = 3;

    groups.refresh.imgCheckChecked.Click.Raise();

    EXPECT_TRUE(was_on);
    EXPECT_FALSE(groups.refresh.tmrRefresh.Enabled());
    EXPECT_FALSE(groups.refresh.imgCheckChecked.Visible());
    EXPECT_FALSE(groups.refresh.txtRefresh.Visible());
    EXPECT_EQ(state.RefreshSeconds, 0);
}

TEST_F(RefreshRoom, OthersSwitchItOff) {
    groups.refresh.imgCheck.Click.Raise();
    state.RefreshSeconds = 3;

    rooms.Refresh().SwitchOff();

    EXPECT_FALSE(groups.refresh.tmrRefresh.Enabled());
    EXPECT_FALSE(groups.refresh.imgCheckChecked.Visible());
    EXPECT_FALSE(groups.refresh.txtRefresh.Visible());
    EXPECT_EQ(state.RefreshSeconds, 0);
}

TEST_F(RefreshRoom, WhereItIsOffThereIsNothingToSwitchOff) {
    state.RefreshSeconds = 3;

    rooms.Refresh().SwitchOff();

    EXPECT_EQ(state.RefreshSeconds, 3);
}

TEST_F(RefreshRoom, TheBoxNeedsAConnection) {
    session.Internet_Connection = false;

    groups.refresh.imgCheck.Click.Raise();

    EXPECT_FALSE(groups.refresh.tmrRefresh.Enabled());
    EXPECT_EQ(dialogs.Boxes.size(), 1U);
}

TEST_F(RefreshRoom, TheTabInFrontIsRefreshedEachTimeTheSecondsAreOver) {
    Open("http://one.example/");
    Open("http://two.example/");
    Engine(1).Calls.clear();
    Engine(2).Calls.clear();
    groups.refresh.txtRefresh.SetText("3");
    groups.refresh.imgCheck.Click.Raise();

    desktop.Advance(6500);

    EXPECT_EQ(Engine(2).Calls, (Calls{"Refresh", "Refresh"}));
    EXPECT_TRUE(Engine(1).Calls.empty());
}

TEST_F(RefreshRoom, UnderTheMusicTabTheLastTabIsRefreshed) {
    Open("http://one.example/");
    Click(groups.tabs.imgMusicTab);
    Engine(1).Calls.clear();
    groups.refresh.txtRefresh.SetText("1");
    groups.refresh.imgCheck.Click.Raise();

    desktop.Advance(1000);

    EXPECT_EQ(Engine(1).Calls, Calls{"Refresh"});
}

TEST_F(RefreshRoom, ZeroFractionsAndWordsNeverMatch) {
    Open("http://one.example/");
    Engine(1).Calls.clear();
    groups.refresh.imgCheck.Click.Raise();

    for (const char* text : {"0", "1.5", "soon", "", "-1"}) {
        groups.refresh.txtRefresh.SetText(text);
        desktop.Advance(10000);

        EXPECT_TRUE(Engine(1).Calls.empty()) << text;
    }
}

TEST_F(RefreshRoom, TypingStartsTheCountAgain) {
    groups.refresh.imgCheck.Click.Raise();
    desktop.Advance(4000);

    groups.refresh.txtRefresh.SetText("61");

    EXPECT_EQ(state.RefreshSeconds, 0);
}

TEST_F(RefreshRoom, ACountThatIsFullStaysFull) {
    groups.refresh.txtRefresh.SetText("never");
    groups.refresh.imgCheck.Click.Raise();
    state.RefreshSeconds = 32767;

    desktop.Advance(1000);

    EXPECT_EQ(state.RefreshSeconds, 32767);
}

TEST_F(RefreshRoom, KeysInTheSecondsReachTheShortcuts) {
    groups.refresh.txtRefresh.KeyDown.Raise(175, 0);

    EXPECT_EQ(near.Log, Calls{"KeyDown 175 0"});
}

}  // namespace
