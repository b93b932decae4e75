#include "session/SessionHarness.h"

namespace {

using session_tests::Row;

class NewUserRoom : public session_tests::CoreTest {
protected:
    void OpenWizard() {
        OpenLogin();
        login_form.cmdNew.Click.Raise();
    }
    void TypeUser(std::string_view name, std::string_view first, std::string_view second) {
        login_form.txtNewUser.SetText(name);
        login_form.txtPass1.SetText(first);
        login_form.txtPass2.SetText(second);
    }
};

TEST_F(NewUserRoom, TheWizardOpensCleared) {
    OpenLogin();
    TypeUser("old", "old", "old");
    for (controls::TextBox* box :
         {&login_form.txtMySpaceE, &login_form.txtMySpaceP, &login_form.txtHotmailE, &login_form.txtHotmailP,
          &login_form.txtFacebookE, &login_form.txtFacebookP}) {
        box->SetText("old");
    }

    login_form.cmdNew.Click.Raise();

    EXPECT_TRUE(login_form.fraNew.Visible());
    EXPECT_FALSE(login_form.fraLogin.Visible());
    EXPECT_EQ(login_form.txtNewUser.Text(), "");
    EXPECT_EQ(login_form.txtPass1.Text(), "");
    for (controls::TextBox* box :
         {&login_form.txtMySpaceE, &login_form.txtMySpaceP, &login_form.txtHotmailE, &login_form.txtHotmailP,
          &login_form.txtFacebookE, &login_form.txtFacebookP}) {
        EXPECT_EQ(box->Text(), "") << box->Name();
    }
}

TEST_F(NewUserRoom, ABlankNameIsRefused) {
    OpenWizard();
    TypeUser("   ", "pw", "pw");

    login_form.cmdNext.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "Your user name can not be nothing or just spaces.");
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
    EXPECT_TRUE(login_form.fraNew.Visible());
    EXPECT_FALSE(login_form.fraSetup.Visible());
}

TEST_F(NewUserRoom, ATakenNameIsRefused) {
    SeedUser("ann", "a");
    OpenWizard();
    TypeUser("ann", "pw", "pw");

    login_form.cmdNext.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "This username is already in use. Please type a new one.");
    EXPECT_FALSE(login_form.fraSetup.Visible());
}

TEST_F(NewUserRoom, ANameInAnotherCaseIsFree) {
    SeedUser("ann", "a");
    OpenWizard();
    TypeUser("Ann", "pw", "pw");

    login_form.cmdNext.Click.Raise();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_TRUE(login_form.fraSetup.Visible());
}

TEST_F(NewUserRoom, PasswordsMustMatchAndNotBeBlank) {
    OpenWizard();
    for (const auto& [first, second] : {std::pair{"pw", "PW"}, {"", ""}, {"  ", "  "}}) {
        boxes.Boxes.clear();
        TypeUser("ann", first, second);

        login_form.cmdNext.Click.Raise();

        ASSERT_EQ(boxes.Boxes.size(), 1U);
        EXPECT_EQ(boxes.Boxes[0].text,
                  "Your passwords do not match or are of no length, please check and re-enter.");
        EXPECT_FALSE(login_form.fraSetup.Visible());
    }
}

TEST_F(NewUserRoom, TheNameIsCheckedBeforeThePasswords) {
    SeedUser("ann", "a");
    OpenWizard();
    TypeUser(" ", "one", "two");
    login_form.cmdNext.Click.Raise();
    EXPECT_EQ(LastBox(), "Your user name can not be nothing or just spaces.");

    TypeUser("ann", "one", "two");
    login_form.cmdNext.Click.Raise();

    EXPECT_EQ(LastBox(), "This username is already in use. Please type a new one.");
    EXPECT_EQ(boxes.Boxes.size(), 2U);
}

TEST_F(NewUserRoom, ABlankNameIsRefusedBeforeItIsLookedFor) {
    SeedUser("   ", "a");
    OpenWizard();
    TypeUser("   ", "one", "two");

    login_form.cmdNext.Click.Raise();

    EXPECT_EQ(LastBox(), "Your user name can not be nothing or just spaces.");
}

TEST_F(NewUserRoom, TheSecondPasswordBoxIsNotCleared) {
    OpenLogin();
    login_form.txtPass2.SetText("old");

    login_form.cmdNew.Click.Raise();

    EXPECT_EQ(login_form.txtPass2.Text(), "old");
}

