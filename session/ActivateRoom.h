// The splash: checks that the stores are there, brings up the login, counts up to the main window.
//
// Order: the first stage caption loads the window; loading shows it, checks the four files and shows the
// login. Nothing more happens until the login calls StartCounting; Timer1 then adds 1 a tick, and at the
// first tick at 100 or more the main window takes over. Each change of the stage caption adds 10, whichever
// room makes it.
//
// Timer2 and the connection panel are the hook for a check of the connection. Nothing starts Timer2 but a
// button of that panel, which only Timer2 shows, so a run never meets them.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "controls/Form.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "roles/Tabs.h"
#include "session/ActivateForm.h"
#include "session/SessionMenu.h"
#include "session/SessionState.h"

namespace session {

/// The main window as the splash hands over to it.
struct RevealedWindow {
    controls::Form& frmBrowser;
    SessionMenu& menu;
};

class ActivateRoom final {
public:
    /// `app_path` is the application folder in drive form, without a backslash at its end.
    ActivateRoom(ActivateForm& form, ConnectionState& connection, SessionState& session,
                 RevealedWindow main_window, controls::Form& frmLogin, roles::Tabs& tabs, ports::Files& files,
                 ports::Dialogs& dialogs, ports::EventLoop& events, std::string_view app_path);

    /// The text that says what is being loaded. Loads the window if it never was.
    void SetStage(std::string_view stage);
    /// Shows the splash and lets it count up to the main window.
    void StartCounting();

    /// Runs the rest of the start after a connection was found.
    void DoLoading();
    /// Resumes a connection: loads the probe page again and goes on counting.
    void ResumeConnection();

private:
    void Form_Load();
    void Form_QueryUnload(bool& cancel);
    void lblLoading_Change();
    void Timer1_Tick();
    void Timer2_Tick();
    void cmdRetry_Click();
    void cmdJustMusic_Click();
    void cmdClose_Click();

    bool AreStoresThere() const;
    bool IsOver() const { return session_.IsOver() || events_.IsEnding(); }
    void RefuseMissingStores();
    void LoadMediaLibraryStage();
    void RevealMainWindow();

    ActivateForm& form_;
    ConnectionState& connection_;
    SessionState& session_;
    RevealedWindow main_window_;
    controls::Form& frm_login_;
    roles::Tabs& tabs_;
    ports::Files& files_;
    ports::Dialogs& dialogs_;
    ports::EventLoop& events_;
    std::string app_path_;
    int InternetProbeTicks_ = 0;
    bool was_loaded_ = false;
    controls::EventClaims claims_;
};

}  // namespace session
