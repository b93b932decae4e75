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

TEST_F(SessionRoom, ASecondCloseWhileTheQuestionIsUpWaitsForTheAnswer) {
    LogIn();
    near.TabsVisible = {false, true};
    boxes.Answers = {ports::BoxAnswer::No};
    bool second = true;
    boxes.OnBox = [&] { second = w.frmBrowser.UnloadWindow(); };

    w.mnuExit.Click.Raise();

    EXPECT_FALSE(second);
    EXPECT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_TRUE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, TheLoginUnloadsAfterTheSplash) {
    LogIn();
    w.frmAdd.LoadWindow();
    struct : controls::ControlObserver {
        void OnPropertyChanged(controls::Control& control, controls::Property property) override {
            if (property == controls::Property::Window && !static_cast<controls::Form&>(control).IsLoaded())
                Log->emplace_back("Unload frmLogin");
        }
        Texts* Log = nullptr;
    } watch;
    watch.Log = &near.Log;
    login_form.frmLogin.SetObserver(&watch);

    w.mnuExit.Click.Raise();

    login_form.frmLogin.SetObserver(nullptr);
    const int login_place = session_tests::PlaceOf(near.Log, "Unload frmLogin");
    EXPECT_EQ(login_place, session_tests::PlaceOf(near.Log, "Unload frmActivate") + 1);
    EXPECT_EQ(login_place, session_tests::PlaceOf(near.Log, "Unload frmAdd") - 1);
}

TEST_F(SessionRoom, AnActivationDuringTheCloseDoesNotTakeItBack) {
    LogIn();
    login.NewLogin = true;
    desktop.Post([this] { w.frmBrowser.Activate.Raise(); });

    w.mnuExit.Click.Raise();

    EXPECT_TRUE(session.mainclose);
    EXPECT_TRUE(login.NewLogin);
    EXPECT_FALSE(activate.frmActivate.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_EQ(Count(near.Log, "FocusAddress"), 0);
}

TEST_F(SessionRoom, AnEndByTheSystemWhileTheSplashCountsRevealsNothing) {
    SeedUser("ann", "a");
    StartProgram();
    TypeLogin("ann", "a");
    login_form.cmdLogin.Click.Raise();
    activate.pbLoad.SetValue(99);
    near.Log.clear();
    desktop.Post([this] { activate.Timer1.Tick.Raise(); });

    session_room.EndSession();

    EXPECT_EQ(near.Log,
              (Texts{"Stop", "SendNothingPlaying", "the preferences may unload", "Unload frmActivate", "Stop",
                     "SendNothingPlaying", "CloseMedia", "Unload frmBrowser"}));
    EXPECT_FALSE(w.frmBrowser.Visible());
    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
    EXPECT_FALSE(activate.Timer1.Enabled());
}

TEST_F(SessionRoom, WhatCannotBeSavedKeepsTheWindowsUp) {
    LogIn();
    w.txtRefresh.SetText("123");
    stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::DiskFull);

    w.mnuExit.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].title, "Exit Brindlepost");
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::Critical);
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_EQ(
        boxes.Boxes[0].text,
        "Your settings and your last changes could not be saved.\n\n"
        "The file \"dbHistory.mdb\" can not be written: the disk is full.\n\n"
        "Brindlepost stays open, so that you can put this right and exit again. If it still can not save "
        "then, you may end it without saving.");
    for (const controls::Form* window : {&w.frmBrowser, &activate.frmActivate, &login_form.frmLogin})
        EXPECT_TRUE(window->IsLoaded()) << window->Name();
    EXPECT_TRUE(w.frmBrowser.Visible());
    EXPECT_FALSE(session.mainclose);
    EXPECT_EQ(Count(near.Log, "CloseMedia"), 0);
}