TEST_F(NewUserRoom, NextAndBackTurnThePages) {
    OpenWizard();
    TypeUser("ann", "pw", "pw");

    login_form.cmdNext.Click.Raise();
    EXPECT_FALSE(login_form.fraNew.Visible());
    EXPECT_TRUE(login_form.fraSetup.Visible());
    EXPECT_TRUE(login_form.cmdFinish.IsDefault());
    login_form.cmdBack.Click.Raise();

    EXPECT_TRUE(login_form.fraNew.Visible());
    EXPECT_FALSE(login_form.fraSetup.Visible());
    EXPECT_TRUE(login_form.cmdNext.IsDefault());
    EXPECT_FALSE(login_form.cmdLogin.IsDefault());
}

TEST_F(NewUserRoom, FinishStoresTheUserAndFillsTheLoginIn) {
    SeedUser("bob", "b", "True");
    OpenWizard();
    TypeUser(" ann ", "pw", "pw");
    login_form.txtMySpaceE.SetText("me@ms");
    login_form.txtHotmailP.SetText("secret");
    login_form.cmdNext.Click.Raise();

    login_form.cmdFinish.Click.Raise();

    EXPECT_EQ(stores.Rows("tblLogin").back(),
              (Row{" ann ", "pw", " me@ms", " ", " ", " secret", " ", " ", "False", "False"}));
    EXPECT_FALSE(login_form.fraNew.Visible());
    EXPECT_FALSE(login_form.fraSetup.Visible());
    EXPECT_EQ(login_form.cmbUser.Text(), " ann ");
    EXPECT_EQ(login_form.txtPassword.Text(), "pw");
    EXPECT_EQ(login_form.cmbUser.ListCount(), 2);
    EXPECT_FALSE(session.LoggedIn);
    EXPECT_TRUE(login_form.cmdLogin.IsDefault());
}

TEST_F(NewUserRoom, FinishTakesAwayWhatPagesKeptForAnEarlierUserOfThatName) {
    StartProgram();
    login_form.cmdNew.Click.Raise();
    login_form.txtNewUser.SetText("Ann");
    login_form.txtPass1.SetText("a");
    login_form.txtPass2.SetText("a");
    login_form.cmdNext.Click.Raise();
    EXPECT_TRUE(pages.Log.empty());

    login_form.cmdFinish.Click.Raise();

    EXPECT_EQ(pages.Log, session_tests::Texts{"Remove Ann"});
}

TEST_F(NewUserRoom, FinishDoesNotLogAnotherUserIn) {
    SeedUser("bob", "", "True", "True");
    OpenWizard();
    TypeUser("ann", "pw", "pw");
    login_form.cmdNext.Click.Raise();

    login_form.cmdFinish.Click.Raise();

    EXPECT_FALSE(session.LoggedIn);
    EXPECT_EQ(login_form.cmbUser.Text(), "ann");
}

TEST_F(NewUserRoom, TheNewUserCanLogIn) {
    OpenWizard();
    TypeUser("ann", "pw", "pw");
    login_form.cmdNext.Click.Raise();
    login_form.cmdFinish.Click.Raise();

    login_form.cmdLogin.Click.Raise();

    EXPECT_TRUE(session.LoggedIn);
    EXPECT_EQ(login.MySpaceE, "");
}

TEST_F(NewUserRoom, AUserThatCannotBeStoredKeepsThePage) {
    stores.Database.FailOpen(fakes::SeededStores::kLoginPath, ports::DatabaseError::Damaged);
    OpenWizard();
    TypeUser("ann", "pw", "pw");
    login_form.cmdNext.Click.Raise();

    login_form.cmdFinish.Click.Raise();

    EXPECT_TRUE(login_form.fraSetup.Visible());
    EXPECT_EQ(LastBox(), "The new user could not be stored, because the login database can not be opened.");
}

TEST_F(NewUserRoom, CancelGoesBackToTheLogin) {
    OpenWizard();

    login_form.cmdCancel.Click.Raise();

    EXPECT_FALSE(login_form.fraNew.Visible());
    EXPECT_TRUE(login_form.fraLogin.Visible());
    EXPECT_TRUE(login_form.frmLogin.Visible());
}

TEST_F(NewUserRoom, CancelBeforeTheFirstLoginNeverHidesTheLogin) {
    w.frmBrowser.Show();
    OpenWizard();

    login_form.cmdCancel.Click.Raise();

    EXPECT_TRUE(login_form.frmLogin.Visible());
}

TEST_F(NewUserRoom, CancelOfAWizardFromThePreferencesHidesTheLogin) {
    OpenLogin();
    session.LoggedIn = true;
    w.frmInfo.Show();
    wizard.OpenWizard();
    EXPECT_TRUE(login_form.fraNew.Visible());

    login_form.cmdCancel.Click.Raise();

    EXPECT_FALSE(login_form.frmLogin.Visible());
    EXPECT_FALSE(login_form.fraNew.Visible());
}

}  // namespace
