// The login: loads the stored users, lets one of them in, keeps their web logins for the rest of the session.
//
// The wizard of the preferences offers its new user while another one is logged in: that one is taken away
// first. A login of the user who is logged in only puts the window away.
//
// Names and passwords are compared as texts, case included. At most one user stays remembered: the
// one that logged in last with the box ticked.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/Event.h"
#include "controls/Form.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "ports/InstanceLock.h"
#include "session/ActivateRoom.h"
#include "session/LoginForm.h"
#include "session/SessionState.h"
#include "session/SettingsRoom.h"

namespace session {

class LoginRoom final {
public:
    /// `app_path` is the application folder in drive form, without a backslash at its end.
    LoginRoom(LoginForm& form, LoginState& login, SessionState& session, controls::Form& frmBrowser,
              ActivateRoom& splash, SettingsRoom& settings, ports::InstanceLock& instance,
              store::Stores& stores, ports::Files& files, ports::Dialogs& dialogs, ports::EventLoop& events,
              std::string_view app_path);

    void DoLogin();
    void LoadUsers();

    /// Reads the users again and fills the page in for this one.
    void OfferUser(std::string_view name, std::string_view password);
    /// Shows the window with an empty password box: what the last user typed does not stay there.
    void ShowLogin();

    /// Called before somebody is logged in automatically. May be empty.
    std::function<void()> OnAutomaticLogin;
    /// Called before a user is logged in while another one is: takes that one away as a log out does. False
    /// when they stay.
    std::function<bool()> OnOtherUser;

private:
    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload(bool& cancel);
    void Form_Unload(bool& cancel);
    void cmbUser_Click();
    void txtPassword_KeyDown(int key_code);
    void cmdLogin_Click();
    void tmrLoad_Tick();

    bool IsFirstRun() { return instance_.Answer() == ports::Instance::First; }
    bool HasFile(std::string_view file) const;
    void ReadMultipleUsers();
    /// Takes what the current row of tblLogin remembers; true when the row logs in automatically.
    bool TakeRemembered();
    void FocusFirstEmptyBox();
    bool HasEntries();
    bool FindUser();
    bool IsUserLoggedIn() const { return session_.LoggedIn && session_.UserName == strName_; }
    bool MakeWay();
    void LogIn();
    void StoreChoices();
    void RememberOnlyThisUser();

    LoginForm& form_;
    LoginState& login_;
    SessionState& session_;
    controls::Form& frm_browser_;
    ActivateRoom& splash_;
    SettingsRoom& settings_;
    ports::InstanceLock& instance_;
    store::Stores& stores_;
    ports::Files& files_;
    ports::Dialogs& dialogs_;
    ports::EventLoop& events_;
    std::string app_path_;

    std::string strName_;
    std::string strPass_;
    bool LoginDone_ = false;
    bool SkipAutoLogin_ = false;  // the wizard filled name and password in
    bool FirstLogin_ = true;      // nobody has logged in yet
    int load_ticks_ = 0;
    controls::EventClaims claims_;
};

}  // namespace session
