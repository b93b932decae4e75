// The wizard for new users: a page for name and password, a page for web logins.
//
// It is opened from the login page, and from the preferences while a user is logged in; cancelling returns
// to where it was opened from.
#pragma once

#include "controls/Event.h"
#include "controls/Form.h"
#include "ports/Dialogs.h"
#include "ports/PageEngine.h"
#include "session/LoginForm.h"
#include "session/LoginRoom.h"
#include "session/SessionState.h"

namespace session {

class NewUserRoom final {
public:
    NewUserRoom(LoginForm& form, LoginRoom& login, const SessionState& session,
                const controls::Form& frmBrowser, const controls::Form& frmInfo, ports::Dialogs& dialogs,
                ports::PageEngine& pages);

    /// Shows the login window on the wizard's first page, for the preferences.
    void OpenWizard();
    /// Shows the login in place of the wizard and empties the wizard's boxes: nothing that one user typed is
    /// found by the next.
    void PutAway();

private:
    void cmdNew_Click();
    void cmdCancel_Click();
    void cmdNext_Click();
    void cmdBack_Click();
    void cmdFinish_Click();

    bool IsNameTaken();
    bool IsNameAccepted();
    void ShowPages(bool new_page, bool setup_page);
    void EmptyBoxes();
    /// False when the store cannot be opened.
    bool AddUser();

    LoginForm& form_;
    LoginRoom& login_;
    const SessionState& session_;
    const controls::Form& frm_browser_;
    const controls::Form& frm_info_;
    ports::Dialogs& dialogs_;
    ports::PageEngine& pages_;
    controls::EventClaims claims_;
};

}  // namespace session
