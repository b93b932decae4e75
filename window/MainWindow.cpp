#include "window/MainWindow.h"

#include <utility>

#include "base/Number.h"
#include "window/Version.h"

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
    : windows_(windows),
      ports_(ports),
      ended_(std::move(ended)),
      trouble_(windows.trouble, state_.session, ports.dialogs),
      stores_(ports.database, ports.events, trouble_),
      window_(windows.frmBrowser, windows.frmBrowser.chrome.fraMusicTab),
      msn_(ports.messenger, state_.options),
      player_(BuildPlayer()),
      users_(ports.pages, player_.Place()),
      hole_(windows.frmBrowser, windows.frmBrowser.player.video.picVideo, player_.Video(), ports.window_shape,
            ports.dialogs),
      skin_(windows.frmBrowser.chrome, TwinsOf(windows.frmBrowser), [this] { player_.SettlePictures(); }),
      file_type_(ports.registry, ports.files, std::string(ports.program_folder)),
      layout_(windows.frmBrowser, state_.web, state_.player.PlayerStopped, RolesOfLayout()),
      view_(windows.frmBrowser, windows.frmBrowser.menus, windows.frmBrowser.library.lists,
            [this] { layout_.Form_Resize(); }),
      library_(BuildLibrary()),
      places_(BuildPlaces()),
      web_(BuildWeb()),
      session_(BuildSession(command)),
      about_(windows.about, windows.frmBrowser.menus, web_.Maker(), PortsOfAbout()),
      remote_({.transport = player_,
               .playing = player_.Playing(),
               .order = player_.Order(),
               .LoggedIn = state_.session.LoggedIn},
              ActionsOfRemote(), PortsOfRemote()),
      options_({.transport = player_, .playing = player_.Playing(), .LoggedIn = state_.session.LoggedIn},
               ports.instance) {
    Connect();
    claims_.Claim(windows.frmBrowser.KeyPreview, [this](int key_code, int shift, bool& taken) {
        taken = web_.Keys().Take(key_code, shift);
    });
    claims_.Claim(windows.frmBrowser.Unload, [this](bool&) { frmBrowser_Unload(); });
}

void MainWindow::Connect() {
    relays_.address_row.Connect(web_.Address());
    relays_.favourites.Connect(places_.Favourites());
    relays_.front_page.Connect(web_.Front());
    relays_.highlights.Connect(skin_);
    relays_.history.Connect(places_.History());
    relays_.hole.Connect(hole_);
    relays_.layout.Connect(layout_);
    relays_.media_keys.Connect(session_.Keys());
    relays_.page_opener.Connect(web_.Opener());
    relays_.start.Connect(session_);
}

std::string MainWindow::Version() {
    std::string text = base::ToText(kMajorVersion);
    for (const int part : {kMinorVersion, kRevision})
        text.append(".").append(base::ToText(part));
    return text;
}

void MainWindow::Start() {
    windows_.frmBrowser.LoadWindow();
}

void MainWindow::AddToLibrary(const std::string& file) {
    if (!state_.session.LoggedIn || !state_.session.FirstLoadDone) return;
    library_.Intake().AddMediaFromCommand(ports_.files.FromNative(file));
    library_.Lists().Command1();
}

void MainWindow::End() {
    session_.EndSession();
}

player::PlayerRoles MainWindow::RolesOfPlayer() {
    return {.window = window_,
            .layout = relays_.layout,
            .hole = relays_.hole,
            .highlights = relays_.highlights,
            .keys = relays_.media_keys,
            .address = relays_.address_row,
            .history = relays_.history,
            .start = relays_.start,
            .favourites = relays_.favourites,
            .messenger = msn_};
}

player::Player MainWindow::BuildPlayer() {
    BrowserForm& window = windows_.frmBrowser;
    auto& lists = window.library.lists;
    windows_.player_songs.SetDatabaseName(stores_,
                                          ports_.files.ApplicationFolder().append(store::kMediaStore));
    return player::Player({.controls = window.player,
                           .menu = window.menus,
                           .video = windows_.frmVideo,
                           .speaker_test = windows_.frmSpeakerTest,
                           .tracks = {.lstTracks = lists.lstTracks,
                                      .lstMaybe = lists.lstMaybe,
                                      .ListMaybeChanged = state_.ListMaybeChanged},
                           .lists = {.lstArtists = lists.lstArtists,
                                     .lstPlayLists = lists.lstPlayLists,
                                     .lstTracks = lists.lstTracks}},
                          state_.player, RolesOfPlayer(),
                          {.media = ports_.media,
                           .windows = ports_.windows,
                           .files = ports_.files,
                           .songs = windows_.player_songs,
                           .dialogs = ports_.dialogs,
                           .loop = ports_.events,
                           .chance = ports_.chance,
                           .kept = ports_.kept});
}

LayoutRoles MainWindow::RolesOfLayout() {
    return {.transport = player_, .video = player_.Video(), .player = player_, .hole = hole_};
}

library::Library MainWindow::BuildLibrary() {
    BrowserForm& window = windows_.frmBrowser;
    return library::Library({.controls = window.library,
                             .menu = window.menus,
                             .add_media = windows_.add_media,
                             .lstEditPlayList = windows_.info.back_up.lstEditPlayList,
                             .lstOpenWith = window.hand_off.lstOpenWith,
                             .datHistory = windows_.history.datHistory},
                            {.ListMaybeChanged = state_.ListMaybeChanged,
                             .Include_Sub_Folders = state_.options.Include_Sub_Folders,
                             .last_clean_up_age = state_.options.DaysStampA},
                            stores_,
                            {.start = relays_.start,
                             .favourites = relays_.favourites,
                             .history = relays_.history,
                             .highlights = skin_,
                             .keys = relays_.media_keys,
                             .address = relays_.address_row,
                             .window = window_,
                             .file_type = file_type_},
                            {.files = ports_.files,
                             .dialogs = ports_.dialogs,
                             .loop = ports_.events,
                             .clock = ports_.clock,
                             .kept = ports_.kept});
}

