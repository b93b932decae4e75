#include "session/SessionHarness.h"

namespace {

using LoginRoom = session_tests::CoreTest;
using session_tests::Row;

TEST_F(LoginRoom, TheLoginIsDesignedAtRest) {
    EXPECT_FALSE(login_form.tmrLoad.Enabled());
    EXPECT_EQ(login_form.tmrLoad.Interval(), 100);
    EXPECT_FALSE(login_form.fraNew.Visible());
    EXPECT_FALSE(login_form.fraSetup.Visible());
    EXPECT_TRUE(login_form.txtPassword.IsPassword());
    EXPECT_TRUE(login_form.cmdLogin.IsDefault());
}

TEST_F(LoginRoom, EverythingLiesInsideTheWindow) {
    for (const controls::Control* control : login_form.frmLogin.Children()) {
        EXPECT_LE(control->Right(), login_form.frmLogin.ContentWidth()) << control->Name();
        EXPECT_LE(control->Bottom(), login_form.frmLogin.ContentHeight()) << control->Name();
    }
    for (const controls::Frame* page : {&login_form.fraLogin, &login_form.fraNew, &login_form.fraSetup}) {
        for (const controls::Control* control : page->Children()) {
            EXPECT_LE(control->Right(), page->Width()) << control->Name();
            EXPECT_LE(control->Bottom(), page->Height()) << control->Name();
        }
    }
}

TEST_F(LoginRoom, UsersAreListedAtTheFifthTick) {
    SeedUser("ann", "a");
    SeedUser("", "nobody");
    SeedUser("bob", "b");
    login_form.frmLogin.Show();
    desktop.Advance(400);
    EXPECT_EQ(login_form.cmbUser.ListCount(), 0);

    desktop.Advance(100);

    ASSERT_EQ(login_form.cmbUser.ListCount(), 2);
    EXPECT_EQ(login_form.cmbUser.List(0), "ann");
    EXPECT_EQ(login_form.cmbUser.List(1), "bob");
    EXPECT_FALSE(login_form.tmrLoad.Enabled());
}

TEST_F(LoginRoom, MultipleUsersAreReadAtTheSecondTick) {
    login_form.frmLogin.Show();
    login_form.frmLogin.Hide();
    desktop.Advance(100);
    EXPECT_FALSE(login.Allow_Multiple_Users);

    desktop.Advance(100);

    EXPECT_TRUE(login.Allow_Multiple_Users);
    EXPECT_TRUE(login_form.frmLogin.Visible());
}

TEST_F(LoginRoom, OnlyTheTextTrueAllowsMultipleUsers) {
    SetSetting(14, "yes");
    login.Allow_Multiple_Users = true;
    login_form.frmLogin.Show();
    login_form.frmLogin.Hide();

    desktop.Advance(200);

    EXPECT_FALSE(login.Allow_Multiple_Users);
    EXPECT_FALSE(login_form.frmLogin.Visible());
}

TEST_F(LoginRoom, WithoutTheRowMultipleUsersStayAsTheyAre) {
    SetSetting(14, "False");
    login.Allow_Multiple_Users = true;
    store::DataSource source("datSeed");
    stores.Bind(source, "tblHistory");
    source.Open("SELECT * from tblHistory");
    for (source.Recordset().MoveFirst(); !source.Recordset().Eof(); source.Recordset().MoveNext()) {
        source.Recordset().Delete();
    }

    OpenLogin();

    EXPECT_TRUE(login.Allow_Multiple_Users);
}

TEST_F(LoginRoom, ARememberedUserIsFilledInWithoutPassword) {
    SeedUser("ann", "a", "True");

    OpenLogin();

    EXPECT_EQ(login_form.cmbUser.Text(), "ann");
    EXPECT_EQ(login_form.txtPassword.Text(), "");
    EXPECT_TRUE(login_form.chkRememberMe.Checked());
    EXPECT_FALSE(login_form.chkAuto.Checked());
    EXPECT_FALSE(session.LoggedIn);
}

TEST_F(LoginRoom, OfSeveralRememberedUsersTheLastOneWins) {
    SeedUser("ann", "a", "True");
    SeedUser("bob", "b", "True");

    OpenLogin();

    EXPECT_EQ(login_form.cmbUser.Text(), "bob");
}

TEST_F(LoginRoom, AutoLoginLogsTheUserIn) {
    SeedUser("ann", "a", "False", "True");

    OpenLogin();

    EXPECT_TRUE(session.LoggedIn);
    EXPECT_TRUE(login_form.chkAuto.Checked());
    EXPECT_FALSE(login_form.frmLogin.Visible());
    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(LoginRoom, AutoLoginNeedsAStoredPassword) {
    SeedUser("ann", "", "False", "True");

    OpenLogin();

    EXPECT_FALSE(session.LoggedIn);
    EXPECT_EQ(login_form.cmbUser.Text(), "ann");
    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(LoginRoom, NobodyRememberedLeavesTheBoxesEmpty) {
    SeedUser("ann", "a");

    OpenLogin();

    EXPECT_EQ(login_form.cmbUser.Text(), "");
    EXPECT_EQ(login_form.txtPassword.Text(), "");
}

TEST_F(LoginRoom, TheRightNameAndPasswordLogIn) {
    SeedUser("ann", "a");
    OpenLogin();
    w.frmBrowser.Show();
    TypeLogin("ann", "a");

    login_form.cmdLogin.Click.Raise();

    EXPECT_TRUE(session.LoggedIn);
    EXPECT_FALSE(w.frmBrowser.Visible());
    EXPECT_FALSE(login_form.frmLogin.Visible());
    EXPECT_TRUE(activate.frmActivate.Visible());
    EXPECT_TRUE(activate.Timer1.Enabled());
    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(LoginRoom, TheSiteFieldsAreReadTrimmed) {
    SeedUser("ann", "a");
    OpenLogin();
    TypeLogin("ann", "a");

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(login.MySpaceE, "ms");
    EXPECT_EQ(login.MySpaceP, "mp");
    EXPECT_EQ(login.HotmailE, "he");
    EXPECT_EQ(login.HotmailP, "hp");
    EXPECT_EQ(login.FaceBookE, "fe");
    EXPECT_EQ(login.FaceBookP, "fp");
}

TEST_F(LoginRoom, NameAndPasswordAreComparedWithTheirCase) {
    SeedUser("ann", "a");
    OpenLogin();
    for (const auto& [name, password] : {std::pair{"Ann", "a"}, {"ann", "A"}, {"ann ", "a"}, {"ann", "a "}}) {
        boxes.Boxes.clear();
        TypeLogin(name, password);

        login_form.cmdLogin.Click.Raise();

        EXPECT_FALSE(session.LoggedIn) << name << "/" << password;
        ASSERT_EQ(boxes.Boxes.size(), 1U);
        EXPECT_EQ(boxes.Boxes[0].text, "Your user name and password did not match, please check and re-type");
        EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
    }
}

TEST_F(LoginRoom, AnEmptyNameIsAskedFor) {
    OpenLogin();
    TypeLogin("", "a");

    login_form.cmdLogin.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "Please enter a user name");
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
}

TEST_F(LoginRoom, AnEmptyPasswordIsAskedFor) {
    OpenLogin();
    TypeLogin("ann", "");

    login_form.cmdLogin.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "Please enter a password");
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
}

TEST_F(LoginRoom, AStoredPasswordOfBlanksIsAccepted) {
    SeedUser("ann", "   ");
    OpenLogin();
    TypeLogin("ann", "   ");

    login_form.cmdLogin.Click.Raise();

    EXPECT_TRUE(session.LoggedIn);
}

TEST_F(LoginRoom, EnterInThePasswordLogsIn) {
    SeedUser("ann", "a");
    OpenLogin();
    TypeLogin("ann", "a");

    login_form.txtPassword.KeyDown.Raise(65, 0);
    EXPECT_FALSE(session.LoggedIn);
    login_form.txtPassword.KeyDown.Raise(controls::kKeyEnter, 0);

    EXPECT_TRUE(session.LoggedIn);
}

TEST_F(LoginRoom, EnterAndTheDefaultButtonTogetherLogInOnce) {
    SeedUser("ann", "a");
    OpenLogin();
    TypeLogin("ann", "a");
    login_form.cmdLogin.Click.Raise();

    login_form.txtPassword.KeyDown.Raise(controls::kKeyEnter, 0);

    EXPECT_FALSE(login.NewLogin);
}

TEST_F(LoginRoom, TickedBoxesAreStoredWithTheUser) {
    SeedUser("ann", "a");
    OpenLogin();
    TypeLogin("ann", "a");
    login_form.chkRememberMe.SetChecked(true);
    login_form.chkAuto.SetChecked(true);

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(stores.Rows("tblLogin")[0][8], "True");
    EXPECT_EQ(stores.Rows("tblLogin")[0][9], "True");
}

TEST_F(LoginRoom, ClearBoxesAreStoredWithTheUser) {
    SeedUser("ann", "a", "True");
    SeedUser("bob", "b", "True");
    OpenLogin();
    TypeLogin("ann", "a");
    login_form.chkRememberMe.SetChecked(false);

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(stores.Rows("tblLogin")[0][8], "False");
    EXPECT_EQ(stores.Rows("tblLogin")[0][9], "False");
    EXPECT_EQ(stores.Rows("tblLogin")[1][8], "True");
}

TEST_F(LoginRoom, OnlyOneUserStaysRemembered) {
    SeedUser("ann", "a", "True", "False");
    SeedUser("bob", "b");
    SeedUser("cat", "c", "True", "False");
    OpenLogin();
    TypeLogin("bob", "b");
    login_form.chkRememberMe.SetChecked(true);

    login_form.cmdLogin.Click.Raise();

    const std::vector<Row> rows = stores.Rows("tblLogin");
    EXPECT_EQ(rows[0][8], "False");
    EXPECT_EQ(rows[1][8], "True");
    EXPECT_EQ(rows[2][8], "False");
}

TEST_F(LoginRoom, AutoLoginIsTakenFromTheOthersOnlyWhenItWasTicked) {
    SeedUser("ann", "", "False", "True");
    SeedUser("bob", "b");
    OpenLogin();
    TypeLogin("bob", "b");
    login_form.chkAuto.SetChecked(false);
    login_form.chkRememberMe.SetChecked(true);

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(stores.Rows("tblLogin")[0][9], "True");
    EXPECT_EQ(stores.Rows("tblLogin")[1][9], "False");
}

TEST_F(LoginRoom, RememberingIsTakenFromTheOthersOnlyWhenItWasTicked) {
    SeedUser("ann", "a", "True", "True");
    SeedUser("bob", "b");
    OpenLogin();
    w.mnuLogout.Click.Raise();
    TypeLogin("bob", "b");
    login_form.chkRememberMe.SetChecked(false);
    login_form.chkAuto.SetChecked(true);

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(stores.Rows("tblLogin")[0][8], "True");
    EXPECT_EQ(stores.Rows("tblLogin")[0][9], "False");
    EXPECT_EQ(stores.Rows("tblLogin")[1][9], "True");
}

TEST_F(LoginRoom, AFailedLoginForgetsNobody) {
    SeedUser("ann", "a", "True");
    OpenLogin();
    TypeLogin("bob", "b");
    login_form.chkRememberMe.SetChecked(true);

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(stores.Rows("tblLogin")[0][8], "True");
}

TEST_F(LoginRoom, TheFirstLoginIsNoNewOneAndEachLaterOneIs) {
    SeedUser("ann", "a");
    OpenLogin();
    TypeLogin("ann", "a");
    login_form.cmdLogin.Click.Raise();
    EXPECT_FALSE(login.NewLogin);
    w.mnuLogout.Click.Raise();
    TypeLogin("ann", "a");

    login_form.cmdLogin.Click.Raise();

    EXPECT_TRUE(login.NewLogin);
}

TEST_F(LoginRoom, ARefusedFirstTryLoadsNothingASecondTime) {
    SeedUser("ann", "a");
    OpenLogin();
    TypeLogin("ann", "wrong");
    login_form.cmdLogin.Click.Raise();
    TypeLogin("ann", "");
    login_form.cmdLogin.Click.Raise();
    TypeLogin("ann", "a");

    login_form.cmdLogin.Click.Raise();

    EXPECT_TRUE(session.LoggedIn);
    EXPECT_FALSE(login.NewLogin);
}

TEST_F(LoginRoom, ARefusedTryAfterALogOutStillLeavesTheNextANewLogin) {
    SeedUser("ann", "a");
    OpenLogin();
    TypeLogin("ann", "a");
    login_form.cmdLogin.Click.Raise();
    w.mnuLogout.Click.Raise();
    TypeLogin("ann", "wrong");
    login_form.cmdLogin.Click.Raise();
    EXPECT_FALSE(login.NewLogin);
    TypeLogin("ann", "a");

    login_form.cmdLogin.Click.Raise();

    EXPECT_TRUE(login.NewLogin);
}

TEST_F(LoginRoom, OfSeveralAutoLoginsTheLastOneWins) {
    SeedUser("ann", "a", "False", "True");
    SeedUser("bob", "b", "False", "True");

    OpenLogin();

    EXPECT_TRUE(session.LoggedIn);
    EXPECT_EQ(login_form.cmbUser.Text(), "bob");
    EXPECT_EQ(stores.Rows("tblLogin")[0][9], "False");
    EXPECT_EQ(stores.Rows("tblLogin")[1][9], "True");
}

TEST_F(LoginRoom, ARememberedUserAfterAnAutomaticOneIsNotGivenTheOthersPassword) {
    SeedUser("ann", "a", "False", "True");
    SeedUser("bob", "b", "True", "False");

    OpenLogin();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_FALSE(session.LoggedIn);
    EXPECT_EQ(login_form.cmbUser.Text(), "bob");
    EXPECT_EQ(login_form.txtPassword.Text(), "");
}

TEST_F(LoginRoom, AnAutomaticUserAfterARememberedOneLogsIn) {
    SeedUser("bob", "b", "True", "False");
    SeedUser("ann", "a", "False", "True");

    OpenLogin();

    EXPECT_TRUE(session.LoggedIn);
    EXPECT_EQ(login_form.cmbUser.Text(), "ann");
}

TEST_F(LoginRoom, NobodyIsLoggedInWhileTheWizardIsOpen) {
    SeedUser("ann", "a", "False", "True");
    splash.SetStage("Media Library");
    login_form.cmdNew.Click.Raise();

    desktop.Advance(600);

    EXPECT_FALSE(session.LoggedIn);
    EXPECT_TRUE(login_form.fraNew.Visible());
    EXPECT_EQ(login_form.txtPassword.Text(), "a");
}

TEST_F(LoginRoom, AUserMadeBeforeTheFifthTickStaysFilledInAndLaterOnesDoNot) {
    SeedUser("bob", "b", "True", "True");
    splash.SetStage("Media Library");
    desktop.Advance(200);
    login_room.OfferUser("ann", "pw");
    EXPECT_EQ(login_form.cmbUser.Text(), "ann");

    desktop.Advance(400);
    EXPECT_EQ(login_form.cmbUser.Text(), "ann");
    EXPECT_EQ(login_form.txtPassword.Text(), "pw");
    EXPECT_FALSE(session.LoggedIn);

    login_room.LoadUsers();
    EXPECT_TRUE(session.LoggedIn) << "the fifth tick ended the skipping";
}

TEST_F(LoginRoom, LoadingTheUsersClearsNoTick) {
    SeedUser("ann", "a");
    login_form.chkRememberMe.SetChecked(true);
    login_form.chkAuto.SetChecked(true);

    OpenLogin();

    EXPECT_TRUE(login_form.chkRememberMe.Checked());
    EXPECT_TRUE(login_form.chkAuto.Checked());
}

TEST_F(LoginRoom, ALoginHandsOverInOrder) {
    SeedUser("ann", "a");
    OpenLogin();
    w.frmBrowser.Show();
    activate.frmActivate.Hide();
    TypeLogin("ann", "a");
    struct : controls::ControlObserver {
        void OnPropertyChanged(controls::Control& control, controls::Property property) override {
            if (property == controls::Property::Visible)
                Log->push_back((control.Visible() ? "shown " : "hidden ") + control.Name());
            if (property == controls::Property::Timer) Log->push_back("started " + control.Name());
        }
        session_tests::Texts* Log = nullptr;
    } watch;
    watch.Log = &near.Log;
    near.Log.clear();
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &w.frmBrowser, &login_form.frmLogin, &activate.frmActivate, &activate.Timer1})
        control->SetObserver(&watch);

