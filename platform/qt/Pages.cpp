#include "platform/qt/Pages.h"

#include <algorithm>

namespace qt {

void Pages::Want(controls::WebBrowser& browser, QWidget& place) {
    if (!IsHeld()) {
        Make(browser, place);
        return;
    }
    const bool known = std::any_of(waiting_.begin(), waiting_.end(),
                                   [&browser](const Wanted& wanted) { return wanted.browser == &browser; });
    if (!known) waiting_.push_back({&browser, &place});
}

void Pages::Release() {
    released_ = true;
    MakeThoseThatWait();
}

void Pages::BeginUser(std::string_view name, bool keeps_history) {
    if (user_ && user_->name == name) return;
    user_ = {std::string(name), keeps_history};
    if (factory_ != nullptr) {
        factory_->BeginUser(name, keeps_history);
    } else if (!keeps_history && forget_) {
        // The engine may not be wanted in the whole session.
        forget_(name);
    }
    MakeThoseThatWait();
}

void Pages::EndUser() {
    user_.reset();
    waiting_.clear();
    if (factory_ != nullptr) factory_->EndUser();
}

void Pages::MakeThoseThatWait() {
    if (IsHeld()) return;
    const std::vector<Wanted> waiting = std::move(waiting_);
    waiting_.clear();
    for (const Wanted& wanted : waiting)
        Make(*wanted.browser, *wanted.place);
}

void Pages::ForgetVisits() {
    if (!user_) return;
    if (factory_ != nullptr) {
        factory_->ForgetVisits();
    } else if (forget_) {
        forget_(user_->name);
    }
}

void Pages::ShowDownloads() {
    if (IsHeld()) return;
    Load();
    if (factory_ != nullptr) factory_->ShowDownloads();
}

void Pages::Load() {
    if (factory_ != nullptr || !loader_) return;
    factory_ = loader_();
    // A loader that failed is not tried for every page.
    loader_ = nullptr;
    if (factory_ != nullptr) factory_->BeginUser(user_->name, user_->keeps_history);
}

void Pages::Make(controls::WebBrowser& browser, QWidget& place) {
    if (browser.Engine() != nullptr) return;
    Load();
    if (factory_ == nullptr) return;
    ports::BrowserControl* engine = factory_->MakePage(browser, &place);
    if (engine != nullptr) browser.Attach(engine);
}

}  // namespace qt
