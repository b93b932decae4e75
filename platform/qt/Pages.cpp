#include "platform/qt/Pages.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace qt {

Pages::Pages(PageLoader loader, PageRemover forget, PagesAhead ahead)
    : loader_(std::move(loader)), forget_(std::move(forget)), ahead_(std::move(ahead)) {
    next_step_.setSingleShot(true);
    QObject::connect(&next_step_, &QTimer::timeout, &next_step_, [this] { ComeNearer(); });
}

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
    ExpectPages();
}

void Pages::BeginUser(std::string_view name, bool keeps_history) {
    assert(!AreOfAnother(name));
    if (user_) return;
    user_ = {std::string(name), keeps_history};
    has_begun_ = false;
    if (factory_ != nullptr) {
        BeginUserOfFactory();
    } else if (!keeps_history && forget_) {
        // The engine may not be wanted in the whole session.
        forget_(name);
    }
    MakeThoseThatWait();
    ExpectPages();
}

void Pages::EndUser() {
    user_.reset();
    has_begun_ = false;
    next_step_.stop();
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
        // Made ready, it may not know yet whose visits these are.
        BeginUserOfFactory();
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
    LoadFactory();
    BeginUserOfFactory();
}

void Pages::LoadFactory() {
    if (factory_ != nullptr || !loader_) return;
    factory_ = loader_();
    // A loader that failed is not tried for every page.
    loader_ = nullptr;
}

void Pages::BeginUserOfFactory() {
    if (factory_ == nullptr || !user_ || std::exchange(has_begun_, true)) return;
    factory_->BeginUser(user_->name, user_->keeps_history);
}

void Pages::ExpectPages() {
    if (!released_ || !user_ || factory_ != nullptr || !ahead_.is_likely || !ahead_.is_likely(user_->name))
        return;
    next_step_.start(ahead_.after);
}

// One step in a turn, so that a key or a click between them waits for one of them only.
void Pages::ComeNearer() {
    if (IsHeld()) return;
    if (factory_ != nullptr) {
        BeginUserOfFactory();
        return;
    }
    if (ahead_.prepare) {
        std::exchange(ahead_.prepare, nullptr)();
    } else {
        LoadFactory();
    }
    next_step_.start(ahead_.between);
}

void Pages::Make(controls::WebBrowser& browser, QWidget& place) {
    if (browser.Engine() != nullptr) return;
    Load();
    if (factory_ == nullptr) return;
    ports::BrowserControl* engine = factory_->MakePage(browser, &place);
    if (engine != nullptr) browser.Attach(engine);
}

}  // namespace qt
