// What the pages raise, and the buttons that send them back and forth: titles reach the tabs, pop-ups become
// tabs, visited addresses reach the history, site logins are triggered.
//
// The events of a page belong to its tab by index; a page tells late, so its tab may be behind or closed by
// then.
#pragma once

#include <string_view>

#include "controls/Event.h"
#include "ports/EventLoop.h"
#include "web/AddressBox.h"
#include "web/ConnectionGuard.h"
#include "web/Outgoing.h"
#include "web/PageNavigation.h"
#include "web/Tabs.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"
#include "web/WebState.h"

namespace web {

/// What the pages ask of their neighbours.
struct PagePartners {
    MediaLibrary& library;
    HistoryLog& history;
    SiteLogins& logins;
    Session& session;
    FileNames& files;
    ports::EventLoop& events;
};

class BrowserEventsRoom final : public PageNavigation {
public:
    BrowserEventsRoom(NavigationControls& controls, controls::WebBrowser& backdrop, NavigationMenu& menu,
                      WebState& state, AddressBox& address, Tabs& tabs, ConnectionGuard& guard,
                      PagePartners partners);

    /// Listens to the page of a new tab.
    void ListenTo(int index);

    void ClickBack() override { imgBackOver_Click(); }
    void ClickForward() override { imgForwardOver_Click(); }
    void ClickRefresh() override { lblRefresh2_Click(); }

private:
    void Browser_TitleChange(int index);
    void Browser_NavigateComplete2(int index);
    void Browser_NewWindow2(controls::WebBrowser*& target);
    void Browser_NavigateError(bool& cancel);
    void BrowserBG_NewWindow2(controls::WebBrowser*& target);
    void imgBack_MouseMove();
    void imgForward_MouseMove();
    void imgBackOver_Click();
    void imgForwardOver_Click();
    void lblRefresh2_Click();

    void TriggerLogins(int index);
    void WaitForTemplate();
    void RememberVisit(int index);
    void ShowAddressOfFront();

    NavigationControls& controls_;
    controls::WebBrowser& backdrop_;
    WebState& state_;
    AddressBox& address_;
    Tabs& tabs_;
    ConnectionGuard& guard_;
    PagePartners partners_;
    controls::EventClaims claims_;
};

}  // namespace web
