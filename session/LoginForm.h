// The login window: user and password, and in their place the two pages of the wizard that makes a new user.
#pragma once

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "store/DataSource.h"

namespace session {

/// Below the login: what is told after a run that crashed. Away otherwise.
struct LastRunControls {
    controls::Frame fraLastRun{"fraLastRun"};
    controls::Label lblLastRun{"lblLastRun", "Brindlepost crashed last time."};
    controls::CommandButton cmdShowReport{"cmdShowReport", "Show Report"};
    controls::CheckBox chkNoHomePages{"chkNoHomePages", "Start without home pages"};
};

struct LoginForm {
    LoginForm();

    /// The window grows by what is told after a run that crashed.
    void ShowLastRun();

    controls::Form frmLogin{"frmLogin", "Brindlepost - Login", controls::BorderStyle::FixedDialog};
    controls::Frame fraLogin{"fraLogin"};  ///< the login itself, away while the wizard shows
    controls::Label lblProduct{"lblProduct", "Brindlepost"};
    controls::Label lblWelcome{"lblWelcome", "Please log in to your profile"};
    controls::Label lblUser{"lblUser", "User name:"};
    controls::ComboBox cmbUser{"cmbUser"};
    controls::Label lblPassword{"lblPassword", "Password:"};
    controls::TextBox txtPassword{"txtPassword"};
    controls::CheckBox chkRememberMe{"chkRememberMe", "Remember me"};
    controls::CheckBox chkAuto{"chkAuto", "Log me in automatically"};
    controls::CommandButton cmdNew{"cmdNew", "New User"};
    controls::CommandButton cmdLogin{"cmdLogin", "Login"};
    controls::Timer tmrLoad{"tmrLoad", 100};
    store::DataSource datLogin{"datLogin"};
    store::DataSource datHistory{"datHistory"};

    // First page: name and password of the new user.
    controls::Frame fraNew{"fraNew"};
    controls::Label lblNewHeading{"lblNewHeading", "New user"};
    controls::Label lblNewLine{"lblNewLine", "Choose a name and a password"};
    controls::Label lblNewUser{"lblNewUser", "User name:"};
    controls::TextBox txtNewUser{"txtNewUser"};
    controls::Label lblPass1{"lblPass1", "Password:"};
    controls::TextBox txtPass1{"txtPass1"};
    controls::Label lblPass2{"lblPass2", "Re-type password:"};
    controls::TextBox txtPass2{"txtPass2"};
    controls::CommandButton cmdCancel{"cmdCancel", "Cancel"};
    controls::CommandButton cmdNext{"cmdNext", "Next >"};

    // Second page: the user's logins on web sites. All of it may stay empty.
    controls::Frame fraSetup{"fraSetup"};
    controls::Label lblSetupHeading{"lblSetupHeading", "Web site logins"};
    controls::Label lblSetupLine{"lblSetupLine", "Optional: leave empty what you do not use"};
    controls::Label lblSetupE{"lblSetupE", "E-mail"};
    controls::Label lblSetupP{"lblSetupP", "Password"};
    controls::Label lblMySpace{"lblMySpace", "MySpace:"};
    controls::TextBox txtMySpaceE{"txtMySpaceE"};
    controls::TextBox txtMySpaceP{"txtMySpaceP"};
    controls::Label lblHotmail{"lblHotmail", "Hotmail:"};
    controls::TextBox txtHotmailE{"txtHotmailE"};
    controls::TextBox txtHotmailP{"txtHotmailP"};
    controls::Label lblFacebook{"lblFacebook", "Facebook:"};
    controls::TextBox txtFacebookE{"txtFacebookE"};
    controls::TextBox txtFacebookP{"txtFacebookP"};
    controls::CommandButton cmdBack{"cmdBack", "< Back"};
    controls::CommandButton cmdFinish{"cmdFinish", "Finish"};

    LastRunControls last_run;

private:
    void FillLoginPage();
    void FillNewPage();
    void FillSetupPage();
    void FillLastRun();
};

}  // namespace session
