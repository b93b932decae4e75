#include "window/MainWindow.h"

#include <utility>

namespace window {
namespace {

BrightTwins TwinsOf(BrowserForm& window) {
    auto& transport = window.player.transport;
    auto& queue = window.player.queue;
    auto& playlists = window.library.playlists;
    auto& navigation = window.web.navigation;
    auto& favourites = window.favourites;
    return {&transport.imgStopOver,     &transport.imgPauseOver,          &queue.imgCueSongOver,
            &playlists.imgAddSongOver,  &playlists.imgRemoveSongOver,     &queue.imgUnCueOver,
            &transport.imgNoRepeatOver, &transport.imgRepeatOver,         &playlists.imgCancelOver,
            &playlists.imgOkOver,       &playlists.imgDeletePlayListOver, &navigation.imgForwardOver,
            &navigation.imgBackOver,    &favourites.imgdeleteover,        &favourites.imgAddOver,
            &favourites.imgViewOver};
}

session::SettingsControls SettingsControlsOf(BrowserForm& window, store::DataSource& datHistory) {
    return {.mnuRepeat = window.menus.mnuRepeat,
            .mnuShuffle = window.menus.mnuShuffle,
            .mnuSearchBroad = window.menus.mnuSearchBroad,
            .mnuSearchTitle = window.menus.mnuSearchTitle,
            .mnuSearchArtist = window.menus.mnuSearchArtist,
            .mnuSearchFilename = window.menus.mnuSearchFilename,
            .txtRefresh = window.web.refresh.txtRefresh,
            .cmbType = window.web.address.cmbType,
            .datHistory = datHistory,
            .datFav = window.favourites.datFav};
}

}  // namespace

MainWindow::MainWindow(Windows& windows, Ports ports, std::string_view command, std::function<void()> ended)
    : desk_{windows, ports, {}, {}},
      ended_(std::move(ended)),
      player_links_(desk_),
      library_links_(desk_),
      web_links_(desk_),
      core_links_(desk_) {
    BuildGround();
    BuildPlayer();
    BuildLibrary();
    BuildWeb();
    BuildPlaces();
    BuildSession(command);
    claims_.Claim(windows.frmBrowser.Unload, [this](bool&) { frmBrowser_Unload(); });
}

void MainWindow::Start() {
    desk_.windows.frmBrowser.LoadWindow();
}

void MainWindow::BuildGround() {
    BrowserForm& window = desk_.windows.frmBrowser;
    Rooms& rooms = desk_.rooms;
    rooms.trouble.emplace(desk_.windows.trouble, desk_.state.session, desk_.ports.dialogs);
    rooms.stores.emplace(desk_.ports.database, desk_.ports.events, *rooms.trouble);
    rooms.window.emplace(window, window.chrome.fraMusicTab);
    rooms.hole.emplace(window, window.player.video.picVideo, desk_.ports.window_shape, desk_.ports.dialogs);
    rooms.skin.emplace(window.chrome, TwinsOf(window), [this] { desk_.rooms.player->SettlePictures(); });
    rooms.layout.emplace(window, desk_.state.web, player_links_);
    rooms.view.emplace(window, window.menus, window.library.lists,
                       [this] { desk_.rooms.layout->Form_Resize(); });
}

void MainWindow::BuildPlayer() {
    BrowserForm& window = desk_.windows.frmBrowser;
    auto& lists = window.library.lists;
    desk_.rooms.msn.emplace(desk_.ports.messenger, desk_.state.options);
    desk_.windows.player_songs.SetDatabaseName(*desk_.rooms.stores, StorePath(store::kMediaStore));
    desk_.rooms.player.emplace(
        player::PlayerWindows{.controls = window.player,
                              .menu = window.menus,
                              .video = desk_.windows.frmVideo,
                              .speaker_test = desk_.windows.frmSpeakerTest,
                              .tracks = {.lstTracks = lists.lstTracks,
                                         .lstMaybe = lists.lstMaybe,
                                         .ListMaybeChanged = desk_.state.ListMaybeChanged},
                              .lists = {.lstArtists = lists.lstArtists,
                                        .lstPlayLists = lists.lstPlayLists,
                                        .lstTracks = lists.lstTracks}},
        desk_.state.player,
        player::PlayerRoles{.window = web_links_,
                            .layout = web_links_,
                            .hole = player_links_,
                            .highlights = web_links_,
                            .keys = web_links_,
                            .address = player_links_,
                            .history = web_links_,
                            .start = web_links_,
                            .favourites = player_links_,
                            .messenger = player_links_},
        player::PlayerPorts{.media = desk_.ports.media,
                            .windows = desk_.ports.windows,
                            .files = desk_.ports.files,
                            .songs = desk_.windows.player_songs,
                            .dialogs = desk_.ports.dialogs,
                            .loop = desk_.ports.events,
                            .chance = desk_.ports.chance});
    BuildRemote();
}

void MainWindow::BuildRemote() {
    Rooms& rooms = desk_.rooms;
    rooms.remote.emplace(
        RemoteRoles{.transport = *rooms.player, .playing = rooms.player->Playing()},
        RemoteActions{.raise = [this] { desk_.windows.BringToFront(); },
                      .quit = [this] { desk_.windows.frmBrowser.menus.mnuExit.Click.Raise(); }},
        RemotePorts{.board = desk_.ports.now_playing,
                    .screen_saver = desk_.ports.screen_saver,
                    .events = desk_.ports.events,
                    .files = desk_.ports.files});
}

void MainWindow::BuildLibrary() {
    BrowserForm& window = desk_.windows.frmBrowser;
    const Ports& ports = desk_.ports;
    desk_.rooms.library.emplace(
        library::LibraryWindows{.controls = window.library,
                                .menu = window.menus,
                                .add_media = desk_.windows.add_media,
                                .lstOpenWith = window.hand_off.lstOpenWith,
                                .datHistory = desk_.windows.history.datHistory},
        library::LibraryState{.ListMaybeChanged = desk_.state.ListMaybeChanged,
                              .Include_Sub_Folders = desk_.state.options.Include_Sub_Folders,
                              .last_clean_up_age = desk_.state.options.DaysStampAge},
        *desk_.rooms.stores,
        library::LibraryRoles{.start = library_links_,
                              .favourites = library_links_,
                              .history = library_links_,
                              .highlights = library_links_,
                              .window = *desk_.rooms.window},
        library::LibraryPorts{
            .files = ports.files, .dialogs = ports.dialogs, .loop = ports.events, .clock = ports.clock});
}

std::string MainWindow::StorePath(std::string_view file) const {
    return desk_.ports.files.ApplicationFolder().append(file);
}

void MainWindow::BuildPlaces() {
    BrowserForm& window = desk_.windows.frmBrowser;
    library::Library& library = *desk_.rooms.library;
    web::Web& web = *desk_.rooms.web;
    desk_.rooms.places.emplace(
        places::PlacesWindows{.favourites = window.favourites,
                              .history = desk_.windows.history,
                              .menu = window.menus,
                              .add = desk_.windows.add,
                              .datSong = window.library.sources.datSong},
        places::PlacesState{.Save_History = desk_.state.options.Save_History,
                            .mainclose = desk_.state.session.mainclose},
        places::PlacesRoles{.address = web.Address(),
                            .opener = web.Opener(),
                            .page = web.Front(),
                            .lists = library.Lists(),
                            .played = library.View(),
                            .layout = web_links_,
                            .video = desk_.rooms.player->Video(),
                            .highlights = web_links_,
                            .keys = web_links_,
                            .window = *desk_.rooms.window},
        places::PlacesPorts{.dialogs = desk_.ports.dialogs, .loop = desk_.ports.events});
}

void MainWindow::BuildWeb() {
    BrowserForm& window = desk_.windows.frmBrowser;
    State& state = desk_.state;
    desk_.rooms.web.emplace(
        window.web, window.menus, state.web,
        web::SessionFacts{.Internet_Connection = state.connection.Internet_Connection,
                          .Save_History = state.options.Save_History,
                          .Allow_Multiple_Users = state.login.Allow_Multiple_Users,
                          .Auto_Login = state.options.Auto_Login,
                          .StartedWithArguments = state.session.StartedWithArguments,
                          .credentials = state.login},
        web::WebRoles{.window = web_links_,
                      .layout = web_links_,
                      .highlights = web_links_,
                      .keys = web_links_,
                      .transport = *desk_.rooms.player,
                      .now_playing = desk_.rooms.player->Playing(),
                      .messenger = desk_.rooms.player->Line(),
                      .track_lists = web_links_,
                      .media = web_links_,
                      .cue = desk_.rooms.player->Cue(),
                      .history = web_links_,
                      .start = web_links_},
        web::WebPorts{
            .files = desk_.ports.files, .events = desk_.ports.events, .dialogs = desk_.ports.dialogs});
}

void MainWindow::BuildSession(std::string_view command) {
    Windows& windows = desk_.windows;
    BrowserForm& window = windows.frmBrowser;
    State& state = desk_.state;
    Rooms& rooms = desk_.rooms;
    const Ports& ports = desk_.ports;
    const std::string app_path = ports.files.ApplicationFolder();
    rooms.keys.emplace(core_links_, core_links_);
    rooms.activate.emplace(windows.activate, state.connection, state.session,
                           session::RevealedWindow{window, window.menus}, windows.login.frmLogin, core_links_,
                           ports.files, ports.dialogs, ports.events, app_path);
    rooms.settings.emplace(SettingsControlsOf(window, windows.history.datHistory), windows.info.options,
                           state.options, state.session, state.connection, state.web, *rooms.activate,
                           core_links_, core_links_, core_links_, ports.clock, ports.events);
    rooms.login.emplace(windows.login, state.login, state.session, window, *rooms.activate, core_links_,
                        *rooms.stores, ports.files, ports.dialogs, ports.events, app_path);
    rooms.new_user.emplace(windows.login, *rooms.login, state.session, window, windows.info.frmInfo,
                           ports.dialogs);
    rooms.session.emplace(
        session::SessionWindows{window, windows.activate.frmActivate, windows.login.frmLogin,
                                windows.add.frmAdd, windows.about.frmAbout, windows.add_media.frmAddMedia,
                                windows.info.frmInfo, windows.frmSpeakerTest, windows.frmVideo},
        window.menus, state.session, state.login, *rooms.settings, *rooms.keys,
        session::SessionNeighbours{core_links_, core_links_, core_links_, core_links_, *rooms.login,
                                   core_links_},
        ports.dialogs, ports.events);
    rooms.hand_off.emplace(window.hand_off, ports.instance, [this] { desk_.windows.BringToFront(); });
    rooms.start_up.emplace(
        windows.start_up,
        session::StartUpTargets{window, windows.activate.frmActivate, windows.login.frmLogin, window.menus,
                                window.player.video.picVideo, window.library.sources.datSong,
                                window.library.sources.datPlayList, window.favourites.datFav,
                                windows.history.datHistory},
        state.session, state.login, state.web, *rooms.settings, *rooms.hand_off,
        session::StartUpNeighbours{core_links_, core_links_, core_links_, core_links_, core_links_,
                                   core_links_, core_links_, core_links_, *rooms.activate, *rooms.activate},
        *rooms.stores, ports.files, ports.events, app_path, command);
}

void MainWindow::End() {
    desk_.rooms.session->EndSession();
}

void MainWindow::frmBrowser_Unload() {
    desk_.rooms.stores->Close();
    ended_();
}

}  // namespace window
