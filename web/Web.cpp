#include "web/Web.h"

namespace web {
namespace {

TabRoles RolesOfTabs(const WebRoles& roles) {
    return {.window = roles.window,
            .layout = roles.layout,
            .highlights = roles.highlights,
            .transport = roles.transport,
            .track_lists = roles.track_lists,
            .media = roles.media,
            .messenger = roles.messenger};
}

AddressRoles RolesOfOpener(const WebRoles& roles) {
    return {.keys = roles.keys,
            .transport = roles.transport,
            .now_playing = roles.now_playing,
            .track_lists = roles.track_lists,
            .media = roles.media,
            .cue = roles.cue,
            .history = roles.history,
            .messenger = roles.messenger,
            .start = roles.start};
}

}  // namespace

Web::Web(WebControls& controls, WebMenu& menu, WebState& state, SessionFacts session, WebRoles roles,
         WebPorts ports)
    : address_(controls.address, state),
      guard_(session.Internet_Connection, ports.dialogs),
      tabs_(controls.tabs, menu, state, address_, RolesOfTabs(roles), ports.events, *this),
      completion_(controls.completion, controls.address, address_, roles.suggestions,
                  [this](std::string_view address) { opener_.EnterAsWeb(address); }),
      opener_(controls.address, state, session.StartedWithArguments, address_, completion_, tabs_,
              RolesOfOpener(roles), {.files = ports.files, .events = ports.events}),
      pages_(controls.navigation, menu, state, session, address_, tabs_, guard_,
             {.track_lists = roles.track_lists,
              .media = roles.media,
              .history = roles.history,
              .suggestions = roles.suggestions},
             ports.events),
      refresh_(controls.refresh, menu, state, pages_, guard_, roles.keys, ports.dialogs),
      commands_(controls.help, menu, opener_, tabs_, guard_, roles.window, roles.now_playing, ports.dialogs),
      finder_(controls.finder, tabs_, roles.window, roles.keys),
      keys_(state, address_, opener_, completion_, tabs_, finder_, pages_, roles.window, roles.favourites,
            ports.engine) {}

}  // namespace web