    login_room.DoLogin();

    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &w.frmBrowser, &login_form.frmLogin, &activate.frmActivate, &activate.Timer1})
        control->SetObserver(nullptr);
    EXPECT_TRUE(session.LoggedIn);
    EXPECT_EQ(near.Log, (session_tests::Texts{"hidden frmBrowser", "hidden frmLogin", "shown frmActivate",
                                              "started Timer1"}));
}

TEST_F(LoginRoom, AWrongPasswordIsToldAfterALogOutToo) {
    SeedUser("ann", "a");
    OpenLogin();
    TypeLogin("ann", "a");
    login_form.cmdLogin.Click.Raise();
    login_room.ShowLogin();
    TypeLogin("ann", "wrong");

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(LastBox(), "Your user name and password did not match, please check and re-type");
    EXPECT_TRUE(login_form.frmLogin.Visible());
}

TEST_F(LoginRoom, ThePasswordOfWhoLeftDoesNotStay) {
    SeedUser("ann", "a");
    OpenLogin();
    TypeLogin("ann", "a");
    login_form.cmdLogin.Click.Raise();

    login_room.ShowLogin();

    EXPECT_EQ(login_form.txtPassword.Text(), "");
    EXPECT_TRUE(login_form.frmLogin.Visible());
}

TEST_F(LoginRoom, ChoosingAUserClearsThePassword) {
    SeedUser("ann", "a");
    SeedUser("bob", "b");
    OpenLogin();
    TypeLogin("ann", "a");

    login_form.cmbUser.SetListIndex(1);

    EXPECT_EQ(login_form.txtPassword.Text(), "");
    EXPECT_EQ(login_form.cmbUser.Text(), "bob");
}

