#include "session/Session.h"

#include <utility>

namespace session {
namespace {

SessionEndRoles RolesOfEnd(const SessionRoles& roles) {
    return {.track_lists = roles.track_lists,
            .tabs = roles.tabs,
            .address_row = roles.address_row,
            .refresh = roles.refresh,
            .transport = roles.transport,
            .messenger = roles.messenger,
            .player = roles.player,
            .highlights = roles.highlights};
}

StartUpTargets TargetsOfStart(const SessionControls& controls) {
    return {.frmBrowser = controls.windows.frmBrowser,
            .frmActivate = controls.activate.frmActivate,
            .frmLogin = controls.login.frmLogin,
            .menu = controls.menu,
            .picVideo = controls.picVideo,
            .sources = controls.sources};
}

StartUpRoles RolesOfStart(const SessionRoles& roles) {
    return {.track_lists = roles.track_lists,
            .history = roles.history,
            .favourites = roles.favourites,
            .tabs = roles.tabs,
            .address_row = roles.address_row,
            .opener = roles.opener,
            .player = roles.player,
            .highlights = roles.highlights};
}

HandOffRoles RolesOfHandOff(const SessionRoles& roles) {
    return {.media = roles.media,
            .cue = roles.cue,
            .transport = roles.transport,
            .track_lists = roles.track_lists,
            .address_row = roles.address_row,
            .opener = roles.opener};
}

}  // namespace

Session::Session(SessionControls controls, SessionData data, SessionRoles roles, SessionPorts ports,
                 SessionStores stores, std::string_view command, std::function<void()> bring_to_front,
                 StartFacts facts)
    : keys_(roles.transport, roles.page, roles.opener),
      last_run_(controls.login, data.session, std::move(facts)),
      splash_(controls.activate, data.connection, data.session,
              {.frmBrowser = controls.windows.frmBrowser, .menu = controls.menu}, controls.login.frmLogin,
              roles.tabs, ports.files, ports.dialogs, ports.events, ports.files.ApplicationFolder()),
      settings_(controls.settings, controls.info.options, data.options, data.session, data.connection,
                data.web, splash_, roles.tabs, roles.opener, data.player, ports.clock, ports.events,
                ports.pages),
      login_(controls.login, data.login, data.session, controls.windows.frmBrowser, splash_, settings_,
             ports.instance, stores.stores, ports.files, ports.dialogs, ports.events,
             ports.files.ApplicationFolder()),
      new_user_(controls.login, login_, data.session, controls.windows.frmBrowser, controls.windows.frmInfo,
                ports.dialogs, ports.pages),
      hand_off_(controls.hand_off, controls.hand_off_menu,
                {.session = data.session,
                 .frmActivate = controls.activate.frmActivate,
                 .ListMaybeChanged = data.ListMaybeChanged},
                RolesOfHandOff(roles),
                {.files = ports.files,
                 .dialogs = ports.dialogs,
                 .events = ports.events,
                 .instance = ports.instance},
                std::move(bring_to_front)),
      session_(controls.windows, controls.menu, data.session, data.login,
               {.settings = settings_,
                .login = login_,
                .new_user = new_user_,
                .hand_off = hand_off_,
                .keys = keys_},
               RolesOfEnd(roles), stores,
               {.dialogs = ports.dialogs, .events = ports.events, .pages = ports.pages}),
      maintenance_(controls.info.maintenance,
                   {.datSong = controls.info.datSong,
                    .datPlayList = controls.info.datPlayList,
                    .datFolder = controls.info.datFolder},
                   controls.windows.frmAddMedia, roles.track_lists, roles.history, stores, ports.dialogs,
                   ports.events),
      back_up_(controls.info.back_up,
               {.datHistory = controls.info.datHistory,
                .datSong = controls.info.datSong,
                .datPlayList = controls.info.datPlayList},
               data.options, roles.track_lists,
               {.files = ports.files, .dialogs = ports.dialogs, .clock = ports.clock, .loop = ports.events}),
      preferences_(controls.info, controls.preferences_menu, back_up_, new_user_, stores, ports.dialogs,
                   ports.files.ApplicationFolder()),
      start_up_(controls.start_up, TargetsOfStart(controls), data.session, data.login, data.web, data.player,
                {.settings = settings_, .splash = splash_, .hand_off = hand_off_}, RolesOfStart(roles),
                {.files = ports.files,
                 .events = ports.events,
                 .instance = ports.instance,
                 .dialogs = ports.dialogs},
                stores.stores, ports.files.ApplicationFolder(), command) {
    login_.OnAutomaticLogin = [this] { last_run_.LogInUnasked(); };
}

}  // namespace session
