#include "session/SessionHarness.h"

namespace {

using session_tests::Count;
using session_tests::Texts;

class SessionRoom : public session_tests::CoreTest {
protected:
    /// A person at work: logged in, the main window in front.
    void LogIn() {
        SeedUser("ann", "a");
        StartProgram();
        TypeLogin("ann", "a");
        login_form.cmdLogin.Click.Raise();
        desktop.Advance(12000);
        near.Log.clear();
    }
};

TEST_F(SessionRoom, ExitUnloadsEveryWindowInOrder) {
    LogIn();
    for (controls::Form* form :
         {&w.frmAdd, &w.frmAbout, &w.frmAddMedia, &w.frmInfo, &w.frmSpeakerTest, &w.frmVideo}) {
        form->LoadWindow();
    }

    w.mnuExit.Click.Raise();

    EXPECT_EQ(near.Log, (Texts{"Stop", "SendNothingPlaying", "the preferences may unload",
                               "Unload frmActivate", "Unload frmAdd", "Unload frmAbout", "Unload frmAddMedia",
                               "Unload frmInfo", "Unload frmSpeakerTest", "Stop", "SendNothingPlaying",
                               "CloseMedia", "Unload frmVideo", "Unload frmBrowser"}));
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
    EXPECT_TRUE(session.mainclose);
    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(SessionRoom, ExitSavesTheSettings) {
    LogIn();
    w.txtRefresh.SetText("123");

    w.mnuExit.Click.Raise();

    EXPECT_EQ(Setting(3), "123");
}

TEST_F(SessionRoom, OpenTabsAreAskedAbout) {
    LogIn();
    near.TabsVisible = {false, false, true};
    boxes.Answers = {ports::BoxAnswer::No};

    const bool unloaded = w.frmBrowser.UnloadWindow();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].title, "Exit Brindlepost");
    EXPECT_EQ(boxes.Boxes[0].text, "You currently have web tabs open, are you sure you want to exit?");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
    EXPECT_FALSE(unloaded);
    EXPECT_TRUE(w.frmBrowser.IsLoaded());
    EXPECT_FALSE(session.mainclose);
    EXPECT_TRUE(near.Log.empty());
}

TEST_F(SessionRoom, ANoIsAskedAgainAtTheNextClose) {
    LogIn();
    near.TabsVisible = {false, true};
    boxes.Answers = {ports::BoxAnswer::No, ports::BoxAnswer::Yes};
    w.frmBrowser.UnloadWindow();

    w.frmBrowser.UnloadWindow();

    EXPECT_EQ(boxes.Boxes.size(), 2U);
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, TheTemplateTabIsNoOpenTab) {
    LogIn();
    near.TabsVisible = {true, false};

    w.mnuExit.Click.Raise();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, WithoutAMusicTabAndWithoutTabsExitAsksNothing) {
    LogIn();
    near.MusicTabVisible = false;

    w.mnuExit.Click.Raise();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, ASecondCloseDuringTheFirstChangesNothing) {
    LogIn();
    desktop.Post([this] { w.frmBrowser.UnloadWindow(); });

    w.mnuExit.Click.Raise();

    EXPECT_EQ(Count(near.Log, "CloseMedia"), 1);
    EXPECT_EQ(Count(near.Log, "Unload frmBrowser"), 1);
}

TEST_F(SessionRoom, AStoreThatCannotBeReadLeavesTheOtherWindowsAlone) {
    LogIn();
    session.mainclose = false;
    stores.Database.Remove(fakes::SeededStores::kHistoryPath);
    w.frmAbout.LoadWindow();
    w.datHistory.SetDatabaseName(stores.Stores, "C:\\gone\\dbHistory.mdb");

    session_room.SaveSettings();

    EXPECT_TRUE(w.frmAbout.IsLoaded());
    EXPECT_TRUE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, AnEndByTheSystemSavesAndUnloadsWithoutTheQuestion) {
    LogIn();
    near.TabsVisible = {false, true};
    w.txtRefresh.SetText("321");

    session_room.EndSession();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_EQ(Setting(3), "321");
    EXPECT_TRUE(session.mainclose);
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_EQ(Count(near.Log, "Unload frmBrowser"), 1);
    EXPECT_EQ(near.Log.front(), "Stop");
}

TEST_F(SessionRoom, AnEndByTheSystemBeforeTheLoginUnloadsEverything) {
    SeedUser("ann", "a");
    StartProgram();

    session_room.EndSession();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
}

TEST_F(SessionRoom, AnEndByTheSystemDuringAnEndChangesNothing) {
    LogIn();
    session_room.EndSession();
    near.Log.clear();

    session_room.EndSession();

    EXPECT_TRUE(near.Log.empty());
}