TEST_F(SessionRoom, ASecondExitAsksWhetherToEndWithoutSaving) {
    LogIn();
    w.txtRefresh.SetText("123");
    stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::ReadOnly);
    w.mnuExit.Click.Raise();
    boxes.Boxes.clear();
    boxes.Answers = {ports::BoxAnswer::No, ports::BoxAnswer::Yes};

    w.mnuExit.Click.Raise();
    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text,
              "Your settings and your last changes can still not be saved.\n\n"
              "The file \"dbHistory.mdb\" can not be written: the file or its folder is read-only.\n\n"
              "End Brindlepost without saving them?");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_TRUE(w.frmBrowser.IsLoaded());
    w.mnuExit.Click.Raise();

    EXPECT_EQ(boxes.Boxes.size(), 2U);
    EXPECT_TRUE(session.mainclose);
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_FALSE(activate.frmActivate.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
}

TEST_F(SessionRoom, ASecondExitSavesWhatCanBeSavedAgain) {
    LogIn();
    w.txtRefresh.SetText("123");
    stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::Locked);
    w.mnuExit.Click.Raise();
    stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::None);
    w.txtRefresh.SetText("124");

    w.mnuExit.Click.Raise();

    EXPECT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(Setting(3), "124");
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, AnEndByTheSystemGoesOnWithoutSaving) {
    LogIn();
    w.txtRefresh.SetText("123");
    stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::DiskFull);

    session_room.EndSession();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, AnEndByTheSystemWhileTheQuestionIsUpEndsOnce) {
    LogIn();
    near.TabsVisible = {false, true};
    boxes.Answers = {ports::BoxAnswer::Yes};
    boxes.OnBox = [this] { session_room.EndSession(); };

    w.mnuExit.Click.Raise();

    EXPECT_EQ(Count(near.Log, "CloseMedia"), 1);
    EXPECT_EQ(Count(near.Log, "Unload frmBrowser"), 1);
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, AnEndByTheSystemWhileTheUserReadsThatNothingWasSavedEndsOnce) {
    LogIn();
    w.txtRefresh.SetText("123");
    stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::DiskFull);
    boxes.OnBox = [this] { session_room.EndSession(); };

    w.mnuExit.Click.Raise();

    EXPECT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(Count(near.Log, "Unload frmBrowser"), 1);
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, SettingsThatWereNeverReadHoldUpNoExit) {
    stores.Database.FailOpen(fakes::SeededStores::kHistoryPath, ports::DatabaseError::Damaged);
    LogIn();

    w.mnuExit.Click.Raise();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_EQ(near.Log,
              (Texts{"Stop", "SendNothingPlaying", "the preferences may unload", "Unload frmActivate", "Stop",
                     "SendNothingPlaying", "CloseMedia", "Unload frmBrowser"}));
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(SessionRoom, AClosedLoginComesBackWhenItsEndCannotSave) {
    SeedUser("ann", "a");
    StartProgram();
    w.txtRefresh.SetText("123");
    stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::DiskFull);

    const bool closed = login_form.frmLogin.UnloadWindow();

    EXPECT_FALSE(closed);
    EXPECT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_TRUE(login_form.frmLogin.Visible());
    EXPECT_TRUE(w.frmBrowser.IsLoaded());
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
    EXPECT_FALSE(session.LoggedIn);
}

TEST_F(SessionRoom, LogOutTakesTheUsersWindowsSongAndPagesAway) {
    LogIn();
    const std::vector<controls::Form*> dialogs = {&w.frmAdd, &w.frmAbout, &w.frmAddMedia, &w.frmInfo,
                                                  &w.frmSpeakerTest};
    for (controls::Form* dialog : dialogs)
        dialog->Show();
    w.frmVideo.Show();
    near.Log.clear();

    w.mnuLogout.Click.Raise();

    for (const controls::Form* dialog : dialogs)
        EXPECT_FALSE(dialog->IsLoaded()) << dialog->Name();
    EXPECT_FALSE(w.frmVideo.Visible());
    EXPECT_EQ(near.Log, (Texts{"Unload frmAdd", "Unload frmAbout", "Unload frmAddMedia", "Unload frmInfo",
                               "Unload frmSpeakerTest", "EndTasks", "EndUser", "CloseMedia", "SetTyped "}));
    EXPECT_EQ(Count(pages.Log, "End"), 1);
}

