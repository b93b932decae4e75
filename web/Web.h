// The web subsystem: tabs, address row, page events, refresh, web commands. Owns its rooms and hands out what
// other subjects may ask of them.
#pragma once

#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "roles/AddressRow.h"
#include "roles/AutoRefresh.h"
#include "roles/CueList.h"
#include "roles/Favourites.h"
#include "roles/FrontPage.h"
#include "roles/Highlights.h"
#include "roles/History.h"
#include "roles/Layout.h"
#include "roles/MediaIntake.h"
#include "roles/MediaKeys.h"
#include "roles/MessengerLine.h"
#include "roles/NowPlaying.h"
#include "roles/PageOpener.h"
#include "roles/Start.h"
#include "roles/Suggestions.h"
#include "roles/Tabs.h"
#include "roles/TrackLists.h"
#include "roles/Transport.h"
#include "roles/Window.h"
#include "web/AddressBox.h"
#include "web/AddressRoom.h"
#include "web/BrowserEventsRoom.h"
#include "web/CompletionRoom.h"
#include "web/ConnectionGuard.h"
#include "web/PageKeysRoom.h"
#include "web/RefreshRoom.h"
#include "web/SessionFacts.h"
#include "web/TabFinderRoom.h"
#include "web/TabRoom.h"
#include "web/WebCommandsRoom.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"
#include "web/WebState.h"

namespace web {

struct WebRoles {
    roles::Window& window;
    roles::Layout& layout;
    roles::Highlights& highlights;
    roles::MediaKeys& keys;
    roles::Transport& transport;
    roles::NowPlaying& now_playing;
    roles::MessengerLine& messenger;
    roles::TrackLists& track_lists;
    roles::MediaIntake& media;
    roles::CueList& cue;
    roles::History& history;
    roles::Favourites& favourites;
    roles::Suggestions& suggestions;
    roles::Start& start;
};

struct WebPorts {
    const ports::Files& files;
    ports::EventLoop& events;
    ports::Dialogs& dialogs;
    ports::PageEngine& engine;
};

class Web final : private PageWatcher {
public:
    /// Everything that is given by reference must outlive the rooms.
    Web(WebControls& controls, WebMenu& menu, WebState& state, SessionFacts session, WebRoles roles,
        WebPorts ports);
    Web(const Web&) = delete;
    Web& operator=(const Web&) = delete;

    roles::AddressRow& Address() { return address_; }
    roles::PageOpener& Opener() { return opener_; }
    roles::FrontPage& Front() { return pages_; }
    roles::Tabs& Tabs() { return tabs_; }
    roles::AutoRefresh& Refresh() { return refresh_; }
    roles::MakerPages& Maker() { return commands_; }
    /// Keys that work the browser wherever the keyboard is.
    PageKeysRoom& Keys() { return keys_; }
    /// The commands that have no menu entry.
    WebCommandsRoom& Commands() { return commands_; }

private:
    void OnPageLoaded(int index) override { pages_.ListenTo(index); }

    AddressBox address_;
    ConnectionGuard guard_;
    TabRoom tabs_;
    CompletionRoom completion_;
    AddressRoom opener_;
    BrowserEventsRoom pages_;
    RefreshRoom refresh_;
    WebCommandsRoom commands_;
    TabFinderRoom finder_;
    PageKeysRoom keys_;
};

}  // namespace web
