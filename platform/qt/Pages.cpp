#include "platform/qt/Pages.h"

#include <algorithm>

namespace qt {

void Pages::Want(controls::WebBrowser& browser, QWidget& place) {
    if (!held_) {
        Make(browser, place);
        return;
    }
    const bool known = std::any_of(waiting_.begin(), waiting_.end(),
                                   [&browser](const Wanted& wanted) { return wanted.browser == &browser; });
    if (!known) waiting_.push_back({&browser, &place});
}

void Pages::Release() {
    if (!held_) return;
    held_ = false;
    const std::vector<Wanted> waiting = std::move(waiting_);
    waiting_.clear();
    for (const Wanted& wanted : waiting)
        Make(*wanted.browser, *wanted.place);
}

void Pages::ForgetVisits() {
    if (factory_ != nullptr) factory_->ForgetVisits();
}

void Pages::Make(controls::WebBrowser& browser, QWidget& place) {
    if (browser.Engine() != nullptr) return;
    if (factory_ == nullptr && loader_) {
        factory_ = loader_();
        // A loader that failed is not tried for every page.
        loader_ = nullptr;
    }
    if (factory_ == nullptr) return;
    ports::BrowserControl* engine = factory_->MakePage(browser, &place);
    if (engine != nullptr) browser.Attach(engine);
}

}  // namespace qt
