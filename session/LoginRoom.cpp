#include "session/LoginRoom.h"

#include <utility>

#include "base/Number.h"
#include "base/Text.h"
#include "store/Settings.h"
#include "store/Tables.h"

namespace session {
namespace {

constexpr int kMultipleUsersTick = 2;
constexpr int kLoadUsersTick = 5;

std::string Trimmed(std::string_view text) {
    return std::string(base::Trim(text));
}

}  // namespace

LoginRoom::LoginRoom(LoginForm& form, LoginState& login, SessionState& session, controls::Form& frmBrowser,
                     ActivateRoom& splash, SettingsRoom& settings, ports::InstanceLock& instance,
                     store::Stores& stores, ports::Files& files, ports::Dialogs& dialogs,
                     ports::EventLoop& events, std::string_view app_path)
    : form_(form),
      login_(login),
      session_(session),
      frm_browser_(frmBrowser),
      splash_(splash),
      settings_(settings),
      instance_(instance),
      stores_(stores),
      files_(files),
      dialogs_(dialogs),
      events_(events),
      app_path_(app_path) {
    claims_.Claim(form_.frmLogin.Load, [this] { Form_Load(); });
    claims_.Claim(form_.frmLogin.Activate, [this] { Form_Activate(); });
    claims_.Claim(form_.frmLogin.QueryUnload, [this](bool& cancel) { Form_QueryUnload(cancel); });
    claims_.Claim(form_.frmLogin.Unload, [this](bool& cancel) { Form_Unload(cancel); });
    claims_.Claim(form_.cmbUser.Click, [this] { cmbUser_Click(); });
    claims_.Claim(form_.txtPassword.KeyDown, [this](int key_code, int) { txtPassword_KeyDown(key_code); });
    claims_.Claim(form_.cmdLogin.Click, [this] { cmdLogin_Click(); });
    claims_.Claim(form_.tmrLoad.Tick, [this] { tmrLoad_Tick(); });
}

bool LoginRoom::HasFile(std::string_view file) const {
    return files_.FileExists(std::string(app_path_).append(file));
}

void LoginRoom::Form_Load() {
    if (!IsFirstRun()) return;
    FirstLogin_ = true;
    load_ticks_ = 0;
    if (!HasFile(store::kLoginStore) || !HasFile(store::kHistoryStore)) {
        form_.tmrLoad.SetEnabled(false);
        session_.NothingBegun = true;
        form_.frmLogin.UnloadWindow();
        return;
    }
    form_.tmrLoad.SetEnabled(true);
    events_.Yield();
    form_.datLogin.SetDatabaseName(stores_, std::string(app_path_).append(store::kLoginStore));
    form_.datHistory.SetDatabaseName(stores_, std::string(app_path_).append(store::kHistoryStore));
}

// A window cannot be hidden while it is being loaded to be shown, so a second run hides it here.
void LoginRoom::Form_Activate() {
    if (!IsFirstRun()) form_.frmLogin.Hide();
}

// With somebody logged in the window only serves its wizard, and closing it puts that away.
void LoginRoom::Form_QueryUnload(bool& cancel) {
    if (!session_.LoggedIn || session_.IsOver()) return;
    cancel = true;
    form_.cmdCancel.Click.Raise();
    form_.frmLogin.Hide();
}

// With nobody logged in, closing the window ends the program, unless that has to stay to save its stores.
void LoginRoom::Form_Unload(bool& cancel) {
    if (!session_.LoggedIn && !session_.mainclose) cancel = !frm_browser_.UnloadWindow();
    if (!cancel) form_.tmrLoad.SetEnabled(false);
}

void LoginRoom::tmrLoad_Tick() {
    ++load_ticks_;
    if (load_ticks_ == kMultipleUsersTick) {
        ReadMultipleUsers();
        // The tick that lists the users finds them read.
        form_.datLogin.Open(store::kAllUsers);
    }
    if (load_ticks_ != kLoadUsersTick) return;
    LoginDone_ = false;
    LoadUsers();
    SkipAutoLogin_ = false;
    form_.tmrLoad.SetEnabled(false);
}

void LoginRoom::ReadMultipleUsers() {
    if (!form_.datHistory.Open(store::kAllHistory)) return;
    store::RecordSet& rows = form_.datHistory.Recordset();
    if (!store::MoveToSetting(rows, store::SettingsRow::MultipleUsers)) return;
    login_.Allow_Multiple_Users =
        store::IsOn(store::Truth::OnlyTrue, rows.Text(store::tblHistory::HistoryText));
    if (login_.Allow_Multiple_Users) form_.frmLogin.Show();
}

void LoginRoom::LoadUsers() {
    if (!HasFile(store::kLoginStore)) {
        form_.tmrLoad.SetEnabled(false);
        return;
    }
    form_.datLogin.Open(store::kAllUsers);
    form_.cmbUser.Clear();
    form_.txtPassword.SetText("");
    if (!SkipAutoLogin_) {
        strName_.clear();
        strPass_.clear();
    }
    bool auto_login = false;
    store::RecordSet& rows = form_.datLogin.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(store::tblLogin::UserName).empty()) continue;
        form_.cmbUser.AddItem(rows.Text(store::tblLogin::UserName));
        if (!SkipAutoLogin_ && TakeRemembered()) auto_login = true;
    }
    form_.cmbUser.SetText(strName_);
    form_.txtPassword.SetText(strPass_);
    FocusFirstEmptyBox();
    // A user who was quick is in the wizard already, and makes a profile of their own.
    if (!auto_login || strPass_.empty() || !form_.fraLogin.Visible()) return;
    if (OnAutomaticLogin) OnAutomaticLogin();
    cmdLogin_Click();
}