TEST_F(SessionRoom, LogOutGoesBackToTheLogin) {
    LogIn();

    w.mnuLogout.Click.Raise();

    EXPECT_TRUE(login_form.frmLogin.Visible());
    EXPECT_FALSE(w.frmBrowser.Visible());
    EXPECT_FALSE(activate.frmActivate.Visible());
    EXPECT_TRUE(w.frmBrowser.IsLoaded());
    EXPECT_TRUE(activate.frmActivate.IsLoaded());
    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_TRUE(near.Log.empty());
}

TEST_F(SessionRoom, LogOutTakesTheAddDialogAway) {
    LogIn();
    w.frmAddMedia.Show();

    w.mnuLogout.Click.Raise();

    EXPECT_FALSE(w.frmAddMedia.IsLoaded());
    EXPECT_EQ(near.Log, (std::vector<std::string>{"Unload frmAddMedia"}));
}

TEST_F(SessionRoom, LogOutAsksAboutOpenTabsAndClosesThemAll) {
    LogIn();
    near.TabsVisible = {false, true, false, true};
    boxes.Answers = {ports::BoxAnswer::Yes};

    w.mnuLogout.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].title, "Log Out Brindlepost");
    EXPECT_EQ(boxes.Boxes[0].text, "You currently have web tabs open, are you sure you want to log out?");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
    EXPECT_EQ(near.Log, (Texts{"CloseTab 1", "CloseTab 2", "CloseTab 3"}));
    EXPECT_TRUE(login_form.frmLogin.Visible());
}

TEST_F(SessionRoom, ANoToTheLogOutStaysButHasSavedAlready) {
    LogIn();
    near.TabsVisible = {false, true};
    w.txtRefresh.SetText("77");
    boxes.Answers = {ports::BoxAnswer::No};

    w.mnuLogout.Click.Raise();

    EXPECT_EQ(Setting(3), "77");
    EXPECT_TRUE(w.frmBrowser.Visible());
    EXPECT_FALSE(login_form.frmLogin.Visible());
    EXPECT_TRUE(near.Log.empty());
    EXPECT_TRUE(session.LoggedIn);
}

TEST_F(SessionRoom, ExitAfterALogOutThatWasRefusedEndsTheProgram) {
    LogIn();
    near.TabsVisible = {false, true};
    boxes.Answers = {ports::BoxAnswer::No, ports::BoxAnswer::Yes};
    w.mnuLogout.Click.Raise();

    w.mnuExit.Click.Raise();

    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, ClosingTheLoginAfterALogOutEndsTheProgram) {
    LogIn();
    w.mnuLogout.Click.Raise();

    login_form.frmLogin.UnloadWindow();

    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
}

TEST_F(SessionRoom, TheNextLoginLoadsTheSettingsAgain) {
    LogIn();
    w.mnuLogout.Click.Raise();
    SetSetting(3, "33");
    TypeLogin("ann", "a");
    login_form.cmdLogin.Click.Raise();
    EXPECT_TRUE(login.NewLogin);

    desktop.Advance(12000);

    EXPECT_TRUE(w.frmBrowser.Visible());
    EXPECT_EQ(w.txtRefresh.Text(), "33");
    EXPECT_FALSE(login.NewLogin);
    EXPECT_EQ(Count(near.Log, "FocusAddress"), 1);
    EXPECT_EQ(Count(near.Log, "NoMouseOvers"), 1);
}

TEST_F(SessionRoom, ActivationWithoutANewLoginLoadsNothing) {
    LogIn();
    SetSetting(3, "33");
    session.mainclose = true;
    w.frmBrowser.Hide();

    w.frmBrowser.Show();

    EXPECT_NE(w.txtRefresh.Text(), "33");
    EXPECT_FALSE(session.mainclose);
    EXPECT_EQ(near.Log, (Texts{"NoMouseOvers", "FocusAddress"}));
}

TEST_F(SessionRoom, AClickOnTheWindowFocusesAVisibleAddressRow) {
    w.frmBrowser.Click.Raise();
    EXPECT_EQ(near.Log, Texts{"FocusAddress"});
    near.AddressVisible = false;
    near.Log.clear();

    w.frmBrowser.Click.Raise();

    EXPECT_TRUE(near.Log.empty());
}

TEST_F(SessionRoom, TheMouseOverTheWindowHidesTheBrightTwins) {
    w.frmBrowser.MouseMove.Raise(0, 0, 1, 1);

    EXPECT_EQ(near.Log, Texts{"NoMouseOvers"});
}

}  // namespace
