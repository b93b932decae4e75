#include "web/BrowserEventsRoom.h"

#include "base/FileAddress.h"
#include "base/MediaKinds.h"
#include "base/Text.h"
#include "controls/Arrange.h"
#include "web/Addresses.h"

namespace web {

namespace {

bool IsMySpace(std::string_view address) {
    return base::Right(address, kMySpaceHostLength + 1) == std::string(MySpaceHost).append("/") ||
           base::Right(address, kMySpaceHostLength) == MySpaceHost;
}

bool IsLiveLogin(std::string_view address) {
    return base::Left(address, kLiveLoginLength) == LiveLoginUrl;
}

// A page of another player's list is taken in only when it is a file of this computer.
bool IsPlayListPage(std::string_view address) {
    return base::IsPlayListFile(address) ||
           (base::IsForeignPlayListFile(address) && base::PathOfFileAddress(address).has_value());
}

}  // namespace

BrowserEventsRoom::BrowserEventsRoom(NavigationControls& controls, NavigationMenu& menu, WebState& state,
                                     SessionFacts session, AddressBox& address, TabRoom& tabs,
                                     ConnectionGuard& guard, PageRoles roles, ports::EventLoop& events)
    : controls_(controls),
      state_(state),
      session_(session),
      address_(address),
      tabs_(tabs),
      guard_(guard),
      roles_(roles),
      events_(events),
      logins_(tabs) {
    ClaimTwin(claims_, controls_.imgBack, controls_.imgBackOver);
    claims_.Claim(controls_.imgBackOver.Click, [this] { imgBackOver_Click(); });
    ClaimTwin(claims_, controls_.imgForward, controls_.imgForwardOver);
    claims_.Claim(controls_.imgForwardOver.Click, [this] { imgForwardOver_Click(); });
    claims_.Claim(controls_.lblRefresh2.Click, [this] { lblRefresh2_Click(); });
    claims_.Claim(menu.mnuGoBack.Click, [this] { imgBackOver_Click(); });
    claims_.Claim(menu.mnuGoForward.Click, [this] { imgForwardOver_Click(); });
    claims_.Claim(tabs_.Backdrop().NewWindow2,
                  [this](controls::WebBrowser*& target) { BrowserBG_NewWindow2(target); });
    claims_.Claim(tabs_.Backdrop().NewWindowBehind,
                  [this](controls::WebBrowser*& target) { BrowserBG_NewWindow2(target); });
}

void BrowserEventsRoom::ListenTo(int index) {
    controls::WebBrowser& page = tabs_.Page(index);
    claims_.Claim(page.TitleChange, [this, index](std::string_view) { Browser_TitleChange(index); });
    claims_.Claim(page.NavigateComplete2,
                  [this, index](std::string_view) { Browser_NavigateComplete2(index); });
    claims_.Claim(page.NewWindow2, [this](controls::WebBrowser*& target) { Browser_NewWindow2(target); });
    claims_.Claim(page.NewWindowBehind,
                  [this](controls::WebBrowser*& target) { Browser_NewWindowBehind(target); });
    claims_.Claim(page.WindowClosing, [this, index] { Browser_WindowClosing(index); });
    claims_.Claim(page.SignsChange, [this, index] { Browser_SignsChange(index); });
    claims_.Claim(page.NavigateError, [this](bool& cancel) { Browser_NavigateError(cancel); });
}

void BrowserEventsRoom::Browser_TitleChange(int index) {
    tabs_.ShowTitle(index);
    if (!IsPlayListPage(tabs_.Page(index).LocationURL())) return;
    roles_.media.AddPlayList(address_.Address());
    events_.Yield();
    roles_.track_lists.Command1();
}

void BrowserEventsRoom::Browser_NavigateComplete2(int index) {
    if (session_.LoggedIn && session_.Allow_Multiple_Users && session_.Auto_Login) TriggerLogins(index);
    const std::string address = tabs_.Page(index).LocationURL();
    if (IsPlayListPage(address)) {
        roles_.media.AddPlayList(address);
        roles_.track_lists.Command1();
    } else {
        RememberVisit(index);
    }
}

void BrowserEventsRoom::TriggerLogins(int index) {
    const std::string address = tabs_.Page(index).LocationURL();
    if (IsMySpace(address)) {
        WaitForTemplate();
        logins_.LoginToMySpace(session_.credentials.MySpaceE, session_.credentials.MySpaceP, index);
    }
    if (IsLiveLogin(address)) {
        WaitForTemplate();
        logins_.LoginToHotmail(session_.credentials.HotmailE, session_.credentials.HotmailP, index);
    }
}

// The template has no page, so this waits for nothing: a login works on what the document holds at that
// moment.
void BrowserEventsRoom::WaitForTemplate() {
    while (tabs_.Page(0).Busy() && !events_.IsEnding())
        events_.Yield();
}

void BrowserEventsRoom::RememberVisit(int index) {
    if (address_.Typed() == state_.LastTabUrl) ShowAddressOfFront();
    if (session_.Save_History) {
        const std::string address = tabs_.Page(index).LocationURL();
        roles_.history.AddSiteToHistory(roles::HistoryKind::Web, address);
        roles_.suggestions.NoteVisit(address);
    }
}

void BrowserEventsRoom::ShowAddressOfFront() {
    const std::string address = tabs_.Front().LocationURL();
    if (address_.IsWebMode()) address_.ShowLocation(address);
    state_.LastTabUrl = address;
    address_.ShowSecurity(tabs_.Front().Signs().security, address);
}

// The page that pops up loads there, so the tab goes nowhere first, whatever a favourite that was clicked
// once has left in the address row.
void BrowserEventsRoom::Browser_NewWindow2(controls::WebBrowser*& target) {
    if (!tabs_.CanOpenTab()) return;
    const int index = tabs_.GetNewBrowser("");
    target = &tabs_.Page(index);
    tabs_.BringForward(index);
    tabs_.CorrectTabs();
}

void BrowserEventsRoom::Browser_NewWindowBehind(controls::WebBrowser*& target) {
    if (!tabs_.IsAnythingInFront()) {
        Browser_NewWindow2(target);
    } else if (tabs_.CanOpenTab()) {
        target = &tabs_.Page(tabs_.OpenBehind());
    }
}

void BrowserEventsRoom::Browser_WindowClosing(int index) {
    if (tabs_.IsShown(index)) tabs_.CloseTab(index);
}

void BrowserEventsRoom::BrowserBG_NewWindow2(controls::WebBrowser*& target) {
    Browser_NewWindow2(target);
}

void BrowserEventsRoom::Browser_NavigateError(bool& cancel) {
    cancel = true;
}

void BrowserEventsRoom::Browser_SignsChange(int index) {
    tabs_.ShowSigns(index);
}

void BrowserEventsRoom::imgBackOver_Click() {
    if (!guard_.Passes()) return;
    tabs_.Front().GoBack();
    if (!state_.TabsShown) tabs_.Backdrop().GoBack();
}

void BrowserEventsRoom::imgForwardOver_Click() {
    if (!guard_.Passes()) return;
    tabs_.Front().GoForward();
    if (!state_.TabsShown) tabs_.Backdrop().GoForward();
}

void BrowserEventsRoom::lblRefresh2_Click() {
    if (!guard_.Passes()) return;
    tabs_.Front().RefreshPage();
    if (!state_.BackdropHidden) tabs_.Backdrop().RefreshPage();
}

}  // namespace web
