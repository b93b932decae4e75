#include "web/BrowserEventsRoom.h"

#include "base/Text.h"
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

}  // namespace

BrowserEventsRoom::BrowserEventsRoom(NavigationControls& controls, controls::WebBrowser& backdrop,
                                     NavigationMenu& menu, WebState& state, AddressBox& address, Tabs& tabs,
                                     ConnectionGuard& guard, PagePartners partners)
    : controls_(controls),
      backdrop_(backdrop),
      state_(state),
      address_(address),
      tabs_(tabs),
      guard_(guard),
      partners_(partners) {
    claims_.Claim(controls_.imgBack.MouseMove, [this](int, int, double, double) { imgBack_MouseMove(); });
    claims_.Claim(controls_.imgBackOver.Click, [this] { imgBackOver_Click(); });
    claims_.Claim(controls_.imgForward.MouseMove,
                  [this](int, int, double, double) { imgForward_MouseMove(); });
    claims_.Claim(controls_.imgForwardOver.Click, [this] { imgForwardOver_Click(); });
    claims_.Claim(controls_.lblRefresh2.Click, [this] { lblRefresh2_Click(); });
    claims_.Claim(menu.mnuGoBack.Click, [this] { imgBackOver_Click(); });
    claims_.Claim(menu.mnuGoForward.Click, [this] { imgForwardOver_Click(); });
    claims_.Claim(backdrop_.NewWindow2,
                  [this](controls::WebBrowser*& target) { BrowserBG_NewWindow2(target); });
}

void BrowserEventsRoom::ListenTo(int index) {
    controls::WebBrowser& page = tabs_.Page(index);
    claims_.Claim(page.TitleChange, [this, index](std::string_view) { Browser_TitleChange(index); });
    claims_.Claim(page.NavigateComplete2,
                  [this, index](std::string_view) { Browser_NavigateComplete2(index); });
    claims_.Claim(page.NewWindow2, [this](controls::WebBrowser*& target) { Browser_NewWindow2(target); });
    claims_.Claim(page.NavigateError, [this](bool& cancel) { Browser_NavigateError(cancel); });
}

void BrowserEventsRoom::Browser_TitleChange(int index) {
    tabs_.ShowTitle(index);
    if (!partners_.files.IsPlayListFile(tabs_.Page(index).LocationURL())) return;
    partners_.library.AddPlayList(std::string(address_.Address()));
    partners_.events.Yield();
    partners_.library.Command1();
}

void BrowserEventsRoom::Browser_NavigateComplete2(int index) {
    if (partners_.session.Allow_Multiple_Users() && partners_.session.Auto_Login()) TriggerLogins(index);
    const std::string address = tabs_.Page(index).LocationURL();
    if (partners_.files.IsPlayListFile(address)) {
        partners_.library.AddPlayList(address);
        partners_.library.Command1();
    } else {
        RememberVisit(index);
    }
}

void BrowserEventsRoom::TriggerLogins(int index) {
    const std::string address = tabs_.Page(index).LocationURL();
    if (IsMySpace(address)) {
        WaitForTemplate();
        partners_.logins.LoginToMySpace(index);
    }
    if (IsLiveLogin(address)) {
        WaitForTemplate();
        partners_.logins.LoginToHotmail(index);
    }
}

// The template has no page, so this waits for nothing: a login works on what the document holds at that
// moment.
void BrowserEventsRoom::WaitForTemplate() {
    while (tabs_.Page(0).Busy() && !partners_.events.IsEnding())
        partners_.events.Yield();
}

void BrowserEventsRoom::RememberVisit(int index) {
    if (address_.Typed() == state_.LastTabUrl) ShowAddressOfFront();
    if (partners_.session.Save_History()) {
        partners_.history.AddSiteToHistory("Web", tabs_.Page(index).LocationURL());
    }
}

void BrowserEventsRoom::ShowAddressOfFront() {
    const std::string address = tabs_.Page(state_.currentbrowser).LocationURL();
    if (address_.IsWebMode()) address_.SetTyped(address);
    state_.LastTabUrl = address;
}

void BrowserEventsRoom::Browser_NewWindow2(controls::WebBrowser*& target) {
    if (tabs_.Count() > kLastTabIndex) return;
    const int index = tabs_.Count();
    state_.NextBrowserIndex = static_cast<std::int16_t>(index);
    tabs_.GetNewBrowser();
    target = &tabs_.Page(index);
    tabs_.BringForward(index);
    tabs_.CorrectTabs();
}

void BrowserEventsRoom::BrowserBG_NewWindow2(controls::WebBrowser*& target) {
    Browser_NewWindow2(target);
}

void BrowserEventsRoom::Browser_NavigateError(bool& cancel) {
    cancel = true;
}

void BrowserEventsRoom::imgBack_MouseMove() {
    controls_.imgBackOver.SetVisible(true);
}

void BrowserEventsRoom::imgForward_MouseMove() {
    controls_.imgForwardOver.SetVisible(true);
}

void BrowserEventsRoom::imgBackOver_Click() {
    if (!guard_.Passes()) return;
    tabs_.Page(state_.currentbrowser).GoBack();
    if (!state_.TabsShown) backdrop_.GoBack();
}

void BrowserEventsRoom::imgForwardOver_Click() {
    if (!guard_.Passes()) return;
    tabs_.Page(state_.currentbrowser).GoForward();
    if (!state_.TabsShown) backdrop_.GoForward();
}

void BrowserEventsRoom::lblRefresh2_Click() {
    if (!guard_.Passes()) return;
    tabs_.Page(state_.currentbrowser).RefreshPage();
    if (!state_.BackdropHidden) backdrop_.RefreshPage();
}

}  // namespace web