TEST_F(LoginRoom, AMissingLoginOrHistoryStoreStopsWithoutAWord) {
    for (const auto* file : {"\\dbLogin.mdb", "\\dbHistory.mdb"}) {
        RemoveFile(file);
        w.frmBrowser.Show();
        session.NothingBegun = false;

        login_form.frmLogin.Show();

        EXPECT_FALSE(login_form.frmLogin.IsLoaded()) << file;
        EXPECT_FALSE(login_form.frmLogin.Visible()) << file;
        EXPECT_FALSE(login_form.tmrLoad.Enabled()) << file;
        EXPECT_FALSE(w.frmBrowser.IsLoaded()) << file;
        EXPECT_TRUE(boxes.Boxes.empty()) << file;
        files.AddFile(std::string(session_tests::kAppPath).append(file));
    }
}

TEST_F(LoginRoom, ALoginStoreThatGoesAwayStopsTheFilling) {
    SeedUser("ann", "a");
    login_form.frmLogin.Show();
    desktop.Advance(200);
    RemoveFile("\\dbLogin.mdb");

    desktop.Advance(300);

    EXPECT_EQ(login_form.cmbUser.ListCount(), 0);
    EXPECT_FALSE(login_form.tmrLoad.Enabled());
}

TEST_F(LoginRoom, ASecondRunShowsNoLogin) {
    near.Running = ports::Instance::Second;

    login_form.frmLogin.Show();

    EXPECT_FALSE(login_form.frmLogin.Visible());
    EXPECT_FALSE(login_form.tmrLoad.Enabled());
}

