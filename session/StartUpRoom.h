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
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "session/HandOffRoom.h"
#include "session/Outgoing.h"
#include "session/SessionMenu.h"
#include "session/SessionState.h"
#include "session/SettingsRoom.h"
#include "store/DataSource.h"
#include "web/WebState.h"

namespace session {

/// The lists wait for the fifth tick. The user waits for nothing between the window's load and the login, so
/// the ticks are short.
inline constexpr int kLoadInterval = 10;

struct StartUpControls {
    controls::Timer tmrLoad{"tmrLoad", kLoadInterval};
};

/// What the start sets up besides its own group.
struct StartUpTargets {
    controls::Form& frmBrowser;
    controls::Form& frmActivate;
    controls::Form& frmLogin;
    SessionMenu& menu;
    const controls::Control& picVideo;
    store::DataSource& datSong;
    store::DataSource& datPlayList;
    store::DataSource& datFav;
    store::DataSource& datHistory;
};

/// What the start asks of others.
struct StartUpNeighbours {
    MediaLists& media_lists;
    HistoryLists& history;
    FavouritesStart& favourites;
    Tabs& tabs;
    AddressBar& address_bar;
    SessionPlayer& player;
    Skin& skin;
    OtherInstance& other_instance;
    StageLabel& stage;
    Splash& splash;
};

class StartUpRoom final {
public:
    /// `app_path` is the application folder in drive form, without a backslash at its end; `command` is the
    /// command line as one text.
    StartUpRoom(StartUpControls& controls, StartUpTargets targets, SessionState& session,
                const LoginState& login, web::WebState& web, SettingsRoom& settings, HandOffRoom& hand_off,
                StartUpNeighbours neighbours, store::Stores& stores, ports::Files& files,
                ports::EventLoop& events, std::string_view app_path, std::string_view command);

    /// The start-up timer runs: the lists are not loaded yet.
    bool IsLoading() const { return controls_.tmrLoad.Enabled(); }

private:
    void Form_Load();
    void tmrLoad_Tick();

    void SetStartValues();
    void BindStores();
    void Bind(store::DataSource& source, std::string_view file);
    void HandOver();
    void SetPlayerDefaults();
    void TakeArguments();
    void FillLists();
    void LoadSettingsOnce();
    void OpenInitialPages();
    void ShowSplash();
    bool IsOver() const;

    StartUpControls& controls_;
    StartUpTargets targets_;
    SessionState& session_;
    const LoginState& login_;
    web::WebState& web_;
    SettingsRoom& settings_;
    HandOffRoom& hand_off_;
    StartUpNeighbours neighbours_;
    store::Stores& stores_;
    ports::Files& files_;
    ports::EventLoop& events_;
    std::string app_path_;
    std::string command_;
    int load_ticks_ = 0;
    controls::EventClaims claims_;
};

}  // namespace session