TEST_F(SessionRoom, AnEndByTheSystemWhileTheLogOutAsksShowsNoLogin) {
    LogIn();
    near.TabsVisible = {false, true};
    boxes.Answers = {ports::BoxAnswer::Yes};
    boxes.OnBox = [this] { session_room.EndSession(); };

    w.mnuLogout.Click.Raise();

    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_EQ(Count(pages.Log, "End"), 0);
}

TEST_F(SessionRoom, ALogInBeginsThePagesOfThatUserAndALogOutEndsThem) {
    SeedUser("bob", "b");
    LogIn();
    EXPECT_EQ(session.UserName, "ann");
    EXPECT_EQ(pages.Log, Texts{"Begin ann kept"});

    w.mnuLogout.Click.Raise();
    EXPECT_EQ(pages.Log, (Texts{"Begin ann kept", "End"}));
    EXPECT_EQ(session.UserName, "");
    TypeLogin("bob", "b");
    login_form.cmdLogin.Click.Raise();
    EXPECT_EQ(pages.Log.size(), 2U) << "the settings come first, and say whether history is kept";
    SetSetting(16, "False");
    desktop.Advance(12000);

    EXPECT_EQ(pages.Log, (Texts{"Begin ann kept", "End", "Begin bob forgotten"}));
}

TEST_F(SessionRoom, ALogOutEndsTheAutomaticRefresh) {
    LogIn();

    w.mnuLogout.Click.Raise();

    EXPECT_EQ(near.RefreshesEnded, 1);
}

TEST_F(SessionRoom, LogOutForgetsWhatWasTyped) {
    LogIn();
    near.Typed = "http://one.example/";

    w.mnuLogout.Click.Raise();

    EXPECT_EQ(near.Typed, "");
}

TEST_F(SessionRoom, LogOutForgetsThePasswordsOfSites) {
    login.Allow_Multiple_Users = true;
    LogIn();
    ASSERT_EQ(login.HotmailP, "hp");

    w.mnuLogout.Click.Raise();

    for (const std::string* field : {&login.MySpaceE, &login.MySpaceP, &login.HotmailE, &login.HotmailP,
                                     &login.FaceBookE, &login.FaceBookP})
        EXPECT_EQ(*field, "");
    EXPECT_TRUE(login.Allow_Multiple_Users);
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
    EXPECT_EQ(near.Log, (Texts{"CloseTab 1", "CloseTab 2", "CloseTab 3", "EndTasks", "EndUser", "CloseMedia",
                               "SetTyped "}));
    EXPECT_EQ(Count(pages.Log, "End"), 1);
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
    EXPECT_EQ(Count(pages.Log, "End"), 0);
}

TEST_F(SessionRoom, ALogOutSavesBeforeItAsks) {
    LogIn();
    near.TabsVisible = {false, true};
    w.txtRefresh.SetText("77");
    std::string at_the_question;
    boxes.OnBox = [&] { at_the_question = Setting(3); };

    w.mnuLogout.Click.Raise();

    EXPECT_EQ(at_the_question, "77");
}

TEST_F(SessionRoom, ALogOutWhoseSettingsCannotBeWrittenGoesOn) {
    LogIn();
    w.txtRefresh.SetText("77");
    stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::DiskFull);

    w.mnuLogout.Click.Raise();
    desktop.EndHandler();

    EXPECT_TRUE(login_form.frmLogin.Visible());
    EXPECT_EQ(stores.Trouble.Troubles.size(), 1U);
    stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::None);
    EXPECT_EQ(Setting(3), "77");
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
