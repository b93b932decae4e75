// The start of the main window: from its load to the splash.
//
// Order: loading sets the start values, binds the stores, hands the command line over to another run and ends
// there if one is running, takes it itself otherwise, and starts tmrLoad. On its fifth tick the lists are
// filled, which brings the splash and the login up; the settings and the first pages follow. Nothing before
// the fifth tick reads a store, but for the files of a command line, and a second run reads none at all.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "controls/Form.h"
#include "controls/Timer.h"
#include "player/PlayerState.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "ports/InstanceLock.h"
#include "roles/AddressRow.h"
#include "roles/Favourites.h"
#include "roles/Highlights.h"
#include "roles/History.h"
#include "roles/PageOpener.h"
#include "roles/PlayerSetup.h"
#include "roles/Tabs.h"
#include "roles/TrackLists.h"
#include "session/ActivateRoom.h"
#include "session/HandOffRoom.h"
#include "session/SessionMenu.h"
#include "session/SessionState.h"
#include "session/SettingsRoom.h"
#include "store/DataSource.h"
#include "web/WebState.h"

namespace session {

/// The lists wait for the fifth tick. The user waits for nothing between the window's load and the login, so
/// the ticks are short.
inline constexpr int kLoadInterval = 1;

struct StartUpControls {
    controls::Timer tmrLoad{"tmrLoad", kLoadInterval};
};

/// The record sets that the start binds to their stores.
struct StartUpSources {
    store::DataSource& datSong;
    store::DataSource& datPlayList;
    store::DataSource& datFav;
    store::DataSource& datHistory;
};

/// What the start sets up besides its own group.
struct StartUpTargets {
    controls::Form& frmBrowser;
    controls::Form& frmActivate;
    controls::Form& frmLogin;
    SessionMenu& menu;
    const controls::Control& picVideo;
    StartUpSources sources;
};

/// What the start asks of other subjects.
struct StartUpRoles {
    roles::TrackLists& track_lists;
    roles::History& history;
    roles::Favourites& favourites;
    roles::Tabs& tabs;
    roles::AddressRow& address_row;
    roles::PageOpener& opener;
    roles::PlayerSetup& player;
    roles::Highlights& highlights;
};

/// The rooms of the session that the start uses.
struct StartUpRooms {
    SettingsRoom& settings;
    ActivateRoom& splash;
    HandOffRoom& hand_off;
};

struct StartUpPorts {
    ports::Files& files;
    ports::EventLoop& events;
    ports::InstanceLock& instance;
    ports::Dialogs& dialogs;
};

class StartUpRoom final {
public:
    /// `app_path` is the application folder in drive form, without a backslash at its end; `command` is the
    /// command line as one text.
    StartUpRoom(StartUpControls& controls, StartUpTargets targets, SessionState& session,
                const LoginState& login, web::WebState& web, player::LevelState& levels, StartUpRooms rooms,
                StartUpRoles roles, StartUpPorts ports, store::Stores& stores, std::string_view app_path,
                std::string_view command);

    /// The start-up timer runs: the lists are not loaded yet.
    bool IsLoading() const { return controls_.tmrLoad.Enabled(); }
    /// The start was refused, or the program ends, at a yield perhaps: nothing more is loaded.
    bool IsOver() const { return session_.IsOver() || ports_.events.IsEnding(); }

private:
    void Form_Load();
    void tmrLoad_Tick();

    void SetStartValues();
    void BindStores();
    void Bind(store::DataSource& source, std::string_view file);
    void HandOver(ports::Instance instance);
    void SetPlayerDefaults();
    void TakeArguments();
    void FillLists();
    void LoadSettingsOnce();
    void OpenInitialPages();
    void ShowSplash();

    StartUpControls& controls_;
    StartUpTargets targets_;
    SessionState& session_;
    const LoginState& login_;
    web::WebState& web_;
    player::LevelState& levels_;
    StartUpRooms rooms_;
    StartUpRoles roles_;
    StartUpPorts ports_;
    store::Stores& stores_;
    std::string app_path_;
    std::string command_;
    int load_ticks_ = 0;
    controls::EventClaims claims_;
};

}  // namespace session
