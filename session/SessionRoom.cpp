#include "session/SessionRoom.h"

#include <utility>

namespace session {

SessionRoom::SessionRoom(SessionWindows windows, SessionMenu& menu, SessionState& session, LoginState& login,
                         SessionEndRooms rooms, SessionEndRoles roles, SessionStores stores,
                         SessionEndPorts ports)
    : windows_(windows),
      session_(session),
      login_(login),
      rooms_(rooms),
      roles_(roles),
      stores_(stores),
      ports_(ports) {
    claims_.Claim(windows_.frmBrowser.QueryUnload, [this](bool& cancel) { Form_QueryUnload(cancel); });
    claims_.Claim(windows_.frmBrowser.Activate, [this] { Form_Activate(); });
    claims_.Claim(windows_.frmBrowser.Click, [this] { Form_Click(); });
    claims_.Claim(windows_.frmBrowser.MouseMove, [this] { Form_MouseMove(); });
    claims_.Claim(windows_.frmBrowser.KeyDown,
                  [this](int key_code, int shift) { rooms_.keys.KeyDown(key_code, shift); });
    claims_.Claim(menu.mnuExit.Click, [this] { mnuExit_Click(); });
    claims_.Claim(menu.mnuLogout.Click, [this] { mnuLogout_Click(); });
    rooms_.login.OnOtherUser = [this] { return LogOut(); };
}

void SessionRoom::mnuExit_Click() {
    session_.LoggingOut = false;
    windows_.frmBrowser.UnloadWindow();
}

// Tabs opened before the login are not asked about. A second close waits for the first; the system may end
// the program while the question is up.
void SessionRoom::Form_QueryUnload(bool& cancel) {
    if (unloading_ || session_.NothingBegun) return;
    cancel = true;
    if (closing_) return;
    closing_ = true;
    session_.LoggingOut = false;
    const bool agreed =
        !session_.LoggedIn || !HasOpenTabs() ||
        Agrees("You currently have web tabs open, are you sure you want to exit?", "Exit Brindlepost");
    cancel = !unloading_ && (!agreed || !Leave());
    closing_ = false;
}

void SessionRoom::EndSession() {
    if (unloading_) return;
    if (session_.NothingBegun) {
        windows_.frmBrowser.UnloadWindow();
        return;
    }
    closing_ = true;
    session_.LoggingOut = false;
    BeginToLeave();
    if (unloading_) return;
    // The system waits for no answer: what cannot be written is lost.
    rooms_.settings.StoreSettings();
    stores_.stores.CommitAll();
    UnloadWindows();
}

void SessionRoom::BeginToLeave() {
    session_.mainclose = true;
    roles_.transport.Stop();
    roles_.messenger.SendNothingPlaying();
    ports_.events.Yield();
}

bool SessionRoom::Leave() {
    BeginToLeave();
    return unloading_ || SaveSettings();
}

bool SessionRoom::HasOpenTabs() const {
    for (int i = 1; i < roles_.tabs.Count(); ++i) {
        if (roles_.tabs.IsTabVisible(i)) return true;
    }
    return false;
}

bool SessionRoom::Agrees(std::string_view text, std::string_view title) {
    return ports_.dialogs.MsgBox(text, ports::BoxButtons::YesNo, title) == ports::BoxAnswer::Yes;
}

bool SessionRoom::SaveSettings() {
    // A store that could never be read has no settings to lose.
    const bool stored = rooms_.settings.StoreSettings() || !rooms_.settings.WereLoaded();
    // The program goes on, and with it the tries to write.
    if (session_.LoggingOut) return stored;
    if (!stores_.stores.CommitAll() || !stored) {
        session_.mainclose = false;
        if (!MayEndUnsaved()) return false;
        session_.mainclose = true;
    }
    if (!unloading_) UnloadWindows();
    return true;
}

// At the first try the user is told, and may put right what is wrong; from then on each try asks.
bool SessionRoom::MayEndUnsaved() {
    stores_.trouble.Forget();
    std::string why = stores_.stores.WhyUnwritten();
    if (why.empty()) why = "The file \"dbHistory.mdb\" can not be opened.";
    if (std::exchange(save_failed_, true)) {
        return ports_.dialogs.MsgBox("Your settings and your last changes can still not be saved.\n\n" + why +
                                         "\n\nEnd Brindlepost without saving them?",
                                     ports::BoxButtons::YesNo, "Exit Brindlepost",
                                     ports::BoxIcon::Critical) == ports::BoxAnswer::Yes ||
               unloading_;
    }
    ports_.dialogs.MsgBox(
        "Your settings and your last changes could not be saved.\n\n" + why +
            "\n\nBrindlepost stays open, so that you can put this right and exit again. If it still "
            "can not save then, you may end it without saving.",
        ports::BoxButtons::Ok, "Exit Brindlepost", ports::BoxIcon::Critical);
    return unloading_;
}

void SessionRoom::UnloadWindows() {
    unloading_ = true;
    windows_.unloadme = true;
    for (controls::Form* window :
         {&windows_.frmActivate, &windows_.frmLogin, &windows_.frmAdd, &windows_.frmAbout,
          &windows_.frmAddMedia, &windows_.frmInfo, &windows_.frmSpeakerTest}) {
        window->UnloadWindow();
    }
    roles_.transport.Stop();
    roles_.messenger.SendNothingPlaying();
    roles_.player.CloseMedia();
    windows_.frmVideo.UnloadWindow();
    windows_.frmBrowser.UnloadWindow();
}

bool SessionRoom::LogOut() {
    session_.LoggingOut = true;
    SaveSettings();
    if (!CloseTabs()) return false;
    TakeUserAway();
    return true;
}

bool SessionRoom::CloseTabs() {
    if (!HasOpenTabs()) return true;
    if (!Agrees("You currently have web tabs open, are you sure you want to log out?",
                "Log Out Brindlepost")) {
        return false;
    }
    // The system may have ended the program while the question was up.
    if (unloading_) return false;
    for (int i = 1; i < roles_.tabs.Count(); ++i)
        roles_.tabs.CloseTab(i);
    return true;
}

void SessionRoom::mnuLogout_Click() {
    if (!LogOut()) return;
    rooms_.login.ShowLogin();
    windows_.frmActivate.Hide();
    windows_.frmBrowser.Hide();
}

// An activation that comes while the close is under way must not take it back.
void SessionRoom::Form_Activate() {
    if (session_.mainclose && closing_) return;
    if (login_.NewLogin) {
        rooms_.settings.LoadSettings();
        login_.NewLogin = false;
    }
    roles_.highlights.NoMouseOvers();
    session_.mainclose = false;
    roles_.address_row.FocusAddress();
}

// Nothing of a user may be seen, heard or found by the next one. Dialogs that refuse to unload hide; one that
// still works ends its work, at whose end it would show the main window.
void SessionRoom::TakeUserAway() {
    // From here on closing the login window ends the program.
    session_.LoggedIn = false;
    session_.UserName.clear();
    for (controls::Form* window : {&windows_.frmAdd, &windows_.frmAbout, &windows_.frmAddMedia,
                                   &windows_.frmInfo, &windows_.frmSpeakerTest}) {
        window->UnloadWindow();
    }
    roles_.track_lists.EndTasks();
    roles_.player.EndUser();
    roles_.player.CloseMedia();
    windows_.frmVideo.Hide();
    roles_.refresh.SwitchOff();
    ports_.pages.EndUser();
    roles_.address_row.SetAddress("");
    roles_.address_row.SetTyped("");
    const bool multiple_users = login_.Allow_Multiple_Users;
    rooms_.new_user.PutAway();
    rooms_.hand_off.ForgetCommands();
    login_ = {};
    login_.Allow_Multiple_Users = multiple_users;
}

void SessionRoom::Form_Click() {
    if (roles_.address_row.IsAddressVisible()) roles_.address_row.FocusAddress();
}

void SessionRoom::Form_MouseMove() {
    roles_.highlights.NoMouseOvers();
}

}  // namespace session
