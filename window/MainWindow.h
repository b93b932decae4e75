// Builds the subjects of the program around the main window, in order, and connects them.
//
// Each subject is given the roles of those that are built before it, and relays for the others.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/Event.h"
#include "library/Library.h"
#include "places/Places.h"
#include "player/Player.h"
#include "ports/Clock.h"
#include "ports/Database.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "ports/InstanceLock.h"
#include "ports/KeptTexts.h"
#include "ports/MediaControl.h"
#include "ports/Messenger.h"
#include "ports/NowPlaying.h"
#include "ports/PageEngine.h"
#include "ports/Programs.h"
#include "ports/Registry.h"
#include "ports/ScreenSaver.h"
#include "ports/Windows.h"
#include "session/Session.h"
#include "session/StoreTroubleRoom.h"
#include "store/Stores.h"
#include "web/Web.h"
#include "window/AboutRoom.h"
#include "window/BrowserLayout.h"
#include "window/FileTypeRoom.h"
#include "window/HoleRoom.h"
#include "window/MSN.h"
#include "window/OptionRoom.h"
#include "window/RemoteRoom.h"
#include "window/SkinRoom.h"
#include "window/Switchboard.h"
#include "window/UserThings.h"
#include "window/ViewRoom.h"
#include "window/WindowRoom.h"
#include "window/Windows.h"

namespace window {

/// The outside world, one port each.
struct Ports {
    ports::Database& database;
    ports::Files& files;
    ports::MediaControl& media;
    ports::WindowServices& windows;
    ports::WindowShape& window_shape;
    ports::Dialogs& dialogs;
    ports::EventLoop& events;
    ports::Clock& clock;
    ports::Chance& chance;
    ports::InstanceLock& instance;
    ports::Messenger& messenger;
    ports::NowPlayingBoard& now_playing;
    ports::ScreenSaver& screen_saver;
    ports::PageEngine& pages;
    ports::Registry& registry;
    ports::Programs& programs;
    ports::KeptTexts& kept;
    /// Where the program's file lies, as a path with a drive.
    std::string_view program_folder;
    session::StartFacts start{};
};

/// Plain data that several subjects know.
struct State {
    session::ConnectionState connection;
    session::LoginState login;
    session::SessionState session;
    session::SessionOptions options;
    web::WebState web;
    player::PlayerState player;
    /// The track list was refilled; the player copies it again at the next double click.
    bool ListMaybeChanged = true;
};

class MainWindow final {
public:
    /// `command` is the command line as one text; `ended` is called once the main window is unloaded and the
    /// stores are closed. Windows and ports must outlive the main window.
    MainWindow(Windows& windows, Ports ports, std::string_view command, std::function<void()> ended);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// "1.1.43"
    static std::string Version();
    /// Loads the main window, which starts everything else.
    void Start();
    /// Ends the program as an exit does, asking nothing.
    void End();

    // What a page's own area offers; files are native paths.
    /// Takes a media file into the library. Nothing happens while nobody is logged in.
    void AddToLibrary(const std::string& file);
    void Play(const std::string& file) { session_.OpenFiles({file}); }
    void AddPageToFavourites() { places_.Favourites().AddPageInFront(); }

    /// For tests and the program's outer shell.
    const State& Known() const { return state_; }
    /// Favourites from and for other browsers; the settings page of the pages asks for it.
    places::FavouritesExchange& Favourites() { return places_.Exchange(); }

private:
    player::PlayerRoles RolesOfPlayer();
    player::Player BuildPlayer();
    LayoutRoles RolesOfLayout();
    library::Library BuildLibrary();
    places::Places BuildPlaces();
    web::Web BuildWeb();
    session::SessionControls ControlsOfSession();
    session::SessionRoles RolesOfSession();
    session::Session BuildSession(std::string_view command);
    RemoteActions ActionsOfRemote();
    RemotePorts PortsOfRemote() const;
    AboutPorts PortsOfAbout() const;
    void Connect();
    void frmBrowser_Unload();

    Windows& windows_;
    Ports ports_;
    std::function<void()> ended_;
    State state_;
    Switchboard relays_;
    session::StoreTroubleRoom trouble_;
    store::Stores stores_;
    WindowRoom window_;
    MSN msn_;
    player::Player player_;
    UserThings users_;
    HoleRoom hole_;
    SkinRoom skin_;
    FileTypeRoom file_type_;
    BrowserLayout layout_;
    ViewRoom view_;
    library::Library library_;
    places::Places places_;
    web::Web web_;
    session::Session session_;
    AboutRoom about_;
    RemoteRoom remote_;
    OptionRoom options_;
    controls::EventClaims claims_;
};

}  // namespace window
