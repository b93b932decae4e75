// Page engines for web browser controls.
//
// The engine's library takes a tenth of a second to load, so it is a module of its own that is loaded when
// a page is wanted or likely, and not before the first window has been painted. Pages belong to a user, so
// none is made while nobody is logged in.
//
// For a user who has pages now and then, the engine is made ready while nothing else is to be done: the first
// page then waits for nothing but itself.
#pragma once

#include <QTimer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/WebBrowser.h"
#include "platform/qt/PageFactory.h"
#include "ports/BrowserControl.h"

namespace qt {

using PageLoader = std::function<std::unique_ptr<PageFactory>()>;
/// Takes away what was kept for the pages of a user, without the engine.
using PageRemover = std::function<void(std::string_view user)>;

/// When and how the engine is made ready before a page is wanted.
struct PagesAhead {
    /// Whether a user will want pages. Left empty, nobody is known to.
    std::function<bool(std::string_view user)> is_likely;
    /// What can be done before the engine is loaded. May be empty.
    std::function<void()> prepare;
    /// How long the window has been there by then, and between two steps.
    std::chrono::milliseconds after{2000};
    std::chrono::milliseconds between{200};
};

/// Hands out engines; as long as it is held back it remembers who wants one.
class Pages {
public:
    Pages(PageLoader loader, PageRemover forget, PagesAhead ahead = {});
    void Want(controls::WebBrowser& browser, QWidget& place);
    /// The window has been painted.
    void Release();
    /// Another user than this one was begun and has not ended.
    bool AreOfAnother(std::string_view name) const { return user_ && user_->name != name; }
    /// From here on and after Release engines are made at once; those wanted before are made then. Of a
    /// second call for the same user nothing comes; another one has ended before.
    void BeginUser(std::string_view name, bool keeps_history);
    /// Ends every engine that was handed out, which no control may use any more, and forgets who wants one.
    void EndUser();
    bool IsHeld() const { return !released_ || !user_; }
    /// Ends every engine that was handed out, which no control may use any more, and what pages left.
    void ForgetVisits();
    /// Brings their list to the front; loads the engine for it if no page was wanted so far.
    void ShowDownloads();

private:
    struct User {
        std::string name;
        bool keeps_history;
    };
    void MakeThoseThatWait();
    void Load();
    void LoadFactory();
    void BeginUserOfFactory();
    void ExpectPages();
    void ComeNearer();
    void Make(controls::WebBrowser& browser, QWidget& place);

    struct Wanted {
        controls::WebBrowser* browser;
        QWidget* place;
    };
    PageLoader loader_;
    PageRemover forget_;
    std::unique_ptr<PageFactory> factory_;
    std::vector<Wanted> waiting_;
    std::optional<User> user_;
    bool released_ = false;
    bool has_begun_ = false;  // the user, for the factory
    PagesAhead ahead_;
    QTimer next_step_;
};

}  // namespace qt
