// One user goes and the next one comes: what a log out leaves of the login window and of what was handed
// over, and a login while another user is logged in.
#include "session/SessionHarness.h"

namespace {

using session_tests::Texts;

/// Ann is at work, and Bob may log in as well.
class ChangeOfUser : public session_tests::CoreTest {
protected:
    ChangeOfUser() {
        SeedUser("ann", "a");
        SeedUser("bob", "b");
        StartProgram();
        TypeLogin("ann", "a");
        login_form.cmdLogin.Click.Raise();
        desktop.Advance(12000);
        near.Log.clear();
    }

    /// Every box of the wizard.
    std::vector<controls::TextBox*> WizardBoxes() {
        return {&login_form.txtNewUser,  &login_form.txtPass1,     &login_form.txtPass2,
                &login_form.txtMySpaceE, &login_form.txtMySpaceP,  &login_form.txtHotmailE,
                &login_form.txtHotmailP, &login_form.txtFacebookE, &login_form.txtFacebookP};
    }
};

TEST_F(ChangeOfUser, AnotherUsersLoginTakesTheOneBeforeAway) {
    near.TabsVisible = {false, true};
    w.txtRefresh.SetText("123");
    boxes.Answers = {ports::BoxAnswer::Yes};
    login_form.frmLogin.Show();
    TypeLogin("bob", "b");

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(LastBox(), "You currently have web tabs open, are you sure you want to log out?");
    EXPECT_EQ(Setting(3), "123");
    EXPECT_EQ(near.Log, (Texts{"CloseTab 1", "EndTasks", "EndUser", "CloseMedia", "SetTyped "}));
    EXPECT_EQ(session.UserName, "bob");
    EXPECT_TRUE(session.LoggedIn);
    EXPECT_FALSE(login_form.frmLogin.Visible());
    EXPECT_FALSE(w.frmBrowser.Visible());
    desktop.Advance(12000);
    EXPECT_EQ(pages.Log, (Texts{"Begin ann kept", "End", "Begin bob kept"}));
    EXPECT_TRUE(w.frmBrowser.Visible());
}

TEST_F(ChangeOfUser, ANoToTheQuestionAboutTabsKeepsTheUserAndTheLogin) {
    near.TabsVisible = {false, true};
    boxes.Answers = {ports::BoxAnswer::No};
    login_form.frmLogin.Show();
    TypeLogin("bob", "b");
    login_form.chkRememberMe.SetChecked(true);

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(session.UserName, "ann");
    EXPECT_TRUE(near.Log.empty());
    EXPECT_EQ(pages.Log, (Texts{"Begin ann kept"}));
    EXPECT_EQ(login.HotmailP, "hp");
    EXPECT_TRUE(login_form.frmLogin.Visible());
    EXPECT_EQ(login_form.cmbUser.Text(), "bob");
    EXPECT_EQ(stores.Rows("tblLogin")[1][8], "False");
}

TEST_F(ChangeOfUser, AnEndByTheSystemWhileTheQuestionIsUpLogsNobodyIn) {
    near.TabsVisible = {false, true};
    boxes.Answers = {ports::BoxAnswer::Yes};
    boxes.OnBox = [this] { session_room.EndSession(); };
    TypeLogin("bob", "b");

    login_form.cmdLogin.Click.Raise();

    EXPECT_EQ(session.UserName, "ann");
    EXPECT_EQ(pages.Log, (Texts{"Begin ann kept"}));
    EXPECT_FALSE(activate.frmActivate.IsLoaded());
}

TEST_F(ChangeOfUser, TheUserWhoIsLoggedInLosesNothingByLoggingInAgain) {
    near.TabsVisible = {false, true};
    w.txtRefresh.SetText("123");
    login_form.frmLogin.Show();
    TypeLogin("ann", "a");
    login_form.chkRememberMe.SetChecked(true);

    login_form.cmdLogin.Click.Raise();
    desktop.Advance(12000);

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_FALSE(login_form.frmLogin.Visible());
    EXPECT_TRUE(w.frmBrowser.Visible());
    EXPECT_TRUE(near.Log.empty());
    EXPECT_EQ(pages.Log, (Texts{"Begin ann kept"}));
    EXPECT_EQ(w.txtRefresh.Text(), "123") << "the settings were not read again";
    EXPECT_EQ(login.HotmailP, "hp");
    EXPECT_EQ(stores.Rows("tblLogin")[0][8], "True");
}

TEST_F(ChangeOfUser, ALogOutPutsTheWizardAwayWithAllThatWasTyped) {
    for (const bool on_second_page : {false, true}) {
        SCOPED_TRACE(on_second_page);
        wizard.OpenWizard();
        for (controls::TextBox* box : WizardBoxes())
            box->SetText("secret");
        if (on_second_page) login_form.cmdNext.Click.Raise();
        ASSERT_EQ(login_form.fraSetup.Visible(), on_second_page);

        w.mnuLogout.Click.Raise();

        EXPECT_TRUE(login_form.frmLogin.Visible());
        EXPECT_TRUE(login_form.fraLogin.Visible());
        EXPECT_FALSE(login_form.fraNew.Visible());
        EXPECT_FALSE(login_form.fraSetup.Visible());
        EXPECT_TRUE(login_form.cmdLogin.IsDefault());
        for (const controls::TextBox* box : WizardBoxes())
            EXPECT_EQ(box->Text(), "") << box->Name();
    }
}

TEST_F(ChangeOfUser, ALogOutForgetsAFileThatWaitsForItsSecond) {
    hand_off.Deliver("\"C:\\1.mp3\"");
    ASSERT_TRUE(mailbox.tmrOpenWith.Enabled());

    w.mnuLogout.Click.Raise();

    EXPECT_FALSE(mailbox.tmrOpenWith.Enabled());
    EXPECT_EQ(mailbox.lstOpenWith.ListCount(), 0);
}

}  // namespace
