// The end of a session: exit and log out; and the small events of the main window.
//
// Exit: the main window is asked to unload, asks the user if pages are open, stops the player, saves, and
// unloads every window; its own unload is the last. What cannot be saved keeps the windows up; at the next
// try the user may end without it. An end by the system asks nothing and saves what it can. Log out saves
// first and asks then, so a user who stays has saved already; then it takes the user's windows, pages and
// song away. A login of another user does the same before it.
#pragma once

#include <string_view>

#include "controls/Event.h"
#include "controls/Form.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/PageEngine.h"
#include "roles/AddressRow.h"
#include "roles/AutoRefresh.h"
#include "roles/Highlights.h"
#include "roles/MessengerLine.h"
#include "roles/PlayerSetup.h"
#include "roles/Tabs.h"
#include "roles/TrackLists.h"
#include "roles/Transport.h"
#include "session/HandOffRoom.h"
#include "session/LoginRoom.h"
#include "session/MediaKeys.h"
#include "session/NewUserRoom.h"
#include "session/SessionMenu.h"
#include "session/SessionState.h"
#include "session/SettingsRoom.h"
#include "session/StoreTroubleRoom.h"
#include "store/Stores.h"

namespace session {

/// Every window of the program.
struct SessionWindows {
    controls::Form& frmBrowser;
    controls::Form& frmActivate;
    controls::Form& frmLogin;
    controls::Form& frmAdd;
    controls::Form& frmAbout;
    controls::Form& frmAddMedia;
    controls::Form& frmInfo;
    controls::Form& frmSpeakerTest;
    controls::Form& frmVideo;
    bool& unloadme;  ///< the preferences may unload
};

/// What the end of a session asks of other subjects.
struct SessionEndRoles {
    roles::TrackLists& track_lists;
    roles::Tabs& tabs;
    roles::AddressRow& address_row;
    roles::AutoRefresh& refresh;
    roles::Transport& transport;
    roles::MessengerLine& messenger;
    roles::PlayerSetup& player;
    roles::Highlights& highlights;
};

/// The rooms of the session that its end reaches.
struct SessionEndRooms {
    SettingsRoom& settings;
    LoginRoom& login;
    NewUserRoom& new_user;
    HandOffRoom& hand_off;
    MediaKeys& keys;
};

struct SessionEndPorts {
    ports::Dialogs& dialogs;
    ports::EventLoop& events;
    ports::PageEngine& pages;
};

class SessionRoom final {
public:
    SessionRoom(SessionWindows windows, SessionMenu& menu, SessionState& session, LoginState& login,
                SessionEndRooms rooms, SessionEndRoles roles, SessionStores stores, SessionEndPorts ports);

    /// Stores the settings and, unless the user only logs out, writes every change to its file and unloads
    /// every window. False when that failed, the user knows, and the windows stay.
    bool SaveSettings();
    void Form_QueryUnload(bool& cancel);
    /// The system wants the program to end: as an exit, without the question.
    void EndSession();
    /// Ends the program as its menu does.
    void Exit() { mnuExit_Click(); }

private:
    void mnuExit_Click();
    void mnuLogout_Click();
    void Form_Activate();
    void Form_Click();
    void Form_MouseMove();

    /// Stores the settings, asks about open tabs, and takes the user away. False when the user stays, or the
    /// program ends.
    bool LogOut();
    bool CloseTabs();
    bool HasOpenTabs() const;
    bool Agrees(std::string_view text, std::string_view title);
    void BeginToLeave();
    bool Leave();
    bool MayEndUnsaved();
    void UnloadWindows();
    void TakeUserAway();

    SessionWindows windows_;
    SessionState& session_;
    LoginState& login_;
    SessionEndRooms rooms_;
    SessionEndRoles roles_;
    SessionStores stores_;
    SessionEndPorts ports_;
    bool closing_ = false;      // the question of the close is up, or the close is under way
    bool unloading_ = false;    // the windows go
    bool save_failed_ = false;  // the user knows that the next exit may end without saving
    controls::EventClaims claims_;
};

}  // namespace session
