// What the pages raise, and the buttons that send them back and forth: titles reach the tabs, pop-ups become
// tabs, visited addresses reach the history, site logins are triggered.
//
// The events of a page belong to its tab by index; a page reports late, so by then its tab may no longer be
// in front, or be closed.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "ports/EventLoop.h"
#include "roles/FrontPage.h"
#include "roles/History.h"
#include "roles/MediaIntake.h"
#include "roles/Suggestions.h"
#include "roles/TrackLists.h"
#include "web/AddressBox.h"
#include "web/ConnectionGuard.h"
#include "web/SessionFacts.h"
#include "web/SiteLogin.h"
#include "web/TabRoom.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"
#include "web/WebState.h"

namespace web {

struct PageRoles {
    roles::TrackLists& track_lists;
    roles::MediaIntake& media;
    roles::History& history;
    roles::Suggestions& suggestions;
};

class BrowserEventsRoom final : public roles::FrontPage {
public:
    BrowserEventsRoom(NavigationControls& controls, NavigationMenu& menu, WebState& state,
                      SessionFacts session, AddressBox& address, TabRoom& tabs, ConnectionGuard& guard,
                      PageRoles roles, ports::EventLoop& events);

    /// Listens to the page of a new tab.
    void ListenTo(int index);

    // roles::FrontPage
    bool IsPageVisible() const override { return tabs_.Front().Visible(); }
    std::string LocationURL() const override { return tabs_.Front().LocationURL(); }
    std::string LocationName() const override { return tabs_.Front().LocationName(); }
    void GoBack() override { imgBackOver_Click(); }
    void GoForward() override { imgForwardOver_Click(); }
    void Refresh() override { lblRefresh2_Click(); }

private:
    void Browser_TitleChange(int index);
    void Browser_NavigateComplete2(int index);
    void Browser_NewWindow2(controls::WebBrowser*& target);
    void Browser_NewWindowBehind(controls::WebBrowser*& target);
    void Browser_WindowClosing(int index);
    void Browser_NavigateError(bool& cancel);
    void Browser_SignsChange(int index);
    void BrowserBG_NewWindow2(controls::WebBrowser*& target);
    void imgBackOver_Click();
    void imgForwardOver_Click();
    void lblRefresh2_Click();

    void TriggerLogins(int index);
    void WaitForTemplate();
    void RememberVisit(int index);
    void ShowAddressOfFront();

    NavigationControls& controls_;
    WebState& state_;
    SessionFacts session_;
    AddressBox& address_;
    TabRoom& tabs_;
    ConnectionGuard& guard_;
    PageRoles roles_;
    ports::EventLoop& events_;
    SiteLogin logins_;
    controls::EventClaims claims_;
};

}  // namespace web
