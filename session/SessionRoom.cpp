#include "session/SessionRoom.h"

namespace session {

SessionRoom::SessionRoom(SessionWindows windows, SessionMenu& menu, SessionState& session, LoginState& login,
                         SettingsRoom& settings, LoginRoom& login_room, MediaKeys& keys,
                         SessionEndRoles roles, ports::Dialogs& dialogs, ports::EventLoop& events)
    : windows_(windows),
      session_(session),
      login_(login),
      settings_(settings),
      login_room_(login_room),
      keys_(keys),
      roles_(roles),
      dialogs_(dialogs),
      events_(events) {
    claims_.Claim(windows_.frmBrowser.QueryUnload, [this](bool& cancel) { Form_QueryUnload(cancel); });
    claims_.Claim(windows_.frmBrowser.Activate, [this] { Form_Activate(); });
    claims_.Claim(windows_.frmBrowser.Click, [this] { Form_Click(); });
    claims_.Claim(windows_.frmBrowser.MouseMove, [this] { Form_MouseMove(); });
    claims_.Claim(windows_.frmBrowser.KeyDown,
                  [this](int key_code, int shift) { keys_.KeyDown(key_code, shift); });
    claims_.Claim(menu.mnuExit.Click, [this] { mnuExit_Click(); });
    claims_.Claim(menu.mnuLogout.Click, [this] { mnuLogout_Click(); });
}

void SessionRoom::mnuExit_Click() {
    session_.LoggingOut = false;
    windows_.frmBrowser.UnloadWindow();
}

// Tabs opened before the login are not asked about.
void SessionRoom::Form_QueryUnload(bool& cancel) {
    if (closing_ || session_.NothingBegun) return;
    closing_ = true;
    session_.LoggingOut = false;
    if (session_.LoggedIn && HasOpenTabs() &&
        !Agrees("You currently have web tabs open, are you sure you want to exit?", "Exit Brindlepost")) {
        closing_ = false;
        cancel = true;
        return;
    }
    Leave();
}

void SessionRoom::EndSession() {
    if (session_.mainclose) return;
    if (!session_.NothingBegun) {
        closing_ = true;
        session_.LoggingOut = false;
        Leave();
    }
    // A store that cannot be written must not block the exit.
    if (windows_.frmBrowser.IsLoaded()) windows_.frmBrowser.UnloadWindow();
}

void SessionRoom::Leave() {
    session_.mainclose = true;
    roles_.transport.Stop();
    roles_.messenger.SendNothingPlaying();
    events_.Yield();
    SaveSettings();
}

bool SessionRoom::HasOpenTabs() const {
    for (int i = 1; i < roles_.tabs.Count(); ++i) {
        if (roles_.tabs.IsTabVisible(i)) return true;
    }
    return false;
}

bool SessionRoom::Agrees(std::string_view text, std::string_view title) {
    return dialogs_.MsgBox(text, ports::BoxButtons::YesNo, title) == ports::BoxAnswer::Yes;
}

void SessionRoom::SaveSettings() {
    if (!settings_.StoreSettings()) return;
    if (!session_.LoggingOut) UnloadWindows();
}

void SessionRoom::UnloadWindows() {
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

void SessionRoom::mnuLogout_Click() {
    session_.LoggingOut = true;
    SaveSettings();
    if (HasOpenTabs()) {
        if (!Agrees("You currently have web tabs open, are you sure you want to log out?",
                    "Log Out Brindlepost")) {
            return;
        }
        for (int i = 1; i < roles_.tabs.Count(); ++i)
            roles_.tabs.CloseTab(i);
    }
    // What it still adds for the person who leaves ends here; at its end it would show the main window.
    windows_.frmAddMedia.UnloadWindow();
    // From here on closing the login window ends the program.
    session_.LoggedIn = false;
    login_room_.ShowLogin();
    windows_.frmActivate.Hide();
    windows_.frmBrowser.Hide();
}

void SessionRoom::Form_Activate() {
    if (login_.NewLogin) {
        settings_.LoadSettings();
        login_.NewLogin = false;
    }
    roles_.highlights.NoMouseOvers();
    session_.mainclose = false;
    roles_.address_row.FocusAddress();
}

void SessionRoom::Form_Click() {
    if (roles_.address_row.IsAddressVisible()) roles_.address_row.FocusAddress();
}

void SessionRoom::Form_MouseMove() {
    roles_.highlights.NoMouseOvers();
}

}  // namespace session