bool LoginRoom::TakeRemembered() {
    const store::RecordSet& row = form_.datLogin.Recordset();
    if (row.Text(store::tblLogin::RememberMe) == base::FlagText(true)) {
        form_.chkRememberMe.SetChecked(true);
        strName_ = row.Text(store::tblLogin::UserName);
        // The password of a row before belongs to another name.
        strPass_.clear();
    }
    if (row.Text(store::tblLogin::AutoLogin) != base::FlagText(true)) return false;
    form_.chkAuto.SetChecked(true);
    strName_ = row.Text(store::tblLogin::UserName);
    strPass_ = row.Text(store::tblLogin::Password);
    return true;
}

void LoginRoom::OfferUser(std::string_view name, std::string_view password) {
    strName_ = name;
    strPass_ = password;
    SkipAutoLogin_ = true;
    form_.datLogin.Refresh();
    LoadUsers();
}

void LoginRoom::ShowLogin() {
    form_.txtPassword.SetText("");
    form_.frmLogin.Show();
    FocusFirstEmptyBox();
}

void LoginRoom::FocusFirstEmptyBox() {
    // The wizard may be open.
    if (!form_.fraLogin.Visible()) return;
    if (form_.cmbUser.Text().empty()) {
        form_.cmbUser.SetFocus();
    } else {
        form_.txtPassword.SetFocus();
    }
}

void LoginRoom::cmbUser_Click() {
    form_.txtPassword.SetText("");
}

// Enter may press the default button as well; whichever of the two comes second finds the window gone.
void LoginRoom::txtPassword_KeyDown(int key_code) {
    if (key_code == controls::kKeyEnter && form_.frmLogin.Visible()) cmdLogin_Click();
}

void LoginRoom::cmdLogin_Click() {
    // After a log out the answer of the login before must not stand for this one.
    LoginDone_ = false;
    strName_ = form_.cmbUser.Text();
    strPass_ = form_.txtPassword.Text();
    if (!HasEntries()) return;
    form_.datLogin.Open(store::kAllUsers);
    if (FindUser()) {
        if (!MakeWay()) return;
        LogIn();
    }
    if (!LoginDone_) {
        dialogs_.MsgBox("Your user name and password did not match, please check and re-type");
        return;
    }
    RememberOnlyThisUser();
}

bool LoginRoom::HasEntries() {
    if (strName_.empty()) {
        dialogs_.MsgBox("Please enter a user name");
        return false;
    }
    if (strPass_.empty()) {
        dialogs_.MsgBox("Please enter a password");
        return false;
    }
    return true;
}

bool LoginRoom::FindUser() {
    store::RecordSet& rows = form_.datLogin.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(store::tblLogin::UserName) == strName_ &&
            rows.Text(store::tblLogin::Password) == strPass_) {
            return true;
        }
    }
    return false;
}

// The wizard, opened from the preferences, leaves the login filled in while its user's maker is logged in.
bool LoginRoom::MakeWay() {
    if (!session_.LoggedIn || IsUserLoggedIn()) return true;
    // A question may have been up meanwhile, and the rows may have moved.
    return OnOtherUser() && FindUser();
}

// The page engine, the tabs and the song go on for a user who is logged in already.
void LoginRoom::LogIn() {
    StoreChoices();
    if (IsUserLoggedIn()) {
        LoginDone_ = true;
        form_.frmLogin.Hide();
        return;
    }
    store::RecordSet& row = form_.datLogin.Recordset();
    login_.MySpaceE = Trimmed(row.Text(store::tblLogin::MySpaceE));
    login_.MySpaceP = Trimmed(row.Text(store::tblLogin::MySpaceP));
    login_.HotmailE = Trimmed(row.Text(store::tblLogin::HotmailE));
    login_.HotmailP = Trimmed(row.Text(store::tblLogin::HotmailP));
    login_.FaceBookE = Trimmed(row.Text(store::tblLogin::FaceBookE));
    login_.FaceBookP = Trimmed(row.Text(store::tblLogin::FaceBookP));
    // The start loads the settings for the first user. A refused try is no login: after it the settings would
    // be loaded, and the home pages opened, a second time.
    if (!std::exchange(FirstLogin_, false)) login_.NewLogin = true;
    session_.UserName = strName_;
    DoLogin();
    // A later login reads the settings first, and with them whether history is kept.
    if (!login_.NewLogin) settings_.BeginPages();
}

void LoginRoom::StoreChoices() {
    store::RecordSet& row = form_.datLogin.Recordset();
    row.Edit();
    row.Set(store::tblLogin::RememberMe, base::FlagText(form_.chkRememberMe.Checked()));
    row.Set(store::tblLogin::AutoLogin, base::FlagText(form_.chkAuto.Checked()));
    row.Update();
}

void LoginRoom::DoLogin() {
    session_.LoggedIn = true;
    frm_browser_.Hide();
    LoginDone_ = true;
    form_.frmLogin.Hide();
    splash_.StartCounting();
}

void LoginRoom::RememberOnlyThisUser() {
    const bool remembers = form_.chkRememberMe.Checked();
    const bool logs_in_alone = form_.chkAuto.Checked();
    if (!remembers && !logs_in_alone) return;
    store::RecordSet& rows = form_.datLogin.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(store::tblLogin::UserName) == strName_) continue;
        rows.Edit();
        if (remembers) rows.Set(store::tblLogin::RememberMe, base::FlagText(false));
        if (logs_in_alone) rows.Set(store::tblLogin::AutoLogin, base::FlagText(false));
        rows.Update();
    }
}

}  // namespace session