TEST_F(LoginRoom, ClosingTheLoginEndsTheProgram) {
    StartProgram();

    login_form.frmLogin.UnloadWindow();

    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_FALSE(activate.frmActivate.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
    EXPECT_TRUE(session.mainclose);
    EXPECT_EQ(session_tests::Count(near.Log, "CloseMedia"), 1);
}

TEST_F(LoginRoom, ClosingTheLoginAsksNothingAboutOpenTabs) {
    StartProgram();
    near.TabsVisible = {false, true};

    login_form.frmLogin.UnloadWindow();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
}

TEST_F(LoginRoom, ClosingTheLoginWhileLoggedInOnlyPutsItAway) {
    SeedUser("ann", "a");
    StartProgram();
    TypeLogin("ann", "a");
    login_form.cmdLogin.Click.Raise();
    desktop.Advance(12000);
    wizard.OpenWizard();

    login_form.frmLogin.UnloadWindow();

    EXPECT_TRUE(login_form.frmLogin.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.Visible());
    EXPECT_FALSE(login_form.fraNew.Visible());
    EXPECT_TRUE(w.frmBrowser.Visible());
}

TEST_F(LoginRoom, ADamagedLoginStoreIsToldAndNobodyGetsIn) {
    SeedUser("ann", "a");
    stores.Database.FailOpen(fakes::SeededStores::kLoginPath, ports::DatabaseError::Damaged);
    OpenLogin();
    TypeLogin("ann", "a");

    login_form.cmdLogin.Click.Raise();

    EXPECT_FALSE(session.LoggedIn);
    EXPECT_EQ(stores.Trouble.Troubles.size(), 1U);
}

}  // namespace
