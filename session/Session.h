// The session: start-up, login, settings, preferences, exit and log out. Builds its rooms in order and hands
// out what other subjects may ask of them.
#pragma once

#include <functional>
#include <string_view>

#include "ports/Clock.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "ports/InstanceLock.h"
#include "ports/PageEngine.h"
#include "roles/AutoRefresh.h"
#include "roles/CueList.h"
#include "roles/FrontPage.h"
#include "roles/MediaIntake.h"
#include "roles/Start.h"
#include "session/ActivateRoom.h"
#include "session/BackUpRoom.h"
#include "session/HandOffRoom.h"
#include "session/LastRunRoom.h"
#include "session/LoginRoom.h"
#include "session/MaintenanceRoom.h"
#include "session/MediaKeys.h"
#include "session/NewUserRoom.h"
#include "session/PreferencesRoom.h"
#include "session/SessionMenu.h"
#include "session/SessionRoom.h"
#include "session/SessionState.h"
#include "session/SettingsRoom.h"
#include "session/StartUpRoom.h"
#include "store/Stores.h"

namespace session {

/// The windows and groups of the session, and what it shows or reads of others'.
struct SessionControls {
    ActivateForm& activate;
    LoginForm& login;
    StartUpControls& start_up;
    HandOffControls& hand_off;
    HandOffMenu& hand_off_menu;
    SessionMenu& menu;
    PreferencesMenu& preferences_menu;
    InfoForm& info;
    SettingsControls settings;
    SessionWindows windows;
    StartUpSources sources;
    const controls::Control& picVideo;
};

/// Plain data that the whole program knows.
struct SessionData {
    ConnectionState& connection;
    LoginState& login;
    SessionState& session;
    SessionOptions& options;
    web::WebState& web;
    player::PlayerState& player;
    bool& ListMaybeChanged;
};

struct SessionRoles {
    roles::TrackLists& track_lists;
    roles::MediaIntake& media;
    roles::CueList& cue;
    roles::History& history;
    roles::Favourites& favourites;
    roles::Tabs& tabs;
    roles::AddressRow& address_row;
    roles::AutoRefresh& refresh;
    roles::PageOpener& opener;
    roles::FrontPage& page;
    roles::Transport& transport;
    roles::MessengerLine& messenger;
    roles::PlayerSetup& player;
    roles::Highlights& highlights;
};

struct SessionPorts {
    ports::Files& files;
    ports::Dialogs& dialogs;
    ports::EventLoop& events;
    ports::Clock& clock;
    ports::InstanceLock& instance;
    ports::PageEngine& pages;
};

class Session final : public roles::Start {
public:
    /// `command` is the command line as one text; `bring_to_front` brings the program's windows to the user.
    Session(SessionControls controls, SessionData data, SessionRoles roles, SessionPorts ports,
            SessionStores stores, std::string_view command, std::function<void()> bring_to_front,
            StartFacts facts = {});
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    roles::MediaKeys& Keys() { return keys_; }
    /// Ends the program as its menu does.
    void Exit() { session_.Exit(); }
    /// The system wants the program to end: as an exit, without the question.
    void EndSession() { session_.EndSession(); }
    /// Plays or cues media files, given by native paths, as a later start with them would.
    void OpenFiles(const std::vector<std::string>& native_paths) { hand_off_.OpenFiles(native_paths); }

    // roles::Start
    bool IsLoading() const override { return start_up_.IsLoading(); }
    void SetStage(std::string_view stage) override { splash_.SetStage(stage); }
    bool IsOver() const override { return start_up_.IsOver(); }

private:
    MediaKeys keys_;
    LastRunRoom last_run_;
    ActivateRoom splash_;
    SettingsRoom settings_;
    LoginRoom login_;
    NewUserRoom new_user_;
    HandOffRoom hand_off_;
    SessionRoom session_;
    MaintenanceRoom maintenance_;
    BackUpRoom back_up_;
    PreferencesRoom preferences_;
    StartUpRoom start_up_;
};

}  // namespace session
