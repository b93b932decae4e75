#include "session/LoginForm.h"

#include "controls/Arrange.h"

namespace session {
namespace {

using controls::Px;

constexpr double kWidth = 420;
constexpr double kHeight = 300;
constexpr double kLastRunHeight = 80;

void MakePassword(controls::TextBox& box, std::string_view name) {
    box.SetPassword(true);
    box.SetAccessibleName(name);
}

}  // namespace

LoginForm::LoginForm() {
    frmLogin.SetContentSize(Px(kWidth), Px(kHeight));
    FillLoginPage();
    FillNewPage();
    FillSetupPage();
    FillLastRun();
}

void LoginForm::FillLoginPage() {
    frmLogin.Add(fraLogin, tmrLoad);
    fraLogin.Add(lblProduct, lblWelcome, lblUser, cmbUser, lblPassword, txtPassword, chkRememberMe, chkAuto,
                 cmdNew, cmdLogin);
    Place(fraLogin, 0, 0, kWidth, kHeight);
    Place(lblProduct, 32, 20, 356, 36);
    Place(lblWelcome, 32, 60, 356, 20);
    Place(lblUser, 32, 100, 104, 24);
    Place(cmbUser, 144, 96, 244, 28);
    Place(lblPassword, 32, 140, 104, 24);
    Place(txtPassword, 144, 136, 244, 28);
    Place(chkRememberMe, 144, 176, 244, 24);
    Place(chkAuto, 144, 204, 244, 24);
    Place(cmdNew, 32, 248, 112, 32);
    Place(cmdLogin, 276, 248, 112, 32);

    fraLogin.SetLook("page");
    lblProduct.SetLook("title");
    lblWelcome.SetLook("muted");
    cmdLogin.SetLook("accent");
    cmdLogin.SetDefault(true);
    cmbUser.SetAccessibleName("User name");
    MakePassword(txtPassword, "Password");
}

void LoginForm::FillNewPage() {
    frmLogin.Add(fraNew);
    fraNew.Add(lblNewHeading, lblNewLine, lblNewUser, txtNewUser, lblPass1, txtPass1, lblPass2, txtPass2,
               cmdCancel, cmdNext);
    Place(fraNew, 0, 0, kWidth, kHeight);
    Place(lblNewHeading, 32, 20, 356, 36);
    Place(lblNewLine, 32, 60, 356, 20);
    Place(lblNewUser, 32, 100, 128, 24);
    Place(txtNewUser, 168, 96, 220, 28);
    Place(lblPass1, 32, 140, 128, 24);
    Place(txtPass1, 168, 136, 220, 28);
    Place(lblPass2, 32, 180, 128, 24);
    Place(txtPass2, 168, 176, 220, 28);
    Place(cmdCancel, 32, 248, 112, 32);
    Place(cmdNext, 276, 248, 112, 32);

    fraNew.SetLook("page");
    lblNewHeading.SetLook("title");
    lblNewLine.SetLook("muted");
    cmdNext.SetLook("accent");
    txtNewUser.SetAccessibleName("New user name");
    MakePassword(txtPass1, "New password");
    MakePassword(txtPass2, "Re-type new password");
    fraNew.SetVisible(false);
}

void LoginForm::FillSetupPage() {
    frmLogin.Add(fraSetup);
    fraSetup.Add(lblSetupHeading, lblSetupLine, lblSetupE, lblSetupP, lblMySpace, txtMySpaceE, txtMySpaceP,
                 lblHotmail, txtHotmailE, txtHotmailP, lblFacebook, txtFacebookE, txtFacebookP, cmdBack,
                 cmdFinish);
    Place(fraSetup, 0, 0, kWidth, kHeight);
    Place(lblSetupHeading, 32, 20, 356, 36);
    Place(lblSetupLine, 32, 60, 356, 20);
    Place(lblSetupE, 120, 92, 150, 20);
    Place(lblSetupP, 278, 92, 110, 20);
    Place(lblMySpace, 32, 120, 80, 24);
    Place(txtMySpaceE, 120, 116, 150, 28);
    Place(txtMySpaceP, 278, 116, 110, 28);
    Place(lblHotmail, 32, 156, 80, 24);
    Place(txtHotmailE, 120, 152, 150, 28);
    Place(txtHotmailP, 278, 152, 110, 28);
    Place(lblFacebook, 32, 192, 80, 24);
    Place(txtFacebookE, 120, 188, 150, 28);
    Place(txtFacebookP, 278, 188, 110, 28);
    Place(cmdBack, 32, 248, 112, 32);
    Place(cmdFinish, 276, 248, 112, 32);

    fraSetup.SetLook("page");
    lblSetupHeading.SetLook("title");
    lblSetupLine.SetLook("muted");
    lblSetupE.SetLook("muted");
    lblSetupP.SetLook("muted");
    cmdFinish.SetLook("accent");
    txtMySpaceE.SetAccessibleName("MySpace e-mail");
    MakePassword(txtMySpaceP, "MySpace password");
    txtHotmailE.SetAccessibleName("Hotmail e-mail");
    MakePassword(txtHotmailP, "Hotmail password");
    txtFacebookE.SetAccessibleName("Facebook e-mail");
    MakePassword(txtFacebookP, "Facebook password");
    fraSetup.SetVisible(false);
}

void LoginForm::ShowLastRun() {
    frmLogin.SetContentSize(Px(kWidth), Px(kHeight + kLastRunHeight));
    Place(last_run.fraLastRun, 0, kHeight, kWidth, kLastRunHeight);
    last_run.fraLastRun.SetVisible(true);
}

void LoginForm::FillLastRun() {
    frmLogin.Add(last_run.fraLastRun);
    last_run.fraLastRun.Add(last_run.lblLastRun, last_run.cmdShowReport, last_run.chkNoHomePages);
    Place(last_run.fraLastRun, 0, 0, kWidth, kLastRunHeight);
    Place(last_run.lblLastRun, 32, 8, 236, 24);
    Place(last_run.cmdShowReport, 276, 4, 112, 32);
    Place(last_run.chkNoHomePages, 32, 40, 356, 24);
    last_run.fraLastRun.SetLook("page");
    last_run.fraLastRun.SetVisible(false);
}

}  // namespace session
