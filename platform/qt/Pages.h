// Page engines for web browser controls.
//
// The engine's library takes a tenth of a second to load, so it is a module of its own that is loaded when
// the first page is wanted, and not before the first window has been painted.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "controls/WebBrowser.h"
#include "platform/qt/PageFactory.h"
#include "ports/BrowserControl.h"

namespace qt {

using PageLoader = std::function<std::unique_ptr<PageFactory>()>;

/// Hands out engines; as long as it is held back it remembers who wants one.
class Pages {
public:
    explicit Pages(PageLoader loader) : loader_(std::move(loader)) {}
    void Want(controls::WebBrowser& browser, QWidget& place);
    /// From now on engines are made at once; those wanted before are made now.
    void Release();
    bool IsHeld() const { return held_; }
    /// Ends every engine that was handed out, which no control may use any more, and what pages left in
    /// memory.
    void ForgetVisits();

private:
    void Make(controls::WebBrowser& browser, QWidget& place);

    struct Wanted {
        controls::WebBrowser* browser;
        QWidget* place;
    };
    PageLoader loader_;
    std::unique_ptr<PageFactory> factory_;
    std::vector<Wanted> waiting_;
    bool held_ = true;
};

}  // namespace qt
