// Page engines for web browser controls.
//
// The engine's library takes a tenth of a second to load, so it is a module of its own that is loaded when
// the first page is wanted, and not before the first window has been painted. Pages belong to a user, so none
// is made while nobody is logged in.
#pragma once

#include <QWidget>
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

/// Hands out engines; as long as it is held back it remembers who wants one.
class Pages {
public:
    Pages(PageLoader loader, PageRemover forget) : loader_(std::move(loader)), forget_(std::move(forget)) {}
    void Want(controls::WebBrowser& browser, QWidget& place);
    /// The window has been painted.
    void Release();
    /// From here on and after Release engines are made at once; those wanted before are made then. Of a
    /// second call for the same user nothing comes.
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
};

}  // namespace qt
