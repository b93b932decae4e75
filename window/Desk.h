// What the main window's rooms are built from and with: the windows, what is known, the outside world, and
// the rooms themselves as they come to stand. Only the main window and the links between the rooms see it
// whole.
#pragma once

#include <optional>
#include <string>

#include "library/Library.h"
#include "places/Places.h"
#include "player/Player.h"
#include "ports/Clock.h"
#include "ports/Database.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "ports/InstanceLock.h"
#include "ports/MediaControl.h"
#include "ports/Messenger.h"
#include "ports/NowPlaying.h"
#include "ports/ScreenSaver.h"
#include "ports/Windows.h"
#include "session/ActivateRoom.h"
#include "session/HandOffRoom.h"
#include "session/LoginRoom.h"
#include "session/MediaKeys.h"
#include "session/NewUserRoom.h"
#include "session/SessionRoom.h"
#include "session/SessionState.h"
#include "session/SettingsRoom.h"
#include "session/StartUpRoom.h"
#include "session/StoreTroubleRoom.h"
#include "store/Stores.h"
#include "web/Web.h"
#include "window/BrowserLayout.h"
#include "window/HoleRoom.h"
#include "window/MSN.h"
#include "window/RemoteRoom.h"
#include "window/SkinRoom.h"
#include "window/ViewRoom.h"
#include "window/WindowRoom.h"
#include "window/Windows.h"

namespace window {

/// The outside world.
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
};

/// What the rooms know together.
struct State {
    session::ConnectionState connection;
    session::LoginState login;
    session::SessionState session;
    session::SessionOptions options;
    web::WebState web;
    player::PlayerState player;
    /// The track list was refilled; the player copies it anew at the next double click.
    bool ListMaybeChanged = true;
};

/// The rooms, in the order in which they are built.
struct Rooms {
    std::optional<session::StoreTroubleRoom> trouble;
    std::optional<store::Stores> stores;
    std::optional<WindowRoom> window;
    std::optional<HoleRoom> hole;
    std::optional<SkinRoom> skin;
    std::optional<MSN> msn;
    std::optional<player::Player> player;
    std::optional<RemoteRoom> remote;
    std::optional<library::Library> library;
    std::optional<web::Web> web;
    std::optional<places::Places> places;
    std::optional<ViewRoom> view;
    std::optional<BrowserLayout> layout;
    std::optional<session::MediaKeys> keys;
    std::optional<session::ActivateRoom> activate;
    std::optional<session::SettingsRoom> settings;
    std::optional<session::LoginRoom> login;
    std::optional<session::NewUserRoom> new_user;
    std::optional<session::SessionRoom> session;
    std::optional<session::HandOffRoom> hand_off;
    std::optional<session::StartUpRoom> start_up;
};

struct Desk {
    Windows& windows;
    Ports ports;
    State state;
    Rooms rooms;
};

}  // namespace window
