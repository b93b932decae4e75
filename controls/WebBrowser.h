// A web browser control. Until an engine is attached (a template never gets one) commands are ignored and the
// location is empty; the last address requested before that is passed to the engine when it is attached.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/Control.h"
#include "ports/BrowserControl.h"

namespace controls {

class WebBrowser : public Control, private ports::BrowserListener {
public:
    explicit WebBrowser(std::string_view name) : Control(Kind::WebBrowser, name) {}
    ~WebBrowser() override;

    /// Attaches the page engine (the screen does), or detaches it with null. An engine is detached before it
    /// is destroyed.
    void Attach(ports::BrowserControl* engine);
    ports::BrowserControl* Engine() const { return engine_; }
    /// The address waiting for an engine; empty if there is none.
    const std::string& WaitingAddress() const { return waiting_address_; }
    /// The address that was asked for last, or the one that failed where a page of another one went by
    /// itself; empty where the control was sent nowhere.
    const std::string& AskedAddress() const { return asked_address_; }
    /// Gives the engine back and forgets where it was to go.
    void Forget();

    void Navigate(std::string_view address);
    /// The control's second way to navigate, with the same effect. A second call for an address that is
    /// already loading does not load it twice.
    void Navigate2(std::string_view address);
    /// Goes to a page that was shown before, which is no visit: its arrival is not raised. The first one at
    /// another address is again.
    void NavigateAgain(std::string_view address);
    void GoBack();
    void GoForward();
    void RefreshPage();
    void Stop();
    /// Offers a key to the page's own area (find, zoom, print, ...); true if it is used up.
    bool TakeKey(int key_code, int shift);
    /// What the user sees of the page; the screen says it.
    void SetSeen(ports::PageSeen seen);
    ports::PageSeen Seen() const { return seen_; }
    std::string LocationURL() const;
    std::string LocationName() const;
    bool Busy() const;
    ports::PageSigns Signs() const;
    /// Has the page's area say how safe its connection is.
    void ShowSecurity();
    /// Carries out the steps on elements of the current document, if it is one of that host.
    void WorkOnDocument(std::string_view host, const std::vector<ports::ElementStep>& steps);

    Event<std::string_view> TitleChange;        ///< the new title
    Event<std::string_view> NavigateComplete2;  ///< the address, once for every frame
    Event<WebBrowser*&> NewWindow2;             ///< set it to the control that is to show the pop-up
    Event<WebBrowser*&> NewWindowBehind;        ///< the same for a window that the user wants behind
    Event<> WindowClosing;                      ///< a pop-up closed itself
    Event<bool&> NavigateError;                 ///< cancel: no error page
    Event<> SignsChange;                        ///< icon, progress or security

private:
    void OnTitleChange(std::string_view title) override;
    void OnNavigateComplete(std::string_view url) override;
    bool OnNavigateError(std::string_view url, int code) override;
    ports::BrowserControl* OnNewWindow(ports::WindowPlace place) override;
    void OnWindowClosing() override { WindowClosing.Raise(); }
    void OnSignsChange() override { SignsChange.Raise(); }

    ports::BrowserControl* engine_ = nullptr;
    ports::PageSeen seen_ = ports::PageSeen::InFront;
    std::string waiting_address_;
    std::string asked_address_;
    std::string address_under_way_;
    std::string known_address_;
};

}  // namespace controls
