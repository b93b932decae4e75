// The keys that work the browser wherever the keyboard is, in a page as well: the address row, tabs, back and
// forward, refresh, stop, downloads.
//
// The table here comes first. A key that it does not name goes to the area of the page in front, whose own
// table is platform/webengine/PageKeys.cpp; what nobody takes goes on to where the keyboard is.
#pragma once

#include "ports/PageEngine.h"
#include "roles/Favourites.h"
#include "roles/Window.h"
#include "web/AddressBox.h"
#include "web/AddressRoom.h"
#include "web/BrowserEventsRoom.h"
#include "web/CompletionRoom.h"
#include "web/TabFinderRoom.h"
#include "web/TabRoom.h"
#include "web/WebState.h"

namespace web {

class PageKeysRoom final {
public:
    PageKeysRoom(const WebState& state, AddressBox& address, AddressRoom& opener, CompletionRoom& completion,
                 TabRoom& tabs, TabFinderRoom& finder, BrowserEventsRoom& pages, roles::Window& window,
                 roles::Favourites& favourites, ports::PageEngine& engine);

    /// True if the key is used up.
    bool Take(int key_code, int shift);

private:
    struct Key;
    static const Key kKeys[];

    void GoToAddress();
    void OpenEmptyTab();
    void ShowTab(int place);
    bool OfferToPage(int key_code, int shift);
    bool Stop();

    const WebState& state_;
    AddressBox& address_;
    AddressRoom& opener_;
    CompletionRoom& completion_;
    TabRoom& tabs_;
    TabFinderRoom& finder_;
    BrowserEventsRoom& pages_;
    roles::Window& window_;
    roles::Favourites& favourites_;
    ports::PageEngine& engine_;
};

}  // namespace web