places::Places MainWindow::BuildPlaces() {
    BrowserForm& window = windows_.frmBrowser;
    return places::Places(
        {.favourites = window.favourites,
         .history = windows_.history,
         .menu = window.menus,
         .add = windows_.add,
         .datSong = window.library.sources.datSong},
        {.Save_History = state_.options.Save_History, .mainclose = state_.session.mainclose},
        {.address = relays_.address_row,
         .opener = relays_.page_opener,
         .page = relays_.front_page,
         .lists = library_.Lists(),
         .played = library_.View(),
         .layout = layout_,
         .video = player_.Video(),
         .highlights = skin_,
         .keys = relays_.media_keys,
         .window = window_},
        {.dialogs = ports_.dialogs, .loop = ports_.events, .pages = users_},
        {.stores = stores_, .folder = ports_.files.ApplicationFolder()});
}

web::Web MainWindow::BuildWeb() {
    BrowserForm& window = windows_.frmBrowser;
    return web::Web(
        window.web, window.menus, state_.web,
        {.LoggedIn = state_.session.LoggedIn,
         .Internet_Connection = state_.connection.Internet_Connection,
         .Save_History = state_.options.Save_History,
         .Allow_Multiple_Users = state_.login.Allow_Multiple_Users,
         .Auto_Login = state_.options.Auto_Login,
         .StartedWithArguments = state_.session.StartedWithArguments,
         .credentials = state_.login},
        {.window = window_,
         .layout = layout_,
         .highlights = skin_,
         .keys = relays_.media_keys,
         .transport = player_,
         .now_playing = player_.Playing(),
         .messenger = player_.Line(),
         .track_lists = library_.Lists(),
         .media = library_.Intake(),
         .cue = player_.Cue(),
         .history = places_.History(),
         .favourites = places_.Favourites(),
         .suggestions = places_.Suggestions(),
         .start = relays_.start},
        {.files = ports_.files, .events = ports_.events, .dialogs = ports_.dialogs, .engine = ports_.pages});
}

session::SessionControls MainWindow::ControlsOfSession() {
    BrowserForm& window = windows_.frmBrowser;
    return {.activate = windows_.activate,
            .login = windows_.login,
            .start_up = windows_.start_up,
            .hand_off = window.hand_off,
            .hand_off_menu = window.menus,
            .menu = window.menus,
            .preferences_menu = window.menus,
            .info = windows_.info,
            .settings = SettingsControlsOf(window, windows_.history.datHistory),
            .windows = {.frmBrowser = window,
                        .frmActivate = windows_.activate.frmActivate,
                        .frmLogin = windows_.login.frmLogin,
                        .frmAdd = windows_.add.frmAdd,
                        .frmAbout = windows_.about.frmAbout,
                        .frmAddMedia = windows_.add_media.frmAddMedia,
                        .frmInfo = windows_.info.frmInfo,
                        .frmSpeakerTest = windows_.frmSpeakerTest,
                        .frmVideo = windows_.frmVideo,
                        .unloadme = windows_.info.unloadme},
            .sources = {.datSong = window.library.sources.datSong,
                        .datPlayList = window.library.sources.datPlayList,
                        .datFav = window.favourites.datFav,
                        .datHistory = windows_.history.datHistory},
            .picVideo = window.player.video.picVideo};
}

session::SessionRoles MainWindow::RolesOfSession() {
    return {.track_lists = library_.Lists(),
            .media = library_.Intake(),
            .cue = player_.Cue(),
            .history = places_.History(),
            .favourites = places_.Favourites(),
            .tabs = web_.Tabs(),
            .address_row = web_.Address(),
            .refresh = web_.Refresh(),
            .opener = web_.Opener(),
            .page = web_.Front(),
            .transport = player_,
            .messenger = player_.Line(),
            .player = player_,
            .highlights = skin_};
}

session::Session MainWindow::BuildSession(std::string_view command) {
    return session::Session(
        ControlsOfSession(),
        {.connection = state_.connection,
         .login = state_.login,
         .session = state_.session,
         .options = state_.options,
         .web = state_.web,
         .player = state_.player,
         .ListMaybeChanged = state_.ListMaybeChanged},
        RolesOfSession(),
        {.files = ports_.files,
         .dialogs = ports_.dialogs,
         .events = ports_.events,
         .clock = ports_.clock,
         .instance = ports_.instance,
         .pages = users_},
        {.stores = stores_, .trouble = trouble_}, command, [this] { windows_.BringToFront(); }, ports_.start);
}

RemoteActions MainWindow::ActionsOfRemote() {
    return {.raise = [this] { windows_.BringToFront(); }, .quit = [this] { session_.Exit(); }};
}

RemotePorts MainWindow::PortsOfRemote() const {
    return {.board = ports_.now_playing,
            .screen_saver = ports_.screen_saver,
            .events = ports_.events,
            .files = ports_.files,
            .clock = ports_.clock};
}

AboutPorts MainWindow::PortsOfAbout() const {
    return {.pages = ports_.pages,
            .registry = ports_.registry,
            .programs = ports_.programs,
            .files = ports_.files,
            .dialogs = ports_.dialogs};
}

// Whatever could be written is in its file since the windows began to go; the rest the user gave up, or the
// system did not wait for.
void MainWindow::frmBrowser_Unload() {
    stores_.Close();
    ended_();
}

}  // namespace window
