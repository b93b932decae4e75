// One page engine under one web browser control: the calls to it and the notifications it returns.
//
// Why: the tabs, the address bar and the site logins must run, and be tested, without a page engine.
// All calls return at once; what a page does is notified later through the listener, on the user-interface
// thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ports {

/// Where a window that a page opens is wanted.
enum class WindowPlace {
    InFront,
    Behind,  ///< the user asked for it behind the page (middle button, Ctrl and a click)
};

/// What the user sees of a page.
enum class PageSeen {
    InFront,
    Covered,  ///< it is open; something lies over all of it
    Closed,   ///< its control is invisible
};

/// What a browser shows of a page around it.
struct PageSigns {
    enum class Security {
        None,  ///< a page that came over no network, or no page yet
        Encrypted,
        NotEncrypted,
        ErrorPassed,  ///< encrypted, with a certificate that the user was warned of
    };
    Security security = Security::None;
    /// Percent of the load that is under way; -1 when there is none.
    int progress = -1;
    /// The site's own small picture, as the bytes of a PNG file; empty when it has none.
    std::string icon = {};
    bool operator==(const PageSigns&) const = default;
};

/// The notifications of a page engine.
class BrowserListener {
public:
    virtual ~BrowserListener() = default;
    /// The title changed; read it from LocationName.
    virtual void OnTitleChange(std::string_view title) = 0;
    /// A document, of the page or of a frame in it, has arrived at `url`.
    virtual void OnNavigateComplete(std::string_view url) = 0;
    /// A navigation failed for good. Returns true to suppress the engine's own error page.
    virtual bool OnNavigateError(std::string_view url, int code) = 0;
    /// The page's signs are others now.
    virtual void OnSignsChange() {}
    /// The page wants a new window. Returns the engine that shall show it, or null to refuse.
    virtual class BrowserControl* OnNewWindow(WindowPlace place) = 0;
    /// A window that a page opened has closed itself, or became nothing but a download.
    virtual void OnWindowClosing() = 0;
};

/// One thing to do with an element of a document, found by its name or, failing that, its id.
struct ElementStep {
    enum class Kind {
        SetValue,  ///< gives an input the value
        Click,
        Submit,  ///< sends a form off
    };
    Kind kind = Kind::SetValue;
    std::string name;
    std::string value;
};

class BrowserControl {
public:
    virtual ~BrowserControl() = default;
    virtual void SetListener(BrowserListener* listener) = 0;
    /// Goes to an address as the user types it: completed the way browsers do ("example.org" gets a scheme, a
    /// path becomes a file address). An empty address goes nowhere and stops nothing.
    virtual void Navigate(std::string_view address) = 0;
    /// Nothing to go to: nothing happens.
    virtual void GoBack() = 0;
    virtual void GoForward() = 0;
    /// Loads the document again; where none is there, the address that failed.
    virtual void Refresh() = 0;
    /// Ends what is under way; the document that is shown stays.
    virtual void Stop() {}
    /// A key that the page's own area answers, whatever has the keyboard: platform key code and shift state.
    /// Returns true if it is used up.
    virtual bool TakeKey(int /*key_code*/, int /*shift*/) { return false; }
    /// The address of the document that is shown; empty before the first one.
    virtual std::string LocationURL() const = 0;
    /// Its title; the address when it has none; empty before the first document.
    virtual std::string LocationName() const = 0;
    virtual bool Busy() const = 0;
    /// A covered page goes on, slower and without boxes; a closed one is silent and stands still until it is
    /// sent somewhere or seen again. An engine starts in front.
    virtual void SetSeen(PageSeen /*seen*/) {}
    virtual PageSigns Signs() const { return {}; }
    /// Shows the user, on the page's own area, how safe the connection is and who certified it.
    virtual void ShowSecurity() {}
    /// Works on the document that is shown as soon as it is ready, in order and in one go; an element that is
    /// not there is skipped. The values may be a password, so nothing is done unless the document came by
    /// https (or is the program's own) from `host` or from a name below it, nor in one that was worked on
    /// before, nor when another one is shown by then. An engine without documents does nothing.
    virtual void WorkOnDocument(std::string_view /*host*/, const std::vector<ElementStep>& /*steps*/) {}
};

}  // namespace ports
