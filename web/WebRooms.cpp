#include "web/WebRooms.h"

namespace web {

void WebGroups::PutInto(controls::Container& container) {
    tabs.PutInto(container);
    navigation.PutInto(container);
    address.PutInto(container);
    refresh.PutInto(container);
    help.PutInto(container);
    hand_off.PutInto(container);
}

WebRooms::WebRooms(WebGroups& groups, WebMenu& menu, WebState& state, WebPartners partners)
    : box(groups.address),
      guard(partners.session, partners.dialogs),
      tabs(groups.tabs, menu, state, box,
           {partners.window, partners.panel, partners.player, partners.library, partners.messenger,
            partners.events, *this}),
      address(groups.address, state, box, tabs,
              {partners.window, partners.player, partners.library, partners.cue, partners.history,
               partners.messenger, partners.session, partners.files, partners.events}),
      pages(groups.navigation, groups.tabs.BrowserBG, menu, state, box, tabs, guard,
            {partners.library, partners.history, partners.logins, partners.session, partners.files,
             partners.events}),
      refresh(groups.refresh, menu, state, pages, guard, partners.window, partners.dialogs),
      commands(groups.help, menu, box, address, tabs, guard, partners.window, partners.player,
               partners.dialogs),
      logins(tabs) {}

}  // namespace web
