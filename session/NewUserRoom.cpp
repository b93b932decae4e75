#include "session/NewUserRoom.h"

#include "base/Number.h"
#include "base/Text.h"
#include "store/Tables.h"

namespace session {
namespace {

// A site's field is stored with a blank in front, so that an empty entry is no value of length zero.
std::string Stored(const controls::TextBox& box) {
    return " " + box.Text();
}

}  // namespace

NewUserRoom::NewUserRoom(LoginForm& form, LoginRoom& login, const SessionState& session,
                         const controls::Form& frmBrowser, const controls::Form& frmInfo,
                         ports::Dialogs& dialogs, ports::PageEngine& pages)
    : form_(form),
      login_(login),
      session_(session),
      frm_browser_(frmBrowser),
      frm_info_(frmInfo),
      dialogs_(dialogs),
      pages_(pages) {
    claims_.Claim(form_.cmdNew.Click, [this] { cmdNew_Click(); });
    claims_.Claim(form_.cmdCancel.Click, [this] { cmdCancel_Click(); });
    claims_.Claim(form_.cmdNext.Click, [this] { cmdNext_Click(); });
    claims_.Claim(form_.cmdBack.Click, [this] { cmdBack_Click(); });
    claims_.Claim(form_.cmdFinish.Click, [this] { cmdFinish_Click(); });
}

void NewUserRoom::OpenWizard() {
    form_.frmLogin.Show();
    cmdNew_Click();
}

void NewUserRoom::ShowPages(bool new_page, bool setup_page) {
    form_.fraLogin.SetVisible(!new_page && !setup_page);
    form_.fraNew.SetVisible(new_page);
    form_.fraSetup.SetVisible(setup_page);
    form_.cmdLogin.SetDefault(!new_page && !setup_page);
    form_.cmdNext.SetDefault(new_page);
    form_.cmdFinish.SetDefault(setup_page);
    form_.cmdCancel.SetCancel(new_page);
}

void NewUserRoom::PutAway() {
    ShowPages(false, false);
    EmptyBoxes();
    form_.txtPass2.SetText("");
}

void NewUserRoom::EmptyBoxes() {
    for (controls::TextBox* box :
         {&form_.txtNewUser, &form_.txtPass1, &form_.txtMySpaceE, &form_.txtMySpaceP, &form_.txtHotmailE,
          &form_.txtHotmailP, &form_.txtFacebookE, &form_.txtFacebookP}) {
        box->SetText("");
    }
}

void NewUserRoom::cmdNew_Click() {
    ShowPages(true, false);
    EmptyBoxes();
    form_.txtNewUser.SetFocus();
}

// The main window may lie disabled behind the very first login; only with somebody logged in can the
// preferences have opened the wizard.
void NewUserRoom::cmdCancel_Click() {
    ShowPages(false, false);
    const bool from_preferences = session_.LoggedIn && (frm_browser_.Visible() || frm_info_.Visible());
    if (from_preferences) form_.frmLogin.Hide();
}

void NewUserRoom::cmdNext_Click() {
    form_.datLogin.Open(store::kAllUsers);
    if (!IsNameAccepted()) return;
    if (form_.txtPass1.Text() != form_.txtPass2.Text() || base::Trim(form_.txtPass1.Text()).empty()) {
        dialogs_.MsgBox("Your passwords do not match or are of no length, please check and re-enter.");
        return;
    }
    ShowPages(false, true);
    form_.txtMySpaceE.SetFocus();
}

bool NewUserRoom::IsNameAccepted() {
    if (base::Trim(form_.txtNewUser.Text()).empty()) {
        dialogs_.MsgBox("Your user name can not be nothing or just spaces.");
        return false;
    }
    if (IsNameTaken()) {
        dialogs_.MsgBox("This username is already in use. Please type a new one.");
        return false;
    }
    return true;
}

bool NewUserRoom::IsNameTaken() {
    store::RecordSet& rows = form_.datLogin.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(store::tblLogin::UserName) == form_.txtNewUser.Text()) return true;
    }
    return false;
}

void NewUserRoom::cmdBack_Click() {
    ShowPages(true, false);
    form_.txtNewUser.SetFocus();
}

void NewUserRoom::cmdFinish_Click() {
    if (!AddUser()) {
        dialogs_.MsgBox("The new user could not be stored, because the login database can not be opened.");
        return;
    }
    pages_.RemoveUser(form_.txtNewUser.Text());
    ShowPages(false, false);
    login_.OfferUser(form_.txtNewUser.Text(), form_.txtPass1.Text());
}

bool NewUserRoom::AddUser() {
    if (!form_.datLogin.Open(store::kAllUsers)) return false;
    store::RecordSet& rows = form_.datLogin.Recordset();
    rows.AddNew();
    rows.Set(store::tblLogin::UserName, form_.txtNewUser.Text());
    rows.Set(store::tblLogin::Password, form_.txtPass1.Text());
    rows.Set(store::tblLogin::MySpaceE, Stored(form_.txtMySpaceE));
    rows.Set(store::tblLogin::MySpaceP, Stored(form_.txtMySpaceP));
    rows.Set(store::tblLogin::HotmailE, Stored(form_.txtHotmailE));
    rows.Set(store::tblLogin::HotmailP, Stored(form_.txtHotmailP));
    rows.Set(store::tblLogin::FaceBookE, Stored(form_.txtFacebookE));
    rows.Set(store::tblLogin::FaceBookP, Stored(form_.txtFacebookP));
    rows.Set(store::tblLogin::RememberMe, base::FlagText(false));
    rows.Set(store::tblLogin::AutoLogin, base::FlagText(false));
    return rows.Update();
}

}  // namespace session
