// What the main window's rooms are built from and with: the windows, what is known, the outside world, and
// the rooms themselves as they come to stand. Only the main window and the links between the rooms see it
// whole.
#pragma once

#include <optional>
#include <string>

#include "core/ActivateRoom.h"
#include "core/LoginRoom.h"
#include "core/MediaKeys.h"
#include "core/NewUserRoom.h"
#include "core/SessionRoom.h"
#include "core/SessionState.h"
#include "core/SettingsRoom.h"
#include "core/StartUpRoom.h"
#include "core/StoreTroubleRoom.h"
#include "desktop/BrowserLayout.h"
#include "desktop/HoleRoom.h"
#include "desktop/MSN.h"
#include "desktop/RemoteRoom.h"
#include "desktop/SkinRoom.h"
#include "desktop/ViewRoom.h"
#include "desktop/Windows.h"
#include "library/AddMediaRoom.h"
#include "library/CleanUpRoom.h"
#include "library/LibraryListsRoom.h"
#include "library/OpenedMediaRoom.h"
#include "library/PlayListRoom.h"
#include "library/SearchRoom.h"
#include "library/TrackMatchRoom.h"
#include "player/MediaWatch.h"
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
#include "store/Stores.h"
#include "web/WebRooms.h"
#include "webdata/AddFavouriteRoom.h"
#include "webdata/FavouritesRoom.h"
#include "webdata/HistoryRoom.h"

namespace desktop {

/// The outside world.
struct Ports {
    ports::Database& database;
    ports::Files& files;
    ports::MediaControl& media;
    ports::WindowServices& windows;
    ports::Regions& regions;
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
    core::ConnectionState connection;
    core::LoginState login;
    core::SessionState session;
    core::SessionOptions options;
    web::WebState web;
    player::PlayerState player;
    /// The track list was refilled; the player copies it anew at the next double click.
    bool ListMaybeChanged = true;
};

/// The rooms, in the order in which they are built.
struct Rooms {
    std::optional<core::StoreTroubleRoom> trouble;
    std::optional<store::Stores> stores;
    std::optional<HoleRoom> hole;
    std::optional<SkinRoom> skin;
    std::optional<player::MediaWatch> media_watch;
    std::optional<player::MciLayer> mci;
    std::optional<MSN> msn;
    std::optional<player::Player> player;
    std::optional<RemoteRoom> remote;
    std::optional<library::LibraryListsRoom> lists;
    std::optional<library::PlayListRoom> playlists;
    std::optional<library::SearchRoom> search;
    std::optional<library::CleanUpRoom> clean_up;
    std::optional<library::TrackMatchRoom> track_match;
    std::optional<library::AddMediaRoom> add_media;
    std::optional<library::OpenedMediaRoom> opened;
    std::optional<webdata::HistoryRoom> history;
    std::optional<webdata::AddFavouriteRoom> add_favourite;
    std::optional<webdata::FavouritesRoom> favourites;
    std::optional<web::WebRooms> web;
    std::optional<ViewRoom> view;
    std::optional<BrowserLayout> layout;
    std::optional<core::MediaKeys> keys;
    std::optional<core::ActivateRoom> activate;
    std::optional<core::SettingsRoom> settings;
    std::optional<core::LoginRoom> login;
    std::optional<core::NewUserRoom> new_user;
    std::optional<core::SessionRoom> session;
    std::optional<core::StartUpRoom> start_up;
};

struct Desk {
    Windows& windows;
    Ports ports;
    State state;
    Rooms rooms;
};

}  // namespace desktop
