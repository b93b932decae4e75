// The rooms of the web subsystem, put together: the one thing the main window builds of it.
#pragma once

#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "web/AddressBox.h"
#include "web/AddressRoom.h"
#include "web/BrowserEventsRoom.h"
#include "web/ConnectionGuard.h"
#include "web/Outgoing.h"
#include "web/RefreshRoom.h"
#include "web/SiteLogin.h"
#include "web/TabRoom.h"
#include "web/WebCommandsRoom.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"
#include "web/WebState.h"

namespace web {

/// The groups of the main window that belong here.
struct WebGroups {
    TabControls tabs;
    AddressControls address;
    NavigationControls navigation;
    RefreshControls refresh;
    HelpControls help;
    HandOffControls hand_off;

    /// Puts every group into the window.
    void PutInto(controls::Container& container);
};

/// Everything asked of the neighbours.
struct WebPartners {
    BrowserWindow& window;
    MusicPanel& panel;
    MusicPlayer& player;
    MediaLibrary& library;
    CueList& cue;
    HistoryLog& history;
    NowPlayingLine& messenger;
    SiteLogins& logins;
    Session& session;
    FileNames& files;
    ports::EventLoop& events;
    ports::Dialogs& dialogs;
};

class WebRooms final : private PageWatcher {
public:
    /// The groups, the menu and the state must outlive the rooms.
    WebRooms(WebGroups& groups, WebMenu& menu, WebState& state, WebPartners partners);
    WebRooms(const WebRooms&) = delete;
    WebRooms& operator=(const WebRooms&) = delete;

private:
    void OnPageLoaded(int index) override { pages.ListenTo(index); }

public:
    AddressBox box;
    ConnectionGuard guard;
    TabRoom tabs;
    AddressRoom address;
    BrowserEventsRoom pages;
    RefreshRoom refresh;
    WebCommandsRoom commands;
    SiteLogin logins;
};

}  // namespace web
